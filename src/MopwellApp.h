#pragma once

#include <QObject>
#include <QQmlApplicationEngine>
#include <QSystemTrayIcon>

#include <memory>

class AppModel;

// The application object: holds the one model, puts the status item up and shows the panel.
class MopwellApp : public QObject {
    Q_OBJECT

public:
    explicit MopwellApp(QObject* parent = nullptr);
    void launch();

private:
    void showPanel();
    void refreshStatusItem();

    AppModel& model_;
    QQmlApplicationEngine engine_;
    std::unique_ptr<QSystemTrayIcon> statusItem_;
};
