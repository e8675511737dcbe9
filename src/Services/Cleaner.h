#pragma once

#include "Models/CleanupTarget.h"
#include "Services/CleanOutcome.h"

#include <optional>
#include <string>
#include <vector>

// The one place the cleanup engine deletes, and the safety test every removal in the application
// consults. A path may go only if it is not protected, lies inside an allowed root and is at
// least three components deep.
namespace Cleaner {

// Exact paths that are never removed (their contents may be).
std::vector<std::string> protectedPaths();
// Paths protected with everything below them.
std::vector<std::string> protectedPrefixes();
// The only places removals may happen in.
std::vector<std::string> allowedRoots();

// The safety test. `path` must be absolute with links resolved; only its text is examined.
bool isSafe(const std::string& path);

// Whether `path` ("~" allowed) may be added as a custom folder: none, or the message to show.
std::optional<std::string> validateCustom(const std::string& path);

// Cleans one target by its kind, moving to the Trash or deleting, and measures what that freed.
// Blocks; callers run it on a background thread.
CleanOutcome clean(const CleanupTarget& target, bool moveToTrash);

}  // namespace Cleaner
