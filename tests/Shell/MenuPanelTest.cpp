#include "Shell/MenuPanel.h"

#include "Shell/ShellTestSupport.h"
#include "Support/ModelFixture.h"

#include <QQmlEngine>
#include <QScreen>

#include <gtest/gtest.h>

namespace {

using namespace ShellTestSupport;

class MenuPanelTest : public ModelFixture {
protected:
    MenuPanelTest() { engine.addImportPath(QStringLiteral("qrc:/")); }

    bool shown() const { return panel.window() && panel.window()->isVisible(); }

    // Another window taking the focus, as when the user clicks elsewhere.
    void focusElsewhere()
    {
        other.show();
        other.requestActivate();
    }

    const QRect item{QRect(600, 0, 22, 24)};
    QQmlEngine engine;
    MenuPanel panel{engine, *model, testView("PanelWindow.qml"), MenuPanel::Style::dropDown};
    QWindow other;
};

TEST_F(MenuPanelTest, DropsFramelessUnderTheItemSetsTheModelGoingAndTogglesWithClicks)
{
    EXPECT_EQ(panel.window(), nullptr);  // nothing is built before it is needed
    panel.showUnder(item);
    ASSERT_TRUE(shown());
    QQuickWindow& window = *panel.window();
    EXPECT_TRUE(window.flags() & Qt::FramelessWindowHint);
    EXPECT_EQ(window.width(), MenuPanel::width);
    EXPECT_EQ(window.position(), QPoint(610 - MenuPanel::width / 2, 24));
    EXPECT_TRUE(model->didStart());

    // Clicks on the item toggle it.
    panel.toggle(item);
    EXPECT_FALSE(shown());
    panel.toggle(item);
    EXPECT_TRUE(shown());
    // A double click leaves it as its first press did, unless a second start showed it since.
    panel.toggle(item, true);
    EXPECT_TRUE(shown());
    panel.toggle(item);
    panel.showUnder(item);
    panel.toggle(item, true);
    EXPECT_FALSE(shown());
}

TEST_F(MenuPanelTest, GoesAwayWhenItLosesFocusAndTheClickThatTookItDoesNotReopenIt)
{
    panel.showUnder(item);
    ASSERT_TRUE(eventually([&] { return panel.window()->isActive(); }));
    focusElsewhere();
    ASSERT_TRUE(eventually([&] { return !shown(); }));

    // The click on the item arrives just after it took the focus away.
    panel.toggle(item);
    EXPECT_FALSE(shown());
    // A later click opens it again.
    QThread::msleep(400);
    panel.toggle(item);
    EXPECT_TRUE(shown());
}

}  // namespace
