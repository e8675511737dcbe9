#include "Platform/AccessibilityPreferences.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QVariant>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interfaceName = QStringLiteral("org.freedesktop.portal.Settings");

const QString interfaceNamespace = QStringLiteral("org.gnome.desktop.interface");
const QString animationsKey = QStringLiteral("enable-animations");
const QString a11yInterfaceNamespace = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString highContrastKey = QStringLiteral("high-contrast");

// The windows wait for these before they first draw, so a portal that is slow to start must not
// hold them back for long; it still gets its say through the change signal.
constexpr int readTimeoutMilliseconds = 1000;

// Many portal versions answer Read with the value inside a second variant; a few add more.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

// A missing key, an error or a value of the wrong type leaves the desktop's own default.
bool booleanOr(const QVariant& value, bool fallback)
{
    return value.metaType() == QMetaType::fromType<bool>() ? value.toBool() : fallback;
}

QDBusPendingCall read(const QDBusConnection& bus, const QString& settingNamespace, const QString& key)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("Read"));
    message << settingNamespace << key;
    return bus.asyncCall(message, readTimeoutMilliseconds);
}

QVariant valueOf(QDBusPendingCall call)
{
    call.waitForFinished();
    const QDBusMessage reply = call.reply();
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return unwrapped(reply.arguments().constFirst());
}

}  // namespace

AccessibilityPreferences::AccessibilityPreferences(QObject* parent)
    : AccessibilityPreferences(QDBusConnection::sessionBus(), parent)
{
}

AccessibilityPreferences::AccessibilityPreferences(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), bus_(bus)
{
    // Listening starts before reading, so a change made in between is not lost. Bound to the
    // service name: only the portal's signals count, not another client's on the same interface.
    // The slot's variant argument must be a known meta-type before the bus can match the signal
    // to it, and nothing else may have used one yet.
    qRegisterMetaType<QDBusVariant>();
    bus_.connect(serviceName, objectPath, interfaceName, QStringLiteral("SettingChanged"), this,
                 SLOT(handleSettingChanged(QString, QString, QDBusVariant)));
    readInitialValues();
}

void AccessibilityPreferences::readInitialValues()
{
    // Both questions go out before waiting on either, so a portal that never answers costs the
    // time-out once.
    const QDBusPendingCall animations = read(bus_, interfaceNamespace, animationsKey);
    const QDBusPendingCall highContrast = read(bus_, a11yInterfaceNamespace, highContrastKey);
    apply(interfaceNamespace, animationsKey, valueOf(animations));
    apply(a11yInterfaceNamespace, highContrastKey, valueOf(highContrast));
}

void AccessibilityPreferences::handleSettingChanged(const QString& settingNamespace, const QString& key,
                                                    const QDBusVariant& value)
{
    if (apply(settingNamespace, key, unwrapped(value.variant())))
        emit changed();
}

bool AccessibilityPreferences::apply(const QString& settingNamespace, const QString& key, const QVariant& value)
{
    bool* setting = nullptr;
    bool fallback = false;
    if (settingNamespace == interfaceNamespace && key == animationsKey) {
        setting = &animationsEnabled_;
        fallback = true;
    } else if (settingNamespace == a11yInterfaceNamespace && key == highContrastKey) {
        setting = &highContrast_;
    } else {
        return false;
    }
    const bool newValue = booleanOr(value, fallback);
    if (*setting == newValue)
        return false;
    *setting = newValue;
    return true;
}
