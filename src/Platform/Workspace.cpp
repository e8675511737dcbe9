#include "Platform/Workspace.h"

#include "Platform/Paths.h"
#include "Platform/Trash.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QStringList>

#include <cstdlib>

namespace Workspace {
namespace {

const QString serviceName = QStringLiteral("org.freedesktop.FileManager1");
const QString objectPath = QStringLiteral("/org/freedesktop/FileManager1");
const QString interfaceName = QStringLiteral("org.freedesktop.FileManager1");

// A file manager that is already running answers at once; one the bus has to start may take a
// moment, but past this the user has waited long enough and gets the folder instead.
constexpr int showItemsTimeoutMilliseconds = 3000;

// Built from the path's bytes, percent-encoded, so a name that is not UTF-8 still names its file
// (a URL made from text would carry a replacement character instead).
QUrl fileUrl(const std::string& path)
{
    const QByteArray bytes(path.data(), static_cast<qsizetype>(path.size()));
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"), QUrl::StrictMode);
}

bool openParentFolder(const std::string& path, const UrlOpener& openUrl)
{
    return openUrl(fileUrl(Paths::parentFolder(path)));
}

}  // namespace

bool open(const std::string& path)
{
    return QDesktopServices::openUrl(fileUrl(path));
}

bool reveal(const std::string& path)
{
    return reveal(path, QDBusConnection::sessionBus(), [](const QUrl& url) { return QDesktopServices::openUrl(url); });
}

bool reveal(const std::string& path, const QDBusConnection& bus, UrlOpener openUrl)
{
    if (!bus.isConnected())
        return openParentFolder(path, openUrl);

    QDBusMessage message =
        QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, QStringLiteral("ShowItems"));
    // A URI, not a path: spaces, "#" and letters beyond ASCII arrive percent-encoded. No startup
    // id: the request doesn't come from a launch the desktop is tracking.
    message << QStringList{fileUrl(path).toString(QUrl::FullyEncoded)} << QString();

    // Answered asynchronously, so a slow or hung file manager never freezes the window that asked.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, showItemsTimeoutMilliseconds));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [path, openUrl = std::move(openUrl)](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         if (finished->isError())
                             openParentFolder(path, openUrl);
                     });
    return true;
}

QUrl trashAddress()
{
    const char* desktop = std::getenv("XDG_CURRENT_DESKTOP");
    const QStringList names = QString::fromLocal8Bit(desktop ? desktop : "").toUpper().split(QLatin1Char(':'));
    if (names.contains(QLatin1String("KDE")))
        return QUrl(QStringLiteral("trash:/"));
    for (const char* gioDesktop : {"GNOME", "UNITY", "X-CINNAMON", "CINNAMON", "MATE", "XFCE", "BUDGIE", "PANTHEON"}) {
        if (names.contains(QLatin1String(gioDesktop)))
            return QUrl(QStringLiteral("trash:///"));
    }
    return fileUrl(Trash::homeTrashFolder() + "/files");
}

bool openTrash(const UrlOpener& openUrl)
{
    return openUrl(trashAddress());
}

bool openTrash()
{
    return openTrash([](const QUrl& url) { return QDesktopServices::openUrl(url); });
}

}  // namespace Workspace
