#pragma once

#include "Models/OutdatedPackage.h"
#include "Services/ShellResult.h"

#include <string>
#include <string_view>
#include <vector>

// Apps the user installed with Flatpak in their own installation ("--user", so no administrator
// rights are involved) that have updates, and `flatpak update` on request. Commands run in the
// user's login shell, as Homebrew's do; each call blocks for its command.
namespace FlatpakUpdater {

// "command -v flatpak" succeeds (20 seconds at most).
bool isInstalled();

// The user's apps with an update waiting (120 seconds at most for each of the two listings).
// Empty when either listing fails.
std::vector<OutdatedPackage> outdated();

// From the tab-separated lines of `flatpak list --user --app --columns=application,version,name`
// (`installed`) and `flatpak remote-ls --updates --user --app --columns=application,version`
// (`updates`): one app per id in `updates`, with its installed version and name from
// `installed`. A missing or empty version is "?". Lines whose first field isn't an application
// id (a heading) are passed over. In the order of `updates`.
std::vector<OutdatedPackage> parseOutdated(std::string_view installed, std::string_view updates);

// "flatpak update --user -y --noninteractive ID", the id one quoted word.
std::string upgradeCommand(const OutdatedPackage& package);
// Updates one app (600 seconds at most).
ShellResult upgrade(const OutdatedPackage& package);
// Updates every app and runtime of the user's installation (1800 seconds at most).
ShellResult upgradeAll();

}  // namespace FlatpakUpdater
