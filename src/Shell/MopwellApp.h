#pragma once

#include "AppNotifications.h"
#include "Services/Updater.h"
#include "WelcomeFlow.h"
#include "WindowDefinition.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

#include <memory>
#include <vector>

class AppModel;
class MenuPanel;
class StatusItem;
class WindowRegistry;

// The application object: holds the one model, puts the status item up, drops the panel from it,
// opens windows by id and turns the in-process notifications and a tap on the low-space alert
// into actions on the model.
class MopwellApp : public QObject {
    Q_OBJECT

public:
    // The views the application is built from.
    struct Views {
        QUrl panel;
        std::vector<WindowDefinition> windows;
        // The first run's welcome and the bubble after it; none, no welcome.
        WelcomeFlow::Views welcome = {};

        static Views application();
    };

    // Over the application's model and views.
    explicit MopwellApp(QObject* parent = nullptr);
    // Over a model and views of the caller's; tests make their own.
    MopwellApp(AppModel& model, Views views, QObject* parent = nullptr);
    ~MopwellApp() override;

    // Puts up the status item, or where the desktop has none, shows the panel as a window that
    // quits the application when closed; then the welcome, until the user has been through it.
    void launch();

    // Opens the window with this id, or brings it forward, and activates it.
    void openWindow(const QString& id);
    // Shows the panel: under the status item, or as the window it is where there is none. What a
    // second start of the application asks of this one.
    void showPanel();

    AppModel& model() const { return model_; }
    Updater& updater() { return updater_; }
    AppNotifications& notifications() { return notifications_; }
    WelcomeFlow& welcome() const { return *welcome_; }
    WindowRegistry& windows() const { return *windows_; }
    MenuPanel& panel() const { return *panel_; }
    // Null where the desktop has no status area.
    StatusItem* statusItem() const { return statusItem_.get(); }

private:
    void listenToViews();
    void listenToNotifications();
    void cleanAll();
    void showStatusItem();
    void showPanelAsWindow();
    static void quit();

    AppModel& model_;
    Updater updater_;  // made right after the model is taken, and lives as long as the application
    // Declared first, so it outlives the windows built with it.
    QQmlEngine engine_;
    AppNotifications notifications_;
    std::unique_ptr<WindowRegistry> windows_;
    std::unique_ptr<WelcomeFlow> welcome_;
    std::unique_ptr<MenuPanel> panel_;
    std::unique_ptr<StatusItem> statusItem_;
    QUrl panelSource_;
};
