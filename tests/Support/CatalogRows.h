#pragma once

#include "Models/CleanupCatalog.h"
#include "Support/PathsOf.h"

#include <stdexcept>
#include <string>
#include <vector>

// Rows of the cleanup catalog picked out by id, and a plain row over chosen folders.
namespace CatalogRows {

inline const CleanupTarget& find(const std::vector<CleanupTarget>& targets, const std::string& id)
{
    for (const auto& target : targets) {
        if (target.id == id)
            return target;
    }
    throw std::out_of_range(id);
}

inline CleanupTarget builtIn(const std::string& id, PlatformProfile profile = currentPlatformProfile())
{
    return find(CleanupCatalog::builtIn(profile), id);
}

inline std::vector<std::string> idsOf(const std::vector<CleanupTarget>& targets)
{
    return stringsOf(targets, &CleanupTarget::id);
}

// A row over `paths`, as a folder the user added is.
inline CleanupTarget folders(std::vector<std::string> paths)
{
    return {"t", "T", "folder.fill", "", PathsKind{std::move(paths)}, CleanupCategory::custom, false};
}

}  // namespace CatalogRows
