#include "Support/FakeSettingsPortal.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMutex>
#include <QMutexLocker>
#include <QObject>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString objectPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interfaceName = QStringLiteral("org.freedesktop.portal.Settings");

}  // namespace

// The object on the bus. It lives on the portal's thread; the test changes its table from the
// main thread.
class PortalSettings : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    PortalSettings(const QHash<FakeSettingsPortal::Key, QVariant>& settings, FakeSettingsPortal::Answers answers)
        : settings_(settings), answers_(answers)
    {
    }

    void store(const FakeSettingsPortal::Key& key, const QVariant& value)
    {
        const QMutexLocker lock(&mutex_);
        settings_.insert(key, value);
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& settingNamespace, const QString& key)
    {
        if (answers_ == FakeSettingsPortal::Answers::never) {
            setDelayedReply(true);
            return {};
        }
        const QMutexLocker lock(&mutex_);
        const auto setting = settings_.constFind({settingNamespace, key});
        if (setting == settings_.cend()) {
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                           QStringLiteral("Requested setting not found"));
            return {};
        }
        const QDBusVariant value(*setting);
        return answers_ == FakeSettingsPortal::Answers::wrappedTwice ? QDBusVariant(QVariant::fromValue(value)) : value;
    }

private:
    QMutex mutex_;
    QHash<FakeSettingsPortal::Key, QVariant> settings_;
    const FakeSettingsPortal::Answers answers_;
};

FakeSettingsPortal::FakeSettingsPortal(const QDBusConnection& bus, const QHash<Key, QVariant>& settings,
                                       Answers answers)
    : settings_(std::make_unique<PortalSettings>(settings, answers))
{
    settings_->moveToThread(&thread_);
    thread_.start();
    registration_.emplace(bus, serviceName, objectPath, settings_.get());
}

FakeSettingsPortal::~FakeSettingsPortal()
{
    registration_.reset();
    thread_.quit();
    thread_.wait();
}

void FakeSettingsPortal::change(const QString& settingNamespace, const QString& key, const QVariant& value)
{
    settings_->store({settingNamespace, key}, value);
    QDBusMessage signal = QDBusMessage::createSignal(objectPath, interfaceName, QStringLiteral("SettingChanged"));
    signal << settingNamespace << key << QVariant::fromValue(QDBusVariant(value));
    registration_->bus().send(signal);
}

#include "FakeSettingsPortal.moc"
