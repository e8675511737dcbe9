#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// The squarified treemap: lays sizes out as rectangles whose areas are proportional to them,
// filling the free space row by row along its shorter side and keeping each row as close to
// square as it gets. Pure and stateless, so it may run on any thread.
namespace Treemap {

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rect&) const = default;
};

// Where one item lies, in the coordinates of the rectangle it was laid out in. `index` is the
// item's position in the list given to layout(), so the caller can pair the tile with its node.
struct Tile {
    std::size_t index = 0;
    Rect rect;
    bool operator==(const Tile&) const = default;
};

// One tile per size above 0, in input order; sizes of 0 or below get none and the others still
// fill the whole rectangle. The order decides the packing and nothing is sorted here: callers
// pass the largest first. Empty when nothing is left to show or when either side of `rect` is
// not above 1.
std::vector<Tile> layout(std::span<const std::int64_t> sizes, Rect rect);

}  // namespace Treemap
