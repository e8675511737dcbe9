#pragma once

#include "Models/CleanupTarget.h"

#include <string>
#include <vector>

// The fixed knowledge of what may be cleaned. Holds no state.
namespace CleanupCatalog {

// The 27 built-in targets, in the order the panel lists them. Made afresh on each call: the
// Trash row follows where the desktop keeps the Trash, which the environment decides.
std::vector<CleanupTarget> builtIn();

// The 5 build-folder targets, searched under the given roots. Depends on the settings, so it is
// made again whenever the target list is rebuilt.
std::vector<CleanupTarget> finderTargets(const std::vector<std::string>& roots,
                                         const std::vector<std::string>& ignore, int minAgeDays);

}  // namespace CleanupCatalog
