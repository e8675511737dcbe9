#pragma once

#include "Models/CleanupTarget.h"
#include "Platform/UserText.h"

#include <string>
#include <vector>

// How the catalog's tables spell a row: every built-in row is made through these.
namespace CatalogRows {

CleanupTarget paths(std::string id, std::string name, std::string symbol, std::string detail,
                    std::vector<std::string> list, CleanupCategory category);

// Command rows are all developer tools.
CleanupTarget command(std::string id, std::string name, std::string symbol, std::string detail,
                      std::string shell, std::vector<std::string> fallback);

// The detail line every browser cache row shares.
inline const std::string cachedWebData = QT_TRANSLATE_NOOP("CleanupCatalog", "Cached web data — pages reload as needed");

}  // namespace CatalogRows
