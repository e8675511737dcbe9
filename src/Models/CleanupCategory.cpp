#include "Models/CleanupCategory.h"

#include "Models/RawValueLookup.h"

namespace CleanupCategories {

std::string_view rawValue(CleanupCategory category)
{
    switch (category) {
    case CleanupCategory::recommended: return "Recommended";
    case CleanupCategory::browsers: return "Browser caches";
    case CleanupCategory::developer: return "Developer caches";
    case CleanupCategory::buildArtifacts: return "Build artifacts";
    case CleanupCategory::custom: return "Custom folders";
    }
    return {};
}

std::optional<CleanupCategory> fromRawValue(std::string_view raw)
{
    return caseForRawValue(all, rawValue, raw);
}

}  // namespace CleanupCategories
