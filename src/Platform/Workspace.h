#pragma once

#include <QDBusConnection>
#include <QUrl>

#include <functional>
#include <string>

// Opening and revealing items in the desktop's own applications.
namespace Workspace {

// Opens the item at the absolute `path` with the desktop's default application for it; false
// when nothing could be started.
bool open(const std::string& path);

// Shows the item at the absolute `path` selected in the file manager. When no file manager
// answers (none running or activatable, an error, or no reply within three seconds), opens the
// item's parent folder instead. Never blocks: the file manager's answer, and so the fallback,
// come later in the event loop. False only when neither could be tried: no session bus and the
// parent folder did not open.
bool reveal(const std::string& path);

// `reveal` over the given bus, opening URLs through `openUrl`: tests hand in a private bus and a
// recorder, so no real file manager starts.
using UrlOpener = std::function<bool(const QUrl&)>;
bool reveal(const std::string& path, const QDBusConnection& bus, UrlOpener openUrl);

// Opens the desktop's Trash: the file manager's own view of it, where the desktop's file manager
// knows the "trash:" address (the GIO-based ones and KDE's), else the home Trash's folder of
// files. $XDG_CURRENT_DESKTOP says which desktop it is.
bool openTrash();
bool openTrash(const UrlOpener& openUrl);
// The address openTrash() opens on this desktop.
QUrl trashAddress();

}  // namespace Workspace
