#include "SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char request[] = "show\n";
constexpr char reply[] = "shown\n";

// The runtime folder is the user's own (mode 0700) for the session's lifetime, which is exactly
// the scope of "one copy". Without one, a folder of our own in the temporary folder.
QString runtimeFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && runtime.startsWith(QLatin1Char('/')))
        return runtime;
    const QString folder = QDir::tempPath() + QStringLiteral("/mopwell-%1").arg(getuid());
    mkdir(QFile::encodeName(folder).constData(), 0700);
    struct stat status {};
    // Someone else's folder, or one others may write to, could be used to catch our requests.
    if (lstat(QFile::encodeName(folder).constData(), &status) != 0 || !S_ISDIR(status.st_mode) ||
        status.st_uid != getuid() || (status.st_mode & 0077) != 0)
        return {};
    return folder;
}

}  // namespace

SingleInstance::SingleInstance(QString name, QObject* parent)
    : QObject(parent), folder_(runtimeFolder()), name_(std::move(name))
{
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

SingleInstance::~SingleInstance()
{
    server_.close();
    if (lockDescriptor_ >= 0)
        close(lockDescriptor_);  // releases the lock
}

QString SingleInstance::socketPath() const
{
    return folder_ + QLatin1Char('/') + name_ + QStringLiteral(".socket");
}

bool SingleInstance::claim()
{
    if (folder_.isEmpty())
        return true;
    const QByteArray lockPath = QFile::encodeName(folder_ + QLatin1Char('/') + name_ + QStringLiteral(".lock"));
    lockDescriptor_ = open(lockPath.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (lockDescriptor_ < 0)
        return true;
    if (flock(lockDescriptor_, LOCK_EX | LOCK_NB) != 0) {
        const bool held = errno == EWOULDBLOCK;
        close(lockDescriptor_);
        lockDescriptor_ = -1;
        return !held;
    }
    // Holding the lock, any socket left there is a dead copy's.
    QLocalServer::removeServer(socketPath());
    server_.listen(socketPath());
    return true;
}

bool SingleInstance::handOver(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!deadline.hasExpired()) {
        QLocalSocket socket;
        socket.connectToServer(socketPath());
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime()))) {
            socket.write(request);
            if (socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime())) &&
                socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
                return socket.readLine() == reply;
            return false;
        }
        QThread::msleep(50);  // the running copy holds the lock but doesn't listen yet
    }
    return false;
}

void SingleInstance::answer()
{
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine())
                return;
            if (socket->readLine() == request) {
                socket->write(reply);
                socket->flush();
                emit activationRequested();
            }
            socket->disconnectFromServer();
        });
    }
}
