#include <QCoreApplication>

#include <gmock/gmock.h>

// One event loop for the tests of the QObject layer; the plain ones don't notice it.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
