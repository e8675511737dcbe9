#include "Models/DiskMapGeometry.h"

#include <algorithm>

namespace DiskMapGeometry {

Treemap::Rect inner(const Treemap::Rect& tile)
{
    return {tile.x + 1, tile.y + 1, tile.width - 2, tile.height - 2};
}

double cornerRadius(const Treemap::Rect& inner)
{
    return std::min(inner.height / 3.0, 5.0);
}

bool isDrawn(const Treemap::Rect& inner)
{
    return inner.width > 0 && inner.height > 0;
}

bool showsName(const Treemap::Rect& inner)
{
    return inner.width > 52 && inner.height > 24;
}

bool showsSize(const Treemap::Rect& inner)
{
    return showsName(inner) && inner.height > 38;
}

std::optional<Treemap::Tile> tileAt(Point point, std::span<const Treemap::Tile> tiles)
{
    for (const Treemap::Tile& tile : tiles) {
        const Treemap::Rect& r = tile.rect;
        if (point.x >= r.x && point.x < r.x + r.width && point.y >= r.y && point.y < r.y + r.height)
            return tile;
    }
    return std::nullopt;
}

Point tooltipCentre(Point pointer, double areaWidth)
{
    const double right = std::max(90.0, areaWidth - 90.0);
    return {std::clamp(pointer.x, 90.0, right), std::max(pointer.y - 30.0, 24.0)};
}

}  // namespace DiskMapGeometry
