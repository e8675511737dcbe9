#include "Shell/StatusItem.h"

#include "Support/AppModelTestAccess.h"
#include "Support/ModelFixture.h"

#include <gtest/gtest.h>

namespace {

constexpr std::int64_t gigabyte = 1'000'000'000;

class StatusItemTest : public ModelFixture {
protected:
    void setAvailable(std::int64_t available) { AppModelTestAccess::setDisk(*model, {100 * gigabyte, available}); }

    // True when some pixel right of the symbol's square is drawn.
    static bool drawsBesideTheSymbol(const QImage& image)
    {
        const int symbolEnd = qRound(StatusItem::height * image.devicePixelRatio());
        for (int y = 0; y < image.height(); ++y) {
            for (int x = symbolEnd; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 0)
                    return true;
            }
        }
        return false;
    }

    StatusItem item{*model};
};

TEST_F(StatusItemTest, WarningSymbolOnlyStrictlyBelowTheThreshold)
{
    settings.setLowSpaceThresholdGB(10);
    setAvailable(10 * gigabyte);
    EXPECT_EQ(item.symbol(), StatusItem::normalSymbol);
    const QImage plain = item.image();

    setAvailable(10 * gigabyte - 1);
    EXPECT_EQ(item.symbol(), StatusItem::lowSpaceSymbol);
    EXPECT_NE(item.image(), plain);

    // A lower threshold is followed at once.
    settings.setLowSpaceThresholdGB(5);
    EXPECT_EQ(item.symbol(), StatusItem::normalSymbol);

    // The warning doesn't depend on the text shown or on alerts being on.
    settings.setMenuBarDisplay(MenuBarDisplay::icon);
    settings.setLowSpaceAlertsEnabled(false);
    setAvailable(gigabyte);
    EXPECT_EQ(item.symbol(), StatusItem::lowSpaceSymbol);
}

TEST_F(StatusItemTest, TextIsDrawnBesideTheSymbolAndNothingForTheIconDisplay)
{
    setAvailable(40 * gigabyte);
    settings.setMenuBarDisplay(MenuBarDisplay::percent);
    const QImage withText = item.image();
    EXPECT_GT(withText.deviceIndependentSize().width(), StatusItem::height + StatusItem::spacing);
    EXPECT_TRUE(drawsBesideTheSymbol(withText));

    settings.setMenuBarDisplay(MenuBarDisplay::icon);
    const QImage bare = item.image();
    EXPECT_EQ(bare.deviceIndependentSize(), QSizeF(StatusItem::height, StatusItem::height));
    EXPECT_FALSE(bare.isNull());

    // A longer text makes a wider image.
    settings.setMenuBarDisplay(MenuBarDisplay::free);
    EXPECT_GT(item.image().width(), withText.width());
}

TEST_F(StatusItemTest, TooltipIsTheMenuBarTextAndFollowsTheModel)
{
    setAvailable(40 * gigabyte);
    EXPECT_EQ(item.toolTip(), model->menuBarText());
    EXPECT_EQ(item.toolTip(), QStringLiteral("60%"));
    setAvailable(25 * gigabyte);
    EXPECT_EQ(item.toolTip(), QStringLiteral("75%"));
    settings.setMenuBarDisplay(MenuBarDisplay::icon);
    EXPECT_EQ(item.toolTip(), QString());
}

}  // namespace
