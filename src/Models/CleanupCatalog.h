#pragma once

#include "Models/CleanupTarget.h"
#include "Models/TargetListSettings.h"
#include "Platform/PlatformProfile.h"

#include <string>
#include <vector>

// The fixed knowledge of what may be cleaned. Holds no state.
namespace CleanupCatalog {

// The built-in targets of a desktop, in the order the panel lists them: the Mac's 27 rows, or
// the Linux desktop's rows with the same ids, sections and order where a counterpart exists.
// Made afresh on each call: paths follow where the environment says the desktop keeps things.
std::vector<CleanupTarget> builtIn(PlatformProfile profile = currentPlatformProfile());

// The 5 build-folder targets, searched under the given roots. Depends on the settings, so it is
// made again whenever the target list is rebuilt.
std::vector<CleanupTarget> finderTargets(const std::vector<std::string>& roots,
                                         const std::vector<std::string>& ignore, int minAgeDays);

// The live targets for these settings: the built-in rows the mode and the optional-cache
// settings let through, then in developer mode the build-folder rows, then the custom folders.
//
// On a Linux desktop most caches lie inside the one cache folder, so a row whose folders hold
// another live row's folders leaves those to that row (and the folders of a withheld optional
// row stay untouched): sizes and cleans count every byte once. The Mac's rows keep their
// overlaps as they are.
std::vector<CleanupTarget> liveTargets(const TargetListSettings& settings,
                                       PlatformProfile profile = currentPlatformProfile());

}  // namespace CleanupCatalog
