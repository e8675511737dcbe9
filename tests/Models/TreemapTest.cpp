#include "Models/Treemap.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <vector>

using Treemap::Rect;
using Treemap::Tile;

namespace {

std::vector<Tile> layout(const std::vector<std::int64_t>& sizes, Rect rect)
{
    return Treemap::layout(sizes, rect);
}

MATCHER_P2(IsTile, index, rect, "")
{
    constexpr double tolerance = 1e-9;
    return arg.index == static_cast<std::size_t>(index) && std::abs(arg.rect.x - rect.x) < tolerance &&
           std::abs(arg.rect.y - rect.y) < tolerance && std::abs(arg.rect.width - rect.width) < tolerance &&
           std::abs(arg.rect.height - rect.height) < tolerance;
}

double areaOf(const std::vector<Tile>& tiles)
{
    double sum = 0;
    for (const Tile& tile : tiles)
        sum += tile.rect.width * tile.rect.height;
    return sum;
}

}  // namespace

// The worked example of the squarified layout: rows {6, 6} and {4, 3}, then 2, 2 and 1 each on
// their own, alternating between columns and strips as the free space turns tall or wide: each
// row runs along the shorter side and stops growing where the next item would worsen it.
TEST(Treemap, LaysOutTheClassicExampleRowByRow)
{
    EXPECT_THAT(layout({6, 6, 4, 3, 2, 2, 1}, {0, 0, 6, 4}),
                ::testing::ElementsAre(IsTile(0, Rect{0, 0, 3, 2}), IsTile(1, Rect{0, 2, 3, 2}),
                                       IsTile(2, Rect{3, 0, 12.0 / 7, 7.0 / 3}),
                                       IsTile(3, Rect{3 + 12.0 / 7, 0, 9.0 / 7, 7.0 / 3}),
                                       IsTile(4, Rect{3, 7.0 / 3, 1.2, 5.0 / 3}),
                                       IsTile(5, Rect{4.2, 7.0 / 3, 1.2, 5.0 / 3}),
                                       IsTile(6, Rect{5.4, 7.0 / 3, 0.6, 5.0 / 3})));
}

TEST(Treemap, ARowGrowsWhileItsWorstRatioDoesNotWorsen)
{
    // Side 2, areas 2 and 2: one alone and both together have the same worst ratio, 2.
    EXPECT_THAT(layout({2, 2, 4}, {0, 0, 4, 2}),
                ::testing::ElementsAre(IsTile(0, Rect{0, 0, 2, 1}), IsTile(1, Rect{0, 1, 2, 1}),
                                       IsTile(2, Rect{2, 0, 2, 2})));
    // The smaller item would turn into a 4 by 1.33 sliver beside the larger, so it starts a row.
    EXPECT_THAT(layout({2, 1}, {0, 0, 4, 4}),
                ::testing::ElementsAre(IsTile(0, Rect{0, 0, 8.0 / 3, 4}), IsTile(1, Rect{8.0 / 3, 0, 4.0 / 3, 4})));
    // In a square the row stands at the left edge, so its items are stacked.
    EXPECT_THAT(layout({1, 1}, {10, 20, 2, 2}),
                ::testing::ElementsAre(IsTile(0, Rect{10, 20, 2, 1}), IsTile(1, Rect{10, 21, 2, 1})));
}

TEST(Treemap, ZeroSizesGetNoTileAndTheRestFillTheRectangle)
{
    const Rect rect{5, 7, 320, 180};
    const auto tiles = layout({0, 900, 0, 350, 120, -4, 77, 30, 30, 1, 0}, rect);
    std::vector<std::size_t> indices;
    for (const Tile& tile : tiles) {
        indices.push_back(tile.index);
        EXPECT_LE(tile.rect.x + tile.rect.width, rect.x + rect.width + 1e-9);
        EXPECT_LE(tile.rect.y + tile.rect.height, rect.y + rect.height + 1e-9);
    }
    EXPECT_THAT(indices, ::testing::ElementsAre(1, 3, 4, 6, 7, 8, 9));
    EXPECT_NEAR(areaOf(tiles), rect.width * rect.height, 1e-6);
    // Each tile's area is its share of the whole.
    EXPECT_NEAR(tiles[0].rect.width * tiles[0].rect.height, 320.0 * 180 * 900 / 1508, 1e-6);

    EXPECT_THAT(layout({0, 42, 0}, rect), ::testing::ElementsAre(IsTile(1, rect)));
}

TEST(Treemap, NothingToShowGivesNoTiles)
{
    EXPECT_TRUE(layout({}, {0, 0, 100, 100}).empty());
    EXPECT_TRUE(layout({0, 0}, {0, 0, 100, 100}).empty());
    EXPECT_TRUE(layout({5}, {0, 0, 1, 100}).empty());
    EXPECT_TRUE(layout({5}, {0, 0, 100, 1}).empty());
    EXPECT_THAT(layout({5}, {0, 0, 1.5, 1.5}), ::testing::ElementsAre(IsTile(0, Rect{0, 0, 1.5, 1.5})));
}
