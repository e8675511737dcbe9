#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

// One copy of the application per user session. The first start takes an exclusive lock on a
// file in the user's runtime folder and keeps it for its lifetime (the kernel drops it if the
// process dies, so a crash leaves nothing stale behind) and listens on a local socket beside it.
// A later start finds the lock taken, asks the running copy over the socket to show itself, and
// ends: two copies would each rewrite the settings and history from memory and both run the
// scheduled cleans.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    // `name` tells applications apart (tests use names of their own). The lock and the socket
    // live in $XDG_RUNTIME_DIR, or where that is unset in a private folder of the user's in the
    // temporary folder.
    explicit SingleInstance(QString name = QStringLiteral("mopwell"), QObject* parent = nullptr);
    ~SingleInstance() override;

    // True when this process is now the one copy: it holds the lock and answers later starts.
    // False when another copy holds it (or the runtime folder can't be used at all, in which
    // case running is the safer choice, so that is true).
    bool claim();
    // In a later start: asks the running copy to show itself and waits up to `timeoutMs` for it
    // to say so. The running copy may still be starting, so this keeps trying until then.
    bool handOver(int timeoutMs = 5000);

    QString socketPath() const;

signals:
    // A later start asked this copy to show itself.
    void activationRequested();

private:
    void answer();

    QString folder_;
    QString name_;
    int lockDescriptor_ = -1;
    QLocalServer server_;
};
