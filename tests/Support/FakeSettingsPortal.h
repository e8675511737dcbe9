#pragma once

#include "Support/BusRegistration.h"

#include <QDBusConnection>
#include <QHash>
#include <QPair>
#include <QString>
#include <QThread>
#include <QVariant>

#include <memory>
#include <optional>

class PortalSettings;

// The desktop settings portal as a desktop runs one: it owns org.freedesktop.portal.Desktop on
// the bus it is given, answers Read from a table of settings and emits SettingChanged when a test
// changes one. It answers on a thread of its own, because readers wait for the answer on the
// main thread.
class FakeSettingsPortal {
public:
    using Key = QPair<QString, QString>;  // namespace, key
    enum class Answers {
        wrappedTwice,  // Read's value inside a second variant, as most portal versions send it
        wrappedOnce,
        never,  // a hung portal
    };

    explicit FakeSettingsPortal(const QDBusConnection& bus, const QHash<Key, QVariant>& settings = {},
                                Answers answers = Answers::wrappedTwice);
    ~FakeSettingsPortal();
    FakeSettingsPortal(const FakeSettingsPortal&) = delete;
    FakeSettingsPortal& operator=(const FakeSettingsPortal&) = delete;

    bool registered() const { return registration_ && registration_->registered(); }
    // Stores the value and tells the bus, as the portal does when the user changes a setting.
    void change(const QString& settingNamespace, const QString& key, const QVariant& value);

private:
    QThread thread_;
    std::unique_ptr<PortalSettings> settings_;
    std::optional<BusRegistration> registration_;  // after the thread answering for it starts
};
