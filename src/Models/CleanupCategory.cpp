#include "Models/CleanupCategory.h"

#include "Models/RawValueLookup.h"
#include "Platform/UserText.h"

namespace CleanupCategories {

std::string_view rawValue(CleanupCategory category)
{
    switch (category) {
    // Also the panel's headings, translated under their context.
    case CleanupCategory::recommended: return QT_TRANSLATE_NOOP("CleanupCategory", "Recommended");
    case CleanupCategory::browsers: return QT_TRANSLATE_NOOP("CleanupCategory", "Browser caches");
    case CleanupCategory::developer: return QT_TRANSLATE_NOOP("CleanupCategory", "Developer caches");
    case CleanupCategory::buildArtifacts: return QT_TRANSLATE_NOOP("CleanupCategory", "Build artifacts");
    case CleanupCategory::custom: return QT_TRANSLATE_NOOP("CleanupCategory", "Custom folders");
    }
    return {};
}

std::optional<CleanupCategory> fromRawValue(std::string_view raw)
{
    return caseForRawValue(all, rawValue, raw);
}

}  // namespace CleanupCategories
