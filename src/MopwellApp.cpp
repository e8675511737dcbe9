#include "MopwellApp.h"

#include "AppModel.h"
#include "Platform/NotificationCenter.h"
#include "Services/Notifier.h"

#include <QApplication>
#include <QIcon>
#include <QQuickWindow>

MopwellApp::MopwellApp(QObject* parent) : QObject(parent), model_(AppModel::shared()) {}

void MopwellApp::launch()
{
    // A tap on the low-space alert, or its "Clean Up Now", prepares the clean of everything
    // enabled and brings the application forward; it never cleans by itself.
    connect(&Notifier::center(), &NotificationCenter::responded, this, [this](const QString& category) {
        if (category != QLatin1String(Notifier::lowSpaceCategoryIdentifier))
            return;
        model_.requestCleanAll();
        showPanel();
    });
    engine_.addImportPath(QStringLiteral("qrc:/"));  // where the views are compiled in
    engine_.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model_)}});
    engine_.load(QUrl(QStringLiteral("qrc:/Mopwell/Views/MenuPanelView.qml")));
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        // Without a status area the panel is the application: closing it quits.
        QApplication::setQuitOnLastWindowClosed(true);
        showPanel();
        return;
    }
    statusItem_ = std::make_unique<QSystemTrayIcon>(QIcon::fromTheme(QStringLiteral("drive-harddisk")));
    connect(statusItem_.get(), &QSystemTrayIcon::activated, this, &MopwellApp::showPanel);
    connect(&model_, &AppModel::changed, this, &MopwellApp::refreshStatusItem);
    refreshStatusItem();
    statusItem_->show();
}

void MopwellApp::showPanel()
{
    model_.start();
    for (QObject* root : engine_.rootObjects()) {
        if (auto* window = qobject_cast<QQuickWindow*>(root)) {
            window->show();
            window->raise();
            window->requestActivate();
        }
    }
}

void MopwellApp::refreshStatusItem()
{
    if (statusItem_)
        statusItem_->setToolTip(model_.menuBarText());
}
