#pragma once

#include "Models/OutdatedPackage.h"
#include "Services/ShellResult.h"

#include <string>
#include <string_view>
#include <vector>

// What the user installed with Homebrew and is out of date, and `brew upgrade` on request. Talks
// to Homebrew only through command lines in the user's login shell, which is how `brew` is
// found: on the search path the user's profile sets up. Each call blocks for its command.
namespace HomebrewUpdater {

// How long each kind of command may take, in seconds; past that it counts as failed.
constexpr double lookupTimeout = 20;
constexpr double listTimeout = 120;
constexpr double upgradeTimeout = 600;
constexpr double upgradeAllTimeout = 1800;

// "command -v brew" succeeds (20 seconds at most).
bool isInstalled();

// The outdated formulae and casks, "--greedy" so that casks with their own updater are listed
// too (120 seconds at most). Empty when the command fails or its output can't be read.
std::vector<OutdatedPackage> outdated();

// The JSON of `brew outdated --json=v2`: formulae, then casks, each element with a text "name"
// (others are dropped); the installed version is the last of "installed_versions", or that key
// as plain text, or "installed_version", else "?"; the current one "current_version", else "?".
// Sorted by name whatever the case, stably. Empty for anything but a JSON object.
std::vector<OutdatedPackage> parseOutdated(std::string_view json);

// "brew upgrade NAME", or "brew upgrade --cask NAME", the name one quoted word.
std::string upgradeCommand(const OutdatedPackage& package);
// Upgrades one package (600 seconds at most).
ShellResult upgrade(const OutdatedPackage& package);
// "brew upgrade --greedy": everything (1800 seconds at most).
ShellResult upgradeAll();

}  // namespace HomebrewUpdater
