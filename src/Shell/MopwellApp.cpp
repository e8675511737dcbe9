#include "MopwellApp.h"

#include "AppModel.h"
#include "MenuPanel.h"
#include "Platform/NotificationCenter.h"
#include "Services/Notifier.h"
#include "StatusItem.h"
#include "Views/Components/Shell.h"
#include "WindowRegistry.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QSystemTrayIcon>

MopwellApp::Views MopwellApp::Views::application()
{
    return {QUrl(QStringLiteral("qrc:/Mopwell/Views/Panel/MenuPanelView.qml")), applicationWindows(),
            {QUrl(QStringLiteral("qrc:/Mopwell/Views/Onboarding/WelcomeWindow.qml")),
             QUrl(QStringLiteral("qrc:/Mopwell/Views/Onboarding/CoachMarkWindow.qml"))}};
}

MopwellApp::MopwellApp(QObject* parent) : MopwellApp(AppModel::shared(), Views::application(), parent) {}

MopwellApp::MopwellApp(AppModel& model, Views views, QObject* parent)
    : QObject(parent), model_(model), updater_(model.settings()->defaults()), panelSource_(std::move(views.panel))
{
    engine_.addImportPath(QStringLiteral("qrc:/"));  // where the views are compiled in
    windows_ = std::make_unique<WindowRegistry>(engine_, model_, std::move(views.windows));
    welcome_ = std::make_unique<WelcomeFlow>(engine_, model_, std::move(views.welcome),
                                             [this] { return statusItem_ ? statusItem_->geometry() : QRect(); });
    listenToViews();
    listenToNotifications();
}

MopwellApp::~MopwellApp() = default;

void MopwellApp::launch()
{
    if (QSystemTrayIcon::isSystemTrayAvailable())
        showStatusItem();
    else
        showPanelAsWindow();
    if (!model_.settings()->hasCompletedOnboarding())
        welcome_->showOnboarding();
}

void MopwellApp::showStatusItem()
{
    panel_ = std::make_unique<MenuPanel>(engine_, model_, panelSource_, MenuPanel::Style::dropDown);
    statusItem_ = std::make_unique<StatusItem>(model_);
    connect(statusItem_.get(), &StatusItem::clicked, this, [this](bool secondOfDoubleClick) {
        // The user has found the icon: the bubble pointing at it has done its work.
        welcome_->dismissCoachMark();
        panel_->toggle(statusItem_->geometry(), secondOfDoubleClick);
    });
    connect(statusItem_.get(), &StatusItem::quitChosen, this, &MopwellApp::quit);
    statusItem_->show();
}

void MopwellApp::showPanelAsWindow()
{
    // Without a status area the panel is the application: closing it quits.
    panel_ = std::make_unique<MenuPanel>(engine_, model_, panelSource_, MenuPanel::Style::window);
    connect(panel_.get(), &MenuPanel::closed, this, &MopwellApp::quit);
    panel_->showAsWindow();
}

void MopwellApp::openWindow(const QString& id)
{
    windows_->open(id);
}

void MopwellApp::showPanel()
{
    if (!panel_)
        return;  // not launched yet
    if (statusItem_)
        panel_->showUnder(statusItem_->geometry());
    else
        panel_->showAsWindow();
}

void MopwellApp::listenToViews()
{
    Shell& shell = Shell::instance();
    connect(&shell, &Shell::windowRequested, this, &MopwellApp::openWindow);
    connect(&shell, &Shell::windowCloseRequested, windows_.get(), &WindowRegistry::close);
    connect(&shell, &Shell::posted, &notifications_, &AppNotifications::post);
    connect(&shell, &Shell::quitRequested, this, &MopwellApp::quit);
    // The views check for updates through the one updater; what a check has to say shows in the
    // update window, whether the user asked or the daily check found a new release.
    shell.setUpdater(&updater_);
    connect(&updater_, &Updater::presentationRequested, this, [this] { openWindow(QStringLiteral("update")); });
}

void MopwellApp::listenToNotifications()
{
    connect(&notifications_, &AppNotifications::requestCleanAll, this, &MopwellApp::cleanAll);
    connect(&notifications_, &AppNotifications::showOnboarding, welcome_.get(), &WelcomeFlow::showOnboarding);
    // A tap on the low-space alert, or its "Clean Up Now", brings up the confirmation of a clean
    // of everything enabled; it never cleans by itself. The tap may arrive in the middle of other
    // work, so it is handled from the event loop.
    connect(&Notifier::center(), &NotificationCenter::responded, this,
            [this](const QString& category) {
                if (category == QLatin1String(Notifier::lowSpaceCategoryIdentifier))
                    notifications_.post(AppNotifications::requestCleanAllName);
            },
            Qt::QueuedConnection);
}

void MopwellApp::cleanAll()
{
    // The clean is requested first, so the confirmation finds it when it opens.
    model_.requestCleanAll();
    openWindow(QStringLiteral("confirm"));
}

void MopwellApp::quit()
{
    QCoreApplication::quit();
}
