#include "Shell/SingleInstance.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocalServer>
#include <QTemporaryDir>
#include <QtConcurrent/QtConcurrentRun>

#include <gtest/gtest.h>

namespace {

// A runtime folder of the test's own; the lock and socket names are per application name.
class SingleInstanceTest : public ::testing::Test {
protected:
    SingleInstanceTest() : saved_(qgetenv("XDG_RUNTIME_DIR")) { qputenv("XDG_RUNTIME_DIR", runtime_.path().toUtf8()); }
    ~SingleInstanceTest() override { qputenv("XDG_RUNTIME_DIR", saved_); }

    QTemporaryDir runtime_;
    QByteArray saved_;
};

// Hands over from a background thread while this one runs the first copy's event loop.
bool handOverWhileServing(SingleInstance& later)
{
    auto result = QtConcurrent::run([&later] { return later.handOver(3000); });
    while (!result.isFinished())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return result.result();
}

}  // namespace

TEST_F(SingleInstanceTest, ALaterStartHandsOverToTheFirstAndEnds)
{
    SingleInstance first(QStringLiteral("app"));
    ASSERT_TRUE(first.claim());
    int shown = 0;
    QObject::connect(&first, &SingleInstance::activationRequested, [&shown] { ++shown; });

    SingleInstance second(QStringLiteral("app"));
    EXPECT_FALSE(second.claim());  // the lock is per open file, so this holds within one process too
    EXPECT_TRUE(handOverWhileServing(second));
    EXPECT_EQ(shown, 1);

    // Another application name is another application.
    SingleInstance other(QStringLiteral("other"));
    EXPECT_TRUE(other.claim());
}

TEST_F(SingleInstanceTest, TheLockGoesWithTheCopyAndAStaleSocketIsReplaced)
{
    {
        SingleInstance first(QStringLiteral("app"));
        ASSERT_TRUE(first.claim());
    }
    // A copy that died leaves its socket file; the lock went with it.
    QLocalServer dead;
    dead.listen(runtime_.path() + QStringLiteral("/app.socket"));
    dead.close();
    QFile(runtime_.path() + QStringLiteral("/app.socket")).open(QIODevice::WriteOnly);

    SingleInstance next(QStringLiteral("app"));
    ASSERT_TRUE(next.claim());
    int shown = 0;
    QObject::connect(&next, &SingleInstance::activationRequested, [&shown] { ++shown; });
    SingleInstance later(QStringLiteral("app"));
    EXPECT_FALSE(later.claim());
    EXPECT_TRUE(handOverWhileServing(later));
    EXPECT_EQ(shown, 1);
}

TEST_F(SingleInstanceTest, AHandOverToNobodyGivesUp)
{
    SingleInstance nobody(QStringLiteral("absent"));
    EXPECT_FALSE(nobody.handOver(200));
}
