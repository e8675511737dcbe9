#include "Support/PrivateSessionBus.h"

#include <QFile>

#include <atomic>

namespace {

// Like the standard session configuration, without the service folders, so that a lookup of an
// unowned name fails at once instead of starting whatever the machine has installed.
constexpr const char* configuration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

QString uniqueConnectionName()
{
    static std::atomic<int> counter{0};
    return QStringLiteral("mopwell-test-bus-%1").arg(++counter);
}

}  // namespace

PrivateSessionBus::PrivateSessionBus()
{
    const QString configPath = folder_.filePath(QStringLiteral("bus.conf"));
    QFile config(configPath);
    if (!folder_.isValid() || !config.open(QIODevice::WriteOnly))
        return;
    config.write(QString::fromLatin1(configuration).arg(folder_.path()).toUtf8());
    config.close();

    daemon_.setProgram(QStringLiteral("dbus-daemon"));
    daemon_.setArguments({QStringLiteral("--config-file=") + configPath, QStringLiteral("--nofork"),
                          QStringLiteral("--print-address")});
    daemon_.setProcessChannelMode(QProcess::SeparateChannels);
    daemon_.start();
    if (!daemon_.waitForStarted(5000))
        return;
    // The daemon prints its address once it listens.
    while (!daemon_.canReadLine() && daemon_.waitForReadyRead(5000)) {
    }
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
}

PrivateSessionBus::~PrivateSessionBus()
{
    for (const QString& name : std::as_const(connectionNames_))
        QDBusConnection::disconnectFromBus(name);
    if (daemon_.state() == QProcess::NotRunning)
        return;
    daemon_.terminate();
    if (!daemon_.waitForFinished(5000)) {
        daemon_.kill();
        daemon_.waitForFinished(5000);
    }
}

QDBusConnection PrivateSessionBus::connect()
{
    const QString name = uniqueConnectionName();
    connectionNames_.append(name);
    return QDBusConnection::connectToBus(address_, name);
}
