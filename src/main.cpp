#include "MopwellApp.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Mopwell"));
    QApplication::setOrganizationDomain(QStringLiteral("mopwell.org"));
    // A status-area utility: closing a window never ends it, only "Quit" does.
    QApplication::setQuitOnLastWindowClosed(false);
    MopwellApp app;
    app.launch();
    return QApplication::exec();
}
