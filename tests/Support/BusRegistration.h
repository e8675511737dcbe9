#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

// A well-known name and an object on a bus, held for as long as this lives, the way a desktop
// service holds them while it runs. The fakes of the tests stand on it.
class BusRegistration {
public:
    BusRegistration(const QDBusConnection& bus, const QString& service, const QString& path, QObject* object)
        : bus_(bus), service_(service), path_(path)
    {
        registered_ = bus_.registerObject(path_, object, QDBusConnection::ExportAllSlots) &&
                      bus_.registerService(service_);
    }
    ~BusRegistration()
    {
        bus_.unregisterService(service_);
        bus_.unregisterObject(path_);
    }
    BusRegistration(const BusRegistration&) = delete;
    BusRegistration& operator=(const BusRegistration&) = delete;

    // Whether both the object path and the name could be taken.
    bool registered() const { return registered_; }
    QDBusConnection& bus() { return bus_; }

private:
    QDBusConnection bus_;
    QString service_;
    QString path_;
    bool registered_ = false;
};
