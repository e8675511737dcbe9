#include "Shell/PanelPlacement.h"

#include <gtest/gtest.h>

namespace {

const QSize panel(380, 450);
const QRect screen(0, 0, 1280, 800);

TEST(PanelPlacementTest, DropsCentredFromTheItemAndStaysOnScreen)
{
    // Mid-screen item in a top bar: centred under it.
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(600, 0, 22, 24), std::nullopt, screen), QPoint(420, 24));
    // Item in the top-right corner: pushed left to stay on screen, still just under the item.
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(1257, 1, 22, 24), std::nullopt, screen), QPoint(900, 25));
    // Item in a bottom bar: the panel opens above it.
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(600, 776, 22, 24), std::nullopt, screen), QPoint(420, 326));
    // Taller than the screen: its top stays visible.
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(500, 376, 22, 24), std::nullopt, QRect(0, 0, 1024, 400)),
              QPoint(320, 0));
}

TEST(PanelPlacementTest, FallsBackToThePointerThenTheTopRightCorner)
{
    const QPoint pointer(100, 300);
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(), pointer, screen), QPoint(0, 301));
    // A known item wins over the pointer.
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(600, 0, 22, 24), pointer, screen), QPoint(420, 24));
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(), std::nullopt, screen), QPoint(900, 0));
    // The corner of the screen the panel goes on, not of the whole desktop.
    const QRect second(1280, 100, 1920, 1080);
    EXPECT_EQ(PanelPlacement::topLeft(panel, QRect(), std::nullopt, second), QPoint(2820, 100));
}

}  // namespace
