#include "Shell/MopwellApp.h"
#include "Shell/SingleInstance.h"
#include "Platform/Bundle.h"

#include <QApplication>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(MopwellPlugin)

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Mopwell"));
    QApplication::setOrganizationDomain(QStringLiteral("mopwell.org"));
    // A status-area utility: closing a window never ends it, only "Quit" does.
    QApplication::setQuitOnLastWindowClosed(false);
    // One copy per session: a second start (an autostart entry plus a start by hand) shows the
    // running copy's panel and ends, before it reads or writes any settings.
    SingleInstance instance;
    if (!instance.claim()) {
        if (instance.handOver())
            return 0;
        std::fprintf(stderr, "mopwell: another copy is running but does not answer\n");
        return 1;
    }
    // The running application has an identity; tests and command-line tools don't, and so post
    // no notifications.
    Bundle::setMainIdentifier(Bundle::applicationIdentifier);
    MopwellApp app;
    QObject::connect(&instance, &SingleInstance::activationRequested, &app, &MopwellApp::showPanel);
    app.launch();
    return QApplication::exec();
}
