#include "Platform/NotificationCenter.h"

#include "Platform/Bundle.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString objectPath = QStringLiteral("/org/freedesktop/Notifications");
const QString interfaceName = QStringLiteral("org.freedesktop.Notifications");
const QString applicationName = QStringLiteral("Mopwell");

// Long enough for a server that is busy starting, short enough that a hung one doesn't hold back
// the next alert of the same kind for long.
constexpr int notifyTimeoutMilliseconds = 5000;
// Let the server choose how long a notification stays.
constexpr int serverDefaultExpiry = -1;

QVariantMap hintsFor(const NotificationRequest& request)
{
    QVariantMap hints;
    if (request.sound == NotificationRequest::Sound::standard)
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    else
        hints.insert(QStringLiteral("suppress-sound"), true);
    // Lets the server show the application's name and icon and group its notifications.
    if (const auto identifier = Bundle::mainIdentifier())
        hints.insert(QStringLiteral("desktop-entry"), QString::fromStdString(*identifier));
    return hints;
}

QString applicationIcon()
{
    const auto identifier = Bundle::mainIdentifier();
    return identifier ? QString::fromStdString(*identifier) : QString();
}

}  // namespace

NotificationCenter::NotificationCenter(QObject* parent)
    : NotificationCenter(QDBusConnection::sessionBus(), parent)
{
}

NotificationCenter::NotificationCenter(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), bus_(bus)
{
    // Bound to the service name, so only the notification server's signals count, not another
    // client's that happens to use the same interface.
    bus_.connect(serviceName, objectPath, interfaceName, QStringLiteral("ActionInvoked"), this,
                 SLOT(handleActionInvoked(uint, QString)));
    bus_.connect(serviceName, objectPath, interfaceName, QStringLiteral("NotificationClosed"), this,
                 SLOT(handleNotificationClosed(uint, uint)));
}

void NotificationCenter::setCategories(QList<NotificationCategory> categories)
{
    categories_ = std::move(categories);
}

void NotificationCenter::post(const NotificationRequest& request)
{
    if (inFlight_.contains(request.identifier)) {
        // Only the newest waiting request matters: it would replace the others anyway.
        waiting_.insert(request.identifier, request);
        return;
    }
    send(request);
}

QStringList NotificationCenter::actionsOf(const QString& categoryIdentifier) const
{
    QStringList actions;
    if (categoryIdentifier.isEmpty())
        return actions;
    // Servers show no button for "default"; its label is only read out by some.
    actions << defaultActionIdentifier << QCoreApplication::translate("NotificationCenter", "Open");
    for (const NotificationCategory& category : categories_) {
        if (category.identifier != categoryIdentifier)
            continue;
        for (const NotificationAction& action : category.actions)
            actions << action.identifier << action.title;
    }
    return actions;
}

void NotificationCenter::send(const NotificationRequest& request)
{
    const Delivered previous = delivered_.value(request.identifier);
    // A closed notification can't be replaced; some servers would refuse the stale id.
    const uint replacesId = previous.open ? previous.notificationId : 0;
    QDBusMessage message =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("Notify"));
    message << applicationName << replacesId << applicationIcon() << request.title << request.body
            << actionsOf(request.categoryIdentifier) << hintsFor(request) << serverDefaultExpiry;

    inFlight_.insert(request.identifier);
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message, notifyTimeoutMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, request](QDBusPendingCallWatcher* finished) { finishSend(request, finished); });
}

void NotificationCenter::finishSend(const NotificationRequest& request, QDBusPendingCallWatcher* watcher)
{
    watcher->deleteLater();
    const QDBusPendingReply<uint> reply = *watcher;
    // A failed post is not reported: without a server, there is no one to show an alert to.
    if (!reply.isError())
        delivered_.insert(request.identifier, Delivered{reply.value(), request.categoryIdentifier, true});
    inFlight_.remove(request.identifier);
    if (const auto next = waiting_.find(request.identifier); next != waiting_.end()) {
        const NotificationRequest newer = *next;
        waiting_.erase(next);
        send(newer);
    }
}

void NotificationCenter::handleActionInvoked(uint notificationId, const QString& actionKey)
{
    for (const Delivered& delivered : std::as_const(delivered_)) {
        if (delivered.notificationId == notificationId) {
            emit responded(delivered.categoryIdentifier, actionKey);
            return;
        }
    }
}

void NotificationCenter::handleNotificationClosed(uint notificationId, uint /*reason*/)
{
    for (Delivered& delivered : delivered_) {
        // The entry stays, so that a click the server reports after closing still counts.
        if (delivered.notificationId == notificationId)
            delivered.open = false;
    }
}
