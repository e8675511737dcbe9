#include "Models/DiskColorMode.h"
#include "Models/DiskMapGeometry.h"
#include "Models/DiskMapPalette.h"

#include <gtest/gtest.h>

#include <chrono>
#include <vector>

using namespace std::chrono_literals;
using DiskMapGeometry::Point;
using Treemap::Rect;

namespace {

constexpr auto day = 24h;
const Clock::TimePoint now = Clock::TimePoint(1'800'000'000s);

DiskNode file(std::optional<Clock::TimePoint> modified, FileCategory category = FileCategory::video)
{
    return DiskNode("/h/a.mov", "a.mov", 10, false, category, modified, false, {});
}

void expectColor(FileCategoryColor actual, FileCategoryColor expected)
{
    EXPECT_NEAR(actual.red, expected.red, 1e-9);
    EXPECT_NEAR(actual.green, expected.green, 1e-9);
    EXPECT_NEAR(actual.blue, expected.blue, 1e-9);
}

}  // namespace

TEST(DiskMapPalette, AgeRunsFromGreenToRedAndStopsAtAYear)
{
    using DiskMapPalette::ageColor;
    using DiskMapPalette::fromHsb;
    expectColor(ageColor(now, now), fromHsb(0.33, 0.62, 0.82));
    expectColor(ageColor(now + 30 * day, now), fromHsb(0.33, 0.62, 0.82));  // dated in the future
    expectColor(ageColor(now - 365 * day, now), fromHsb(0, 0.62, 0.82));
    expectColor(ageColor(now - 3650 * day, now), ageColor(now - 365 * day, now));
    // Continuous, not in steps: half a year is half-way round to red.
    expectColor(ageColor(now - std::chrono::duration_cast<Clock::TimePoint::duration>(182.5 * day), now),
                fromHsb(0.165, 0.62, 0.82));
    expectColor(ageColor(std::nullopt, now), DiskMapPalette::grey);
    // Hue 0 is pure red at this saturation and brightness: only the red channel is full.
    expectColor(fromHsb(0, 0.62, 0.82), {0.82, 0.82 * 0.38, 0.82 * 0.38});
}

TEST(DiskMapPalette, SyntheticAndUndatedItemsStayGreyInAgeMode)
{
    DiskNode folded = file(now);
    folded.setSynthetic(true);
    for (DiskColorMode mode : DiskColorModes::all)
        expectColor(DiskMapPalette::color(folded, mode, now), DiskMapPalette::grey);
    expectColor(DiskMapPalette::color(file(std::nullopt), DiskColorMode::age, now), DiskMapPalette::grey);
    expectColor(DiskMapPalette::color(file(std::nullopt), DiskColorMode::type, now),
                FileCategories::color(FileCategory::video));
    EXPECT_EQ(DiskColorModes::fromRawValue("age"), DiskColorMode::age);
    EXPECT_EQ(DiskColorModes::fromRawValue("Age"), std::nullopt);
}

TEST(DiskMapGeometry, TextAndCornersFollowTheTileSize)
{
    using namespace DiskMapGeometry;
    EXPECT_EQ(inner({10, 20, 55, 27}), (Rect{11, 21, 53, 25}));
    EXPECT_TRUE(showsName({0, 0, 53, 25}));
    EXPECT_FALSE(showsSize({0, 0, 53, 25}));
    EXPECT_FALSE(showsName({0, 0, 52, 25}));
    EXPECT_FALSE(showsName({0, 0, 53, 24}));
    EXPECT_TRUE(showsSize({0, 0, 53, 39}));
    EXPECT_FALSE(showsSize({0, 0, 52, 200}));
    EXPECT_DOUBLE_EQ(cornerRadius({0, 0, 40, 3}), 1);
    EXPECT_DOUBLE_EQ(cornerRadius({0, 0, 40, 400}), 5);
    EXPECT_FALSE(isDrawn(inner({0, 0, 2, 50})));
    EXPECT_TRUE(isDrawn(inner({0, 0, 2.5, 50})));
}

TEST(DiskMapGeometry, FindsOneTileAtAPointAndNoneInAGap)
{
    const std::vector<Treemap::Tile> tiles{{0, {0, 0, 50, 100}}, {1, {50, 0, 50, 60}}};
    EXPECT_EQ(DiskMapGeometry::tileAt({10, 10}, tiles)->index, 0u);
    EXPECT_EQ(DiskMapGeometry::tileAt({50, 10}, tiles)->index, 1u);  // the shared edge
    EXPECT_EQ(DiskMapGeometry::tileAt({70, 80}, tiles), std::nullopt);
}

TEST(DiskMapGeometry, KeepsTheTooltipInsideTheMapNearEveryEdge)
{
    using DiskMapGeometry::tooltipCentre;
    EXPECT_EQ(tooltipCentre({5, 5}, 400), (Point{90, 24}));
    EXPECT_EQ(tooltipCentre({399, 300}, 400), (Point{310, 270}));
    EXPECT_EQ(tooltipCentre({200, 54}, 400), (Point{200, 24}));
    for (double x : {0.0, 45.0, 90.0, 135.0, 180.0}) {
        const Point centre = tooltipCentre({x, 0}, 180);
        EXPECT_GE(centre.x - 90, 0);
        EXPECT_LE(centre.x + 90, 180);
    }
}
