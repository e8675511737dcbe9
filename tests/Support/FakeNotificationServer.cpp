#include "Support/FakeNotificationServer.h"

#include <QDBusMessage>
#include <QTest>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString objectPath = QStringLiteral("/org/freedesktop/Notifications");

}  // namespace

FakeNotificationServer::FakeNotificationServer(const QDBusConnection& bus) : registration_(bus, serviceName, objectPath, this) {}

bool FakeNotificationServer::waitForNotifications(qsizetype count) const
{
    return QTest::qWaitFor([&] { return received_.size() >= count; }, 5000);
}

void FakeNotificationServer::invokeAction(uint id, const QString& actionKey)
{
    emitSignal(QStringLiteral("ActionInvoked"), {id, actionKey});
}

void FakeNotificationServer::closeNotification(uint id, uint reason)
{
    open_.remove(id);
    emitSignal(QStringLiteral("NotificationClosed"), {id, reason});
}

uint FakeNotificationServer::Notify(const QString& appName, uint replacesId, const QString& appIcon,
                                    const QString& summary, const QString& body, const QStringList& actions,
                                    const QVariantMap& hints, int expireTimeout)
{
    const uint id = open_.contains(replacesId) ? replacesId : ++lastId_;
    open_.insert(id);
    received_.append({id, appName, replacesId, appIcon, summary, body, actions, hints, expireTimeout});
    return id;
}

void FakeNotificationServer::CloseNotification(uint id)
{
    closeNotification(id, 3);
}

QStringList FakeNotificationServer::GetCapabilities() const
{
    return {QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("sound")};
}

QString FakeNotificationServer::GetServerInformation(QString& vendor, QString& version, QString& specVersion) const
{
    vendor = QStringLiteral("Test");
    version = QStringLiteral("1.0");
    specVersion = QStringLiteral("1.2");
    return QStringLiteral("fake-notification-server");
}

void FakeNotificationServer::emitSignal(const QString& name, const QList<QVariant>& arguments)
{
    QDBusMessage signal = QDBusMessage::createSignal(objectPath, serviceName, name);
    signal.setArguments(arguments);
    registration_.bus().send(signal);
}
