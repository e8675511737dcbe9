#pragma once

#include "Services/Updater.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

// What the views ask of the application: open a window by id, post an in-process notification,
// quit. Views call `Shell.openWindow("confirm")`; the application object listens to the signals
// and does the work, so views stay free of window handling and their tests can watch the
// requests without anything opening.
class Shell : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    // The application's own updates (`Shell.updater.checkForUpdates()`); null until the
    // application object hands it over.
    Q_PROPERTY(Updater* updater READ updater NOTIFY updaterChanged)

public:
    // The one instance, shared by every engine and by the application object.
    static Shell& instance();
    static Shell* create(QQmlEngine* engine, QJSEngine* scriptEngine);

    // Opens the window with this id, or brings it forward when it is already open, and makes
    // it the active window.
    Q_INVOKABLE void openWindow(const QString& id);
    Q_INVOKABLE void closeWindow(const QString& id);
    // Posts a notification by name, such as "mopwell.showOnboarding".
    Q_INVOKABLE void post(const QString& name);
    Q_INVOKABLE void quit();

    Updater* updater() const { return updater_; }
    void setUpdater(Updater* updater);

signals:
    void windowRequested(const QString& id);
    void windowCloseRequested(const QString& id);
    void posted(const QString& name);
    void quitRequested();
    void updaterChanged();

private:
    explicit Shell(QObject* parent = nullptr);

    QPointer<Updater> updater_;
};
