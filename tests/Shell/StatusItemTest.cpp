#include "Shell/StatusItem.h"

#include "Support/AppModelTestAccess.h"
#include "Support/ModelFixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr std::int64_t gigabyte = 1'000'000'000;

class StatusItemFixture : public ModelFixture {
protected:
    void setAvailable(std::int64_t available) { AppModelTestAccess::setDisk(*model, {100 * gigabyte, available}); }
};

class StatusItemTest : public StatusItemFixture {
protected:
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

    StatusItem item{*model, PlatformProfile::macOS};
};

TEST_F(StatusItemTest, TheWarningSymbolIsDrawnOnlyStrictlyBelowTheThreshold)
{
    settings.setLowSpaceThresholdGB(10);
    setAvailable(10 * gigabyte);
    const QImage plain = item.image();
    setAvailable(10 * gigabyte - 1);
    EXPECT_EQ(item.symbol(), StatusItem::lowSpaceSymbol);
    EXPECT_NE(item.image(), plain);
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

// A Linux status area: a square slot, where the gauge stands in for the symbol and the text.
class StatusGaugeTest : public StatusItemFixture {
protected:
    // The pixel on the ring's centre line at `turn` (0 at the top, 0.5 at the bottom, clockwise).
    static QColor ringPixel(const QImage& image, int size, double turn)
    {
        const double width = size * 0.19, radius = size / 2.0 - size / 16.0 - width / 2.0;
        const double angle = turn * 2 * M_PI;
        const int x = static_cast<int>(std::floor(size / 2.0 + radius * std::sin(angle)));
        const int y = static_cast<int>(std::floor(size / 2.0 - radius * std::cos(angle)));
        return image.pixelColor(x, y);
    }
    static bool near(const QColor& a, const QColor& b)
    {
        return a.alpha() > 200 && std::abs(a.red() - b.red()) < 40 && std::abs(a.green() - b.green()) < 40 &&
               std::abs(a.blue() - b.blue()) < 40;
    }
    // Opaque pixels in the ring's hole, where only the warning symbol is drawn.
    static int pixelsInTheHole(const QImage& image, int size)
    {
        int count = 0;
        const int from = size * 3 / 8, to = size - from;
        for (int y = from; y < to; ++y) {
            for (int x = from; x < to; ++x)
                count += image.pixelColor(x, y).alpha() > 128;
        }
        return count;
    }

    StatusItem item{*model, PlatformProfile::linuxDesktop};
};

TEST_F(StatusGaugeTest, TheRingFillsWithTheUsedShareInThePanelsColoursAtEveryTraySize)
{
    struct Case {
        std::int64_t available;
        int percent;
        const char* band;
    };
    settings.setLowSpaceThresholdGB(1);
    for (const Case& c : {Case{60 * gigabyte, 40, "green"}, Case{20 * gigabyte, 80, "orange"}, Case{5 * gigabyte, 95, "red"}}) {
        setAvailable(c.available);
        ASSERT_EQ(item.gauge().percent, c.percent);
        ASSERT_EQ(item.gauge().band, c.band);
        for (const int size : {16, 22, 24}) {
            const QImage image = StatusItem::drawGauge(item.gauge(), size, 1.0);
            ASSERT_EQ(image.size(), QSize(size, size));
            const QColor band = StatusItem::bandColor(c.band, item.gauge().dark);
            const double filled = c.percent / 100.0;
            EXPECT_TRUE(near(ringPixel(image, size, filled / 2), band)) << c.percent << "% at " << size << " px";
            if (c.percent <= 80) {
                EXPECT_FALSE(near(ringPixel(image, size, (filled + 1) / 2), band)) << c.percent << "% at " << size;
                EXPECT_GT(ringPixel(image, size, (filled + 1) / 2).alpha(), 40) << "the track shows the rest";
            }
            EXPECT_EQ(pixelsInTheHole(image, size), 0) << "no warning while there is room";
        }
    }
}

TEST_F(StatusGaugeTest, TheWarningSymbolSitsInTheRingOnlyStrictlyBelowTheThreshold)
{
    settings.setLowSpaceThresholdGB(10);
    setAvailable(10 * gigabyte);
    EXPECT_FALSE(item.gauge().low);
    EXPECT_EQ(item.symbol(), StatusItem::normalSymbol);
    setAvailable(10 * gigabyte - 1);
    EXPECT_TRUE(item.gauge().low);
    EXPECT_EQ(item.symbol(), StatusItem::lowSpaceSymbol);
    for (const int size : {16, 22, 24})
        EXPECT_GT(pixelsInTheHole(StatusItem::drawGauge(item.gauge(), size, 1.0), size), 3) << size << " px";

    // Whatever the display setting, and whether or not alerts are on; a lower threshold at once.
    settings.setMenuBarDisplay(MenuBarDisplay::icon);
    settings.setLowSpaceAlertsEnabled(false);
    EXPECT_TRUE(item.gauge().low);
    settings.setLowSpaceThresholdGB(5);
    EXPECT_EQ(item.symbol(), StatusItem::normalSymbol);
}

TEST_F(StatusGaugeTest, ItDrawsAgainOnlyWhenWhatItShowsChangesAndKeepsTheTextInTheTooltip)
{
    setAvailable(40 * gigabyte);
    EXPECT_EQ(item.toolTip(), QStringLiteral("60%"));
    const int draws = item.drawCount();
    setAvailable(40 * gigabyte - 1000);  // the same whole percent
    settings.setMenuBarDisplay(MenuBarDisplay::free);
    EXPECT_EQ(item.drawCount(), draws);
    EXPECT_EQ(item.toolTip(), model->menuBarText());
    EXPECT_NE(item.toolTip(), QStringLiteral("60%"));

    setAvailable(30 * gigabyte);
    EXPECT_EQ(item.drawCount(), draws + 1);
    EXPECT_EQ(item.gauge().percent, 70);
    EXPECT_EQ(item.image().deviceIndependentSize(), QSizeF(StatusItem::height, StatusItem::height));
    settings.setMenuBarDisplay(MenuBarDisplay::icon);
    EXPECT_EQ(item.toolTip(), QString());
}

}  // namespace
