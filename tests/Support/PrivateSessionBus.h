#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A D-Bus message bus of its own for the lifetime of the object, so no test ever reaches the
// user's session bus. It can't start services on demand: a name is owned only when a test
// registers it.
class PrivateSessionBus {
public:
    PrivateSessionBus();
    ~PrivateSessionBus();
    PrivateSessionBus(const PrivateSessionBus&) = delete;
    PrivateSessionBus& operator=(const PrivateSessionBus&) = delete;

    bool isRunning() const { return !address_.isEmpty(); }
    const QString& address() const { return address_; }

    // A new client connection to this bus, closed when the bus goes away.
    QDBusConnection connect();

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList connectionNames_;
};
