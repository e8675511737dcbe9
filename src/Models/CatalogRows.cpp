#include "Models/CatalogRows.h"

namespace CatalogRows {

CleanupTarget paths(std::string id, std::string name, std::string symbol, std::string detail,
                    std::vector<std::string> list, CleanupCategory category)
{
    return {std::move(id), std::move(name), std::move(symbol), std::move(detail),
            PathsKind{std::move(list), {}}, category, true};
}

CleanupTarget command(std::string id, std::string name, std::string symbol, std::string detail,
                      std::string shell, std::vector<std::string> fallback)
{
    return {std::move(id), std::move(name), std::move(symbol), std::move(detail),
            CommandKind{std::move(shell), std::move(fallback)}, CleanupCategory::developer, true};
}

}  // namespace CatalogRows
