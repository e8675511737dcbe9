#pragma once

#include "Models/Treemap.h"

#include <optional>
#include <span>

// Where the disk map draws what: the rules that turn a laid-out tile into a shape with or
// without its labels, find the tile under the pointer and keep the tooltip inside the map.
namespace DiskMapGeometry {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

// The tile's rectangle less a 1-point gap on every side, so neighbours stay apart.
Treemap::Rect inner(const Treemap::Rect& tile);
// Rounder for taller tiles, at most 5 points.
double cornerRadius(const Treemap::Rect& inner);
// Drawing anything at all needs some area left after the gap.
bool isDrawn(const Treemap::Rect& inner);
// The name fits from 53 by 25 points, the size below it from 39 points of height.
bool showsName(const Treemap::Rect& inner);
bool showsSize(const Treemap::Rect& inner);

// The first tile containing the point; a tile owns its top and left edges, its neighbour the
// others, so a point on a shared edge finds exactly one.
std::optional<Treemap::Tile> tileAt(Point point, std::span<const Treemap::Tile> tiles);

// The tooltip's centre: above the pointer, never closer than 24 points to the top and held 90
// points in from either side, so a tooltip up to 180 points wide stays inside the map.
Point tooltipCentre(Point pointer, double areaWidth);

}  // namespace DiskMapGeometry
