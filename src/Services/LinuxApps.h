#pragma once

#include "Models/AppInfo.h"
#include "Platform/DesktopEntry.h"

#include <optional>
#include <string>
#include <vector>

// The apps a Linux user can remove without administrator rights: the ones installed in their own
// home. An AppImage or an unpacked application folder is known by the desktop entry in
// $XDG_DATA_HOME/applications that starts it; a per-user Flatpak app by its folder in the
// per-user installation and the entry it exports. Packages of the distribution are not theirs to
// remove here.
namespace LinuxApps {

// $XDG_DATA_HOME/applications
std::string applicationsFolder();
// Where unpacked applications are customarily kept: ~/Applications, ~/.local/opt, ~/opt. An
// executable below one of them belongs to the folder directly inside it.
std::vector<std::string> applicationRoots();

// The user's removable apps, by name; an app reached through several entries is listed once.
std::vector<AppInfo> installed();

// What `path` is: a desktop entry, a per-user Flatpak app's folder, or an AppImage, program or
// folder that an entry in the applications folder starts. Never fails: an unknown item is named
// after its file (".AppImage" left off) and has no identifier.
AppInfo inspect(const std::string& path);

// The app a desktop entry at `entryPath` stands for (see inspect).
AppInfo appOfEntry(const std::string& entryPath, const DesktopEntry& entry);

// The AppImage, program or application folder that the entry starts, or none when its program
// can't be found. A program outside the application roots stands for itself, or for the entry's
// working folder (Path) when it lies inside it.
std::optional<std::string> appPathOfEntry(const DesktopEntry& entry);

// The entry's file id ("org.example.App.desktop" for …/applications/org/example/App.desktop
// taken relative to `root`) without ".desktop".
std::string desktopFileStem(const std::string& entryPath, const std::string& root);

// Why the user can't remove `path` here: it lies outside the home folder or isn't theirs
// (`systemApp`), or it is one of the home's shared folders rather than an app (`sharedFolder`).
enum class Refusal { systemApp, sharedFolder };
std::optional<Refusal> refusal(const std::string& path);

}  // namespace LinuxApps
