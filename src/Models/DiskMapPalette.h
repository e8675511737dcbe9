#pragma once

#include "Models/DiskColorMode.h"
#include "Models/DiskNode.h"
#include "Models/FileCategory.h"
#include "Platform/Clock.h"

#include <optional>

// The colour of a disk-map tile and of its swatch in the list, so both always agree.
namespace DiskMapPalette {

// What an item with no colour of its own gets: the folded small items, an item without a date.
inline constexpr FileCategoryColor grey{0.5, 0.5, 0.5};

// Hue, saturation and brightness, each from 0 to 1, as an sRGB colour.
FileCategoryColor fromHsb(double hue, double saturation, double brightness);

// A continuous scale from green (changed just now, or dated in the future) to red (a year old
// or more); grey without a date.
FileCategoryColor ageColor(std::optional<Clock::TimePoint> modified, Clock::TimePoint now);

FileCategoryColor color(const DiskNode& node, DiskColorMode mode, Clock::TimePoint now);

}  // namespace DiskMapPalette
