#pragma once

#include "Models/AppInfo.h"
#include "Models/TrashedItem.h"
#include "Models/UninstallItem.h"
#include "Platform/PlatformProfile.h"

#include <cstdint>
#include <string>
#include <vector>

// Reads what an application is, finds what it left in the user's folders, and moves chosen items
// to the Trash. The search is a fixed list of well-known places keyed on the app's identifier and
// then on its name, never a fuzzy match: the only substring tests are of the whole identifier,
// case-sensitive, against folder entries. Stateless; every call may run on any thread.
//
// macOS: application bundles, ~/Library. Linux: apps installed in the user's home (AppImages,
// application folders, per-user Flatpak apps) and the XDG folders (see LinuxApps, LinuxLeftovers).
namespace Uninstaller {

struct RemoveResult {
    std::int64_t freed = 0;
    std::vector<TrashedItem> trashed;

    bool operator==(const RemoveResult&) const = default;
};

// Never fails. On macOS the name is the bundle's CFBundleName, else the file name with every
// ".app" taken out; the identifier is the bundle's when it has one.
AppInfo inspect(const std::string& appPath, PlatformProfile profile = currentPlatformProfile());

// The app itself first when it exists, then what it left behind, in table order. Each item is
// measured, so this is slow: call it off the main thread.
std::vector<UninstallItem> leftovers(const AppInfo& app, PlatformProfile profile = currentPlatformProfile());

// For each path in order: measure it, then move it to the Trash. An item that can't be moved is
// passed over and adds nothing; what was moved stays moved whatever happens to later ones. On
// Linux a per-user Flatpak app's folder is uninstalled through the flatpak tool instead (its
// size counts as freed, but it can't be put back), and a path outside the user's own part of the
// home is never touched.
RemoveResult remove(const std::vector<std::string>& paths, PlatformProfile profile = currentPlatformProfile());

// Applications that are part of the system and must not be offered for removal. macOS: anything
// under /System/ and Safari. Linux: anything outside the home folder or not the user's.
bool isProtectedSystemApp(const std::string& appPath, PlatformProfile profile = currentPlatformProfile());

}  // namespace Uninstaller
