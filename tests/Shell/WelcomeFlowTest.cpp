#include "Shell/WelcomeFlow.h"

#include "Shell/MopwellApp.h"
#include "Shell/ShellTestSupport.h"
#include "Support/ModelFixture.h"
#include "Views/Components/Shell.h"

#include <QMetaObject>
#include <QScreen>

#include <gtest/gtest.h>

namespace {

using namespace ShellTestSupport;

const QRect screen(0, 0, 1280, 800);

TEST(WelcomeFlowPlacement, TheWelcomeAndTheBubbleLeaveTheStatusIconInReach)
{
    struct Case {
        const char* desktop;
        QRect available;
        QRect item;
        QRect welcome;     // where the welcome goes
        QRect strip;       // where the bubble's strip goes
        qreal iconX;
        bool pointsUp;
    };
    // The icon's x is its frame's centre, rounded down as QRect does.
    const Case cases[] = {
        // A top panel that reserves its room: the work area already leaves it out.
        {"top panel", {0, 26, 1280, 774}, {1200, 0, 24, 26}, {0, 26, 1280, 774}, {0, 26, 1280, 200}, 1211, true},
        // A bare X server or a panel that reserves nothing: the icon's band is left out anyway.
        {"no reserved room", screen, {1200, 0, 24, 26}, {0, 26, 1280, 774}, {0, 26, 1280, 200}, 1211, true},
        // A bottom panel: the bubble sits just above the icon and points down.
        {"bottom panel", {0, 0, 1280, 760}, {900, 764, 32, 32}, {0, 0, 1280, 760}, {0, 560, 1280, 200}, 915, false},
        {"bottom, no reserved room", screen, {900, 764, 32, 32}, {0, 0, 1280, 764}, {0, 564, 1280, 200}, 915, false},
        // The desktop doesn't say where the icon is: near the right end of the top.
        {"unknown icon", {0, 30, 1280, 770}, {}, {0, 30, 1280, 770}, {0, 30, 1280, 200}, 1160, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.desktop);
        EXPECT_EQ(WelcomeFlow::clearOfStatusItem(screen, c.available, c.item), c.welcome);
        const WelcomeFlow::CoachMarkPlacement placement = WelcomeFlow::placeCoachMark(screen, c.available, c.item);
        EXPECT_EQ(placement.strip, c.strip);
        EXPECT_EQ(placement.iconX, c.iconX);
        EXPECT_EQ(placement.pointsUp, c.pointsUp);
        if (c.item.isValid()) {
            EXPECT_FALSE(placement.strip.intersects(c.item));
            EXPECT_FALSE(c.welcome.intersects(c.item));
        }
    }
}

// The application's own welcome and bubble, over a model in a temporary home.
class WelcomeFlowTest : public ModelFixture {
protected:
    WelcomeFlowTest() { flow.setCoachMarkLifetime(600); }

    static void finish(QQuickWindow* welcome) { QMetaObject::invokeMethod(welcome, "finished"); }

    QQmlEngine engine;
    QRect item;  // where the desktop has put the status icon so far
    WelcomeFlow flow{engine, *model, MopwellApp::Views::application().welcome, [this] { return item; }};
};

TEST_F(WelcomeFlowTest, AskingAgainBringsTheSameWelcomeForwardAndItMakesRoomForTheIconOnceItIsPlaced)
{
    engine.addImportPath(QStringLiteral("qrc:/"));
    flow.showOnboarding();
    QQuickWindow* welcome = flow.onboardingWindow();
    ASSERT_NE(welcome, nullptr);
    EXPECT_TRUE(welcome->isVisible());
    EXPECT_EQ(welcome->title(), "Welcome to Mopwell");
    // At launch the welcome comes up before the desktop has embedded the icon.
    const QScreen& screen = *QGuiApplication::primaryScreen();
    EXPECT_EQ(welcome->geometry(), screen.availableGeometry());
    item = QRect(screen.geometry().right() - 23, screen.geometry().top(), 24, 26);
    EXPECT_TRUE(eventually([&] { return !welcome->geometry().intersects(item); }));
    EXPECT_EQ(welcome->geometry(), WelcomeFlow::clearOfStatusItem(screen.geometry(), screen.availableGeometry(), item));
    flow.showOnboarding();
    EXPECT_EQ(flow.onboardingWindow(), welcome);
    EXPECT_EQ(windowsTitled(QStringLiteral("Welcome to Mopwell")), 1);
}

TEST_F(WelcomeFlowTest, FinishingClosesTheWelcomeAndPointsAtTheIconForAWhile)
{
    engine.addImportPath(QStringLiteral("qrc:/"));
    flow.showOnboarding();
    QPointer<QQuickWindow> welcome = flow.onboardingWindow();
    ASSERT_NE(welcome, nullptr);
    finish(welcome);
    EXPECT_EQ(flow.onboardingWindow(), nullptr);
    EXPECT_TRUE(!welcome || !welcome->isVisible());
    QPointer<QQuickWindow> bubble = flow.coachMarkWindow();
    ASSERT_NE(bubble, nullptr);
    EXPECT_TRUE(bubble->isVisible());
    // A second bubble isn't stacked on the first; the first goes away by itself.
    flow.showMenuBarCoachMark();
    EXPECT_EQ(flow.coachMarkWindow(), bubble);
    EXPECT_TRUE(eventually([&] { return flow.coachMarkWindow() == nullptr; }));

    // Dismissed by the user before its time, a later bubble is not cut short by the first's timer.
    flow.showMenuBarCoachMark();
    QThread::msleep(400);
    flow.dismissCoachMark();
    flow.dismissCoachMark();  // twice is harmless
    flow.showMenuBarCoachMark();
    QPointer<QQuickWindow> later = flow.coachMarkWindow();
    ASSERT_NE(later, nullptr);
    QThread::msleep(300);  // past the first one's end, well before the later one's
    settle();
    EXPECT_EQ(flow.coachMarkWindow(), later);
}

TEST_F(WelcomeFlowTest, TheApplicationWelcomesOnlyUntilTheWelcomeIsDone)
{
    for (const bool completed : {false, true}) {
        SCOPED_TRACE(completed ? "completed" : "first start");
        settings.setHasCompletedOnboarding(completed);
        MopwellApp app{*model, {testView("PanelWindow.qml"), testWindows(), MopwellApp::Views::application().welcome}};
        app.launch();
        EXPECT_EQ(app.welcome().onboardingWindow() != nullptr, !completed);
        EXPECT_EQ(app.welcome().coachMarkWindow(), nullptr);
        // Settings' "Show welcome screen…" brings it up either way.
        Shell::instance().post(QStringLiteral("mopwell.showOnboarding"));
        EXPECT_TRUE(eventually([&] { return app.welcome().onboardingWindow() != nullptr; }));
        EXPECT_EQ(windowsTitled(QStringLiteral("Welcome to Mopwell")), 1);
    }
}

}  // namespace
