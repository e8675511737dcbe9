#include "Views/Panel/MenuPanelModel.h"

#include <gtest/gtest.h>

TEST(MenuPanelModel, ListHeightFitsItsRowsUpToTheCap)
{
    EXPECT_EQ(MenuPanelModel::listHeightFor(0, 0), 44);        // never shorter than one row
    EXPECT_EQ(MenuPanelModel::listHeightFor(0, 1), 44 + 28);
    EXPECT_EQ(MenuPanelModel::listHeightFor(6, 2), 6 * 44 + 2 * 28);
    EXPECT_EQ(MenuPanelModel::listHeightFor(10, 2), 360);      // 496 wanted: capped, and it scrolls
}

TEST(MenuPanelModel, FreshnessCountsWholeSecondsMinutesAndHours)
{
    EXPECT_EQ(MenuPanelModel::freshness(false, std::nullopt), "");
    EXPECT_EQ(MenuPanelModel::freshness(true, 5), "Scanning…");
    EXPECT_EQ(MenuPanelModel::freshness(false, 0), "just now");
    EXPECT_EQ(MenuPanelModel::freshness(false, 9), "just now");
    EXPECT_EQ(MenuPanelModel::freshness(false, 10), "10s ago");
    EXPECT_EQ(MenuPanelModel::freshness(false, 59), "59s ago");
    EXPECT_EQ(MenuPanelModel::freshness(false, 60), "1m ago");
    EXPECT_EQ(MenuPanelModel::freshness(false, 3599), "59m ago");
    EXPECT_EQ(MenuPanelModel::freshness(false, 3600), "1h ago");
    EXPECT_EQ(MenuPanelModel::freshness(false, 86'399), "23h ago");
}

TEST(MenuPanelModel, RingColourFollowsTheUsedShare)
{
    EXPECT_EQ(MenuPanelModel::ringColorFor({0, 0}), "green");
    EXPECT_EQ(MenuPanelModel::ringColorFor({1000, 251}), "green");
    EXPECT_EQ(MenuPanelModel::ringColorFor({1000, 250}), "orange");  // exactly 0.75
    EXPECT_EQ(MenuPanelModel::ringColorFor({1000, 101}), "orange");
    EXPECT_EQ(MenuPanelModel::ringColorFor({1000, 100}), "red");     // exactly 0.9
    EXPECT_EQ(MenuPanelModel::usedFractionOf({1000, 2000}), 0.0);   // more free than total: nothing used
    EXPECT_EQ(MenuPanelModel::usedFractionOf({1000, -5}), 1.0);
}
