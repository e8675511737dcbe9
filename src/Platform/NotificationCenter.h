#pragma once

#include "Platform/NotificationCategory.h"
#include "Platform/NotificationRequest.h"

#include <QDBusConnection>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

class QDBusPendingCallWatcher;

// The desktop's notification service (freedesktop.org Desktop Notifications over D-Bus), seen as
// requests that replace their predecessors and categories whose responses come back as a signal.
//
// Posting never blocks: the call goes out asynchronously and, when no service answers (no session
// bus, nobody owning the name, a hung server), the notification is simply not shown.
class NotificationCenter : public QObject {
    Q_OBJECT

public:
    // The action a server reports when the body of a notification, not one of its buttons, is
    // clicked. Offered on every notification that has a category, so a click counts as a tap.
    static inline const QString defaultActionIdentifier = QStringLiteral("default");

    // Over the user's session bus.
    explicit NotificationCenter(QObject* parent = nullptr);
    // Over any bus; tests hand in a private one.
    explicit NotificationCenter(const QDBusConnection& bus, QObject* parent = nullptr);

    // Replaces the registered categories. Only notifications posted afterwards carry the actions.
    void setCategories(QList<NotificationCategory> categories);
    const QList<NotificationCategory>& categories() const { return categories_; }

    void post(const NotificationRequest& request);

signals:
    // The user clicked a notification this center posted (action "default") or one of its
    // buttons. Servers may report this from a notification that has since closed.
    void responded(const QString& categoryIdentifier, const QString& actionIdentifier);

private Q_SLOTS:
    // Slots by name, as QtDBus connects bus signals to them.
    void handleActionInvoked(uint notificationId, const QString& actionKey);
    void handleNotificationClosed(uint notificationId, uint reason);

private:
    // What the server last told us about the notification of one request identifier.
    struct Delivered {
        uint notificationId = 0;
        QString categoryIdentifier;
        bool open = false;
    };

    void send(const NotificationRequest& request);
    void finishSend(const NotificationRequest& request, QDBusPendingCallWatcher* watcher);
    QStringList actionsOf(const QString& categoryIdentifier) const;

    QDBusConnection bus_;
    QList<NotificationCategory> categories_;
    QHash<QString, Delivered> delivered_;
    // A request whose Notify call is still out. A newer request with the same identifier waits
    // here for that id, or it would show beside the older notification instead of replacing it.
    QSet<QString> inFlight_;
    QHash<QString, NotificationRequest> waiting_;
};
