#pragma once

#include "Models/AppInfo.h"
#include "Models/UninstallItem.h"

#include <string_view>
#include <vector>

// What an app installed in a Linux user's home leaves there: a fixed table of the per-user XDG
// locations, keyed on the identifier and then on the name (docs/uninstaller.md has the table).
namespace LinuxLeftovers {

// The app first, then its leftovers in table order. Paths are exact (the file system decides on
// case); the only substring test is of the identifier against autostart entries.
std::vector<UninstallItem> search(const AppInfo& app);

// Names that belong to the desktop or to other tools, never to one app, inside the per-user base
// folders ("applications", "icons", "flatpak", "autostart", "Trash", …): an app called that gets
// no folder of that name.
bool isSharedName(std::string_view name);

}  // namespace LinuxLeftovers
