#include "Models/Treemap.h"

#include <algorithm>
#include <limits>

namespace Treemap {
namespace {

struct Item {
    std::size_t index;
    double area;
};

using Row = std::vector<Item>;

// The free space and the tiles placed so far, shared by the two steps of one layout.
struct Layout {
    Rect remaining;
    std::vector<Tile> tiles;

    // The worst aspect ratio in `row` if it were laid along a side of length `side`; the
    // largest double when the row could not be laid at all.
    static double worst(const Row& row, double side)
    {
        constexpr double unusable = std::numeric_limits<double>::max();
        if (row.empty() || !(side > 0))
            return unusable;
        double sum = 0;
        double maxArea = row.front().area;
        double minArea = row.front().area;
        for (const Item& item : row) {
            sum += item.area;
            maxArea = std::max(maxArea, item.area);
            minArea = std::min(minArea, item.area);
        }
        if (!(sum > 0))
            return unusable;
        return std::max(side * side * maxArea / (sum * sum), (sum * sum) / (side * side * minArea));
    }

    // Places `row` along the shorter side of the free space and takes it out of that space.
    void layoutRow(const Row& row)
    {
        double sum = 0;
        for (const Item& item : row)
            sum += item.area;
        if (row.empty() || !(sum > 0))
            return;
        if (remaining.height <= remaining.width) {
            // Wide or square: a column at the left edge.
            const double width = sum / remaining.height;
            double y = remaining.y;
            for (const Item& item : row) {
                const double height = (item.area / sum) * remaining.height;
                tiles.push_back({item.index, {remaining.x, y, width, height}});
                y += height;
            }
            remaining = {remaining.x + width, remaining.y, remaining.width - width, remaining.height};
        } else {
            // Tall: a strip along the top edge.
            const double height = sum / remaining.width;
            double x = remaining.x;
            for (const Item& item : row) {
                const double width = (item.area / sum) * remaining.width;
                tiles.push_back({item.index, {x, remaining.y, width, height}});
                x += width;
            }
            remaining = {remaining.x, remaining.y + height, remaining.width, remaining.height - height};
        }
    }
};

}  // namespace

std::vector<Tile> layout(std::span<const std::int64_t> sizes, Rect rect)
{
    std::int64_t total = 0;
    for (std::int64_t size : sizes) {
        if (size > 0)
            total += size;
    }
    if (total < 1 || !(rect.width > 1) || !(rect.height > 1))
        return {};

    // Scaled so the areas add up to the rectangle's.
    const double scale = rect.width * rect.height / static_cast<double>(total);
    Row items;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        if (sizes[i] > 0)
            items.push_back({i, scale * static_cast<double>(sizes[i])});
    }

    Layout state{rect, {}};
    Row row;
    std::size_t i = 0;
    while (i < items.size()) {
        const double side = std::min(state.remaining.width, state.remaining.height);
        if (row.empty()) {
            row.push_back(items[i++]);
            continue;
        }
        Row extended = row;
        extended.push_back(items[i]);
        // An equal ratio still extends the row.
        if (Layout::worst(extended, side) <= Layout::worst(row, side)) {
            row = std::move(extended);
            ++i;
        } else {
            // The same item is tried again against what is left, with a fresh side.
            state.layoutRow(row);
            row.clear();
        }
    }
    if (!row.empty())
        state.layoutRow(row);
    return std::move(state.tiles);
}

}  // namespace Treemap
