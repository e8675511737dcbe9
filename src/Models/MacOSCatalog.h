#pragma once

#include "Models/CleanupTarget.h"

#include <vector>

// The catalog of a Mac: 27 rows under ~/Library and the developer tools' own folders, in the
// order the panel lists them.
namespace MacOSCatalog {

std::vector<CleanupTarget> rows();

}  // namespace MacOSCatalog
