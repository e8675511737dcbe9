#pragma once

#include "Models/CleanupTarget.h"

#include <vector>

// The catalog of a Linux desktop: the folders that the freedesktop.org base directory rules and
// the tools' own documentation name as caches, with the ids, sections and order of their Mac
// counterparts. docs/catalog.md gives the source for every path.
//
// Paths follow $XDG_CACHE_HOME, $XDG_DATA_HOME and $XDG_STATE_HOME where their owners do, read
// when the table is made; what lies in the home folder is spelled with "~".
namespace LinuxCatalog {

std::vector<CleanupTarget> rows();

// ~/.var/app/<app>/cache of every per-user Flatpak app, by app id. Links are passed over: an app
// folder or cache that leads elsewhere is not this app's cache.
std::vector<std::string> flatpakCacheFolders();

}  // namespace LinuxCatalog
