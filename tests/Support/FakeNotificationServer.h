#pragma once

#include "Support/BusRegistration.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

// A notification server as a desktop runs one: it owns org.freedesktop.Notifications on the bus
// it is given, records every Notify call, hands out ids the way servers do (a replaced
// notification keeps its id), and lets a test play the user by clicking and closing.
class FakeNotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification {
        uint id = 0;
        QString appName;
        uint replacesId = 0;
        QString appIcon;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
        int expireTimeout = 0;
    };

    // Registers on `bus`; `registered()` says whether the name could be taken.
    explicit FakeNotificationServer(const QDBusConnection& bus);

    bool registered() const { return registration_.registered(); }
    const QList<Notification>& received() const { return received_; }
    // Runs the event loop until `count` notifications have arrived, for at most five seconds.
    bool waitForNotifications(qsizetype count) const;

    // What a server emits when the user clicks the body ("default") or a button of `id`.
    void invokeAction(uint id, const QString& actionKey);
    // What a server emits when `id` goes away; 2 is "dismissed by the user".
    void closeNotification(uint id, uint reason = 2);

public Q_SLOTS:
    uint Notify(const QString& appName, uint replacesId, const QString& appIcon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int expireTimeout);
    void CloseNotification(uint id);
    QStringList GetCapabilities() const;
    QString GetServerInformation(QString& vendor, QString& version, QString& specVersion) const;

private:
    void emitSignal(const QString& name, const QList<QVariant>& arguments);

    BusRegistration registration_;
    uint lastId_ = 0;
    QSet<uint> open_;
    QList<Notification> received_;
};
