#include "Shell/MopwellApp.h"
#include "Shell/SingleInstance.h"
#include "Platform/Bundle.h"
#include "Platform/DefaultsStore.h"
#include "Services/AppLanguage.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QQuickWindow>
#include <QThread>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(MopwellPlugin)

int main(int argc, char* argv[])
{
    // The windows are small and flat, and Qt Quick's own software renderer draws them without a
    // GL driver, which would otherwise stay loaded for as long as the status item lives: Mesa's
    // software one alone keeps some 95 MB resident. QT_QUICK_BACKEND or QSG_RHI_BACKEND still
    // choose another.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") && qEnvironmentVariableIsEmpty("QSG_RHI_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Mopwell"));
    QApplication::setOrganizationDomain(QStringLiteral("mopwell.org"));
    // A status-area utility: closing a window never ends it, only "Quit" does.
    QApplication::setQuitOnLastWindowClosed(false);
    // One copy per session: a second start (an autostart entry plus a start by hand) shows the
    // running copy's panel and ends, before it reads or writes any settings.
    SingleInstance instance;
    bool claimed = instance.claim();
    // A relaunch (for a new language) starts while the copy it replaces is still ending.
    if (QCoreApplication::arguments().contains(QLatin1String(AppLanguage::relaunchArgument))) {
        for (QDeadlineTimer deadline(10000); !claimed && !deadline.hasExpired(); claimed = instance.claim())
            QThread::msleep(50);
    }
    if (!claimed) {
        if (instance.handOver())
            return 0;
        std::fprintf(stderr, "mopwell: another copy is running but does not answer\n");
        return 1;
    }
    // The running application has an identity; tests and command-line tools don't, and so post
    // no notifications.
    Bundle::setMainIdentifier(Bundle::applicationIdentifier);
    // Before any window is built: every text, date and size in the chosen language.
    AppLanguage::install(*DefaultsStore::standard());
    MopwellApp app;
    QObject::connect(&instance, &SingleInstance::activationRequested, &app, &MopwellApp::showPanel);
    app.launch();
    return QApplication::exec();
}
