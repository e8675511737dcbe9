#pragma once

#include <optional>
#include <string>

// An application the uninstaller has looked at: what it is called, how it identifies itself and
// where it lies.
struct AppInfo {
    std::string name;
    // The bundle identifier; on Linux the Flatpak app id, the window class or the desktop file id.
    std::optional<std::string> bundleID;
    // The bundle; on Linux the AppImage, the application folder or the Flatpak app's folder.
    std::string appPath;
    // On Linux only: the desktop entry the app was found through, and the icon it names (a theme
    // icon name or an absolute path).
    std::optional<std::string> desktopEntry;
    std::optional<std::string> icon;

    bool operator==(const AppInfo&) const = default;
};
