#pragma once

#include <optional>
#include <string>

// Finds the picture a desktop entry's Icon key names, for showing an app with its own icon.
namespace ThemeIcon {

// An absolute path is taken when a file is there. A name is looked up in the hicolor theme and
// the bare icon folders of the user's data folder, the per-user Flatpak exports and the system
// data folders, then in /usr/share/pixmaps; scalable pictures first, then the larger sizes.
// None when nothing is found.
std::optional<std::string> find(const std::string& nameOrPath);

}  // namespace ThemeIcon
