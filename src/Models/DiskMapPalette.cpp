#include "Models/DiskMapPalette.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace DiskMapPalette {

FileCategoryColor fromHsb(double hue, double saturation, double brightness)
{
    const double h = (hue - std::floor(hue)) * 6.0;
    const double chroma = brightness * saturation;
    const double x = chroma * (1.0 - std::fabs(std::fmod(h, 2.0) - 1.0));
    const double m = brightness - chroma;
    double r = 0, g = 0, b = 0;
    switch (static_cast<int>(h)) {
    case 0: r = chroma, g = x; break;
    case 1: r = x, g = chroma; break;
    case 2: g = chroma, b = x; break;
    case 3: g = x, b = chroma; break;
    case 4: r = x, b = chroma; break;
    default: r = chroma, b = x; break;
    }
    return {r + m, g + m, b + m};
}

FileCategoryColor ageColor(std::optional<Clock::TimePoint> modified, Clock::TimePoint now)
{
    if (!modified)
        return grey;
    constexpr double secondsPerYear = 86'400.0 * 365.0;
    const double seconds = std::chrono::duration<double>(now - *modified).count();
    const double years = std::clamp(seconds / secondsPerYear, 0.0, 1.0);
    return fromHsb((1.0 - years) * 0.33, 0.62, 0.82);
}

FileCategoryColor color(const DiskNode& node, DiskColorMode mode, Clock::TimePoint now)
{
    if (node.isSynthetic())
        return grey;
    if (mode == DiskColorMode::age)
        return ageColor(node.modified(), now);
    return FileCategories::color(node.category());
}

}  // namespace DiskMapPalette
