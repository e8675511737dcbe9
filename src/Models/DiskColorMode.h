#pragma once

#include <array>
#include <optional>
#include <string_view>

// How the disk map colours its tiles: by the kind of content or by how long ago it changed.
enum class DiskColorMode { type, age };

namespace DiskColorModes {

inline constexpr std::array<DiskColorMode, 2> all = {DiskColorMode::type, DiskColorMode::age};

std::string_view rawValue(DiskColorMode mode);
std::optional<DiskColorMode> fromRawValue(std::string_view raw);
// Views hand the mode over as text; anything unknown colours by type.
DiskColorMode fromRawValueOrType(std::string_view raw);
// The English label, which is also the key the views translate it by.
std::string_view label(DiskColorMode mode);

}  // namespace DiskColorModes
