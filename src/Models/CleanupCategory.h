#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The sections targets are listed in. The raw value doubles as the section heading.
enum class CleanupCategory { recommended, browsers, developer, buildArtifacts, custom };

namespace CleanupCategories {

inline constexpr std::array<CleanupCategory, 5> all = {
    CleanupCategory::recommended, CleanupCategory::browsers, CleanupCategory::developer,
    CleanupCategory::buildArtifacts, CleanupCategory::custom};

std::string_view rawValue(CleanupCategory category);
std::optional<CleanupCategory> fromRawValue(std::string_view raw);

}  // namespace CleanupCategories
