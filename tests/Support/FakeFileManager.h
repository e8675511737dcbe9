#pragma once

#include "Support/BusRegistration.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

// A file manager as desktops run one: it owns org.freedesktop.FileManager1 on the bus it is
// given and records what it was asked to show.
class FakeFileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    struct Request {
        QStringList uris;
        QString startupId;
    };

    // Registers on `bus`; `registered()` says whether the name could be taken.
    explicit FakeFileManager(const QDBusConnection& bus);

    bool registered() const { return registration_.registered(); }
    const QList<Request>& shown() const { return shown_; }
    // Runs the event loop until `count` requests have arrived, for at most five seconds.
    bool waitForRequests(qsizetype count) const;

public Q_SLOTS:
    void ShowItems(const QStringList& uris, const QString& startupId);

private:
    BusRegistration registration_;
    QList<Request> shown_;
};
