#include "Shell/MopwellApp.h"
#include "Platform/Bundle.h"

#include <QApplication>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(MopwellPlugin)

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Mopwell"));
    QApplication::setOrganizationDomain(QStringLiteral("mopwell.org"));
    // A status-area utility: closing a window never ends it, only "Quit" does.
    QApplication::setQuitOnLastWindowClosed(false);
    // The running application has an identity; tests and command-line tools don't, and so post
    // no notifications.
    Bundle::setMainIdentifier(Bundle::applicationIdentifier);
    MopwellApp app;
    app.launch();
    return QApplication::exec();
}
