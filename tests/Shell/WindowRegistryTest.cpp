#include "Shell/WindowRegistry.h"

#include "Shell/ShellTestSupport.h"
#include "Support/ModelFixture.h"

#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>

#include <gtest/gtest.h>

namespace {

using namespace ShellTestSupport;

class WindowRegistryTest : public ModelFixture {
protected:
    WindowRegistryTest() { engine.addImportPath(QStringLiteral("qrc:/")); }

    static QPoint centreFor(const QQuickWindow& window)
    {
        QRect frame(QPoint(), window.size());
        frame.moveCenter(window.screen()->availableGeometry().center());
        return frame.topLeft();
    }

    QQmlEngine engine;
    WindowRegistry registry{engine, *model, testWindows()};
};

TEST_F(WindowRegistryTest, OpensEachIdOnceAndBringsTheOpenWindowForward)
{
    QQuickWindow* confirm = registry.open(QStringLiteral("confirm"));
    ASSERT_NE(confirm, nullptr);
    EXPECT_TRUE(confirm->isVisible());
    EXPECT_EQ(confirm->title(), QStringLiteral("Confirm Cleanup"));
    EXPECT_EQ(confirm->property("model").value<AppModel*>(), model.get());

    QQuickWindow* diskMap = registry.open(QStringLiteral("diskmap"));
    ASSERT_NE(diskMap, nullptr);
    ASSERT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == diskMap; }));

    EXPECT_EQ(registry.open(QStringLiteral("confirm")), confirm);
    EXPECT_EQ(windowsTitled(QStringLiteral("Confirm Cleanup")), 1);
    EXPECT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == confirm; }));
}

TEST_F(WindowRegistryTest, UnknownIdsAndMissingViewsOpenNothing)
{
    const auto before = QGuiApplication::topLevelWindows().size();
    EXPECT_EQ(registry.open(QStringLiteral("nosuchwindow")), nullptr);
    EXPECT_EQ(registry.open(QStringLiteral("about")), nullptr);
    EXPECT_EQ(registry.open(QString()), nullptr);
    EXPECT_EQ(QGuiApplication::topLevelWindows().size(), before);
}

TEST_F(WindowRegistryTest, FixedWindowsTakeTheirContentSizeAndResizableOnesTheirDefault)
{
    QQuickWindow* confirm = registry.open(QStringLiteral("confirm"));
    ASSERT_NE(confirm, nullptr);
    EXPECT_EQ(confirm->size(), QSize(320, 200));
    EXPECT_EQ(confirm->minimumSize(), QSize(320, 200));
    EXPECT_EQ(confirm->maximumSize(), QSize(320, 200));

    // Content that grows takes the window with it.
    auto* content = confirm->contentItem()->childItems().first();
    content->setImplicitHeight(260);
    EXPECT_EQ(confirm->maximumSize(), QSize(320, 260));
    EXPECT_EQ(confirm->size(), QSize(320, 260));

    QQuickWindow* diskMap = registry.open(QStringLiteral("diskmap"));
    ASSERT_NE(diskMap, nullptr);
    EXPECT_EQ(diskMap->size(), QSize(760, 560));
    EXPECT_NE(diskMap->minimumSize(), diskMap->maximumSize());
}

TEST_F(WindowRegistryTest, ClosedWindowIsDestroyedAndTheNextOpenBuildsAFreshOne)
{
    QPointer<QQuickWindow> first = registry.open(QStringLiteral("confirm"));
    ASSERT_TRUE(first);
    first->close();
    ASSERT_TRUE(eventually([&] { return first.isNull(); }));
    EXPECT_EQ(registry.window(QStringLiteral("confirm")), nullptr);

    QQuickWindow* second = registry.open(QStringLiteral("confirm"));
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(second->isVisible());
    EXPECT_EQ(windowsTitled(QStringLiteral("Confirm Cleanup")), 1);
}

TEST_F(WindowRegistryTest, OnlyWindowsThatAreNotRecentredReopenWhereTheyWereLeft)
{
    QQuickWindow* confirm = registry.open(QStringLiteral("confirm"));
    QQuickWindow* diskMap = registry.open(QStringLiteral("diskmap"));
    ASSERT_TRUE(confirm && diskMap);
    EXPECT_EQ(confirm->position(), centreFor(*confirm));
    EXPECT_EQ(diskMap->position(), centreFor(*diskMap));

    confirm->setPosition(40, 50);
    diskMap->setGeometry(60, 70, 900, 600);
    settle();
    confirm->close();
    diskMap->close();
    settle();

    confirm = registry.open(QStringLiteral("confirm"));
    diskMap = registry.open(QStringLiteral("diskmap"));
    ASSERT_TRUE(confirm && diskMap);
    EXPECT_EQ(confirm->position(), centreFor(*confirm));
    EXPECT_EQ(diskMap->geometry(), QRect(60, 70, 900, 600));
}

TEST_F(WindowRegistryTest, TheApplicationsWindowsOpenWithTheirTitlesAndFixedSizes)
{
    WindowRegistry application(engine, *model, applicationWindows());
    model->requestCleanAll();
    struct Case {
        const char* id;
        const char* title;
        QSize size;  // empty: whatever its content asks for
    };
    for (const Case& c : {Case{"confirm", "Confirm Cleanup", {}},
                          Case{"snapshots", "Free Up Snapshot Space", {520, 510}},
                          Case{"appupdates", "App & Tool Updates", {520, 480}},
                          Case{"startup", "Startup & Background Items", {520, 480}},
                          Case{"projectcleanup", "Project Cleanup", {640, 520}},
                          Case{"largefiles", "Large & Duplicate Files", {}},
                          Case{"uninstaller", "Uninstall an App", {460, 520}},
                          Case{"about", "About Mopwell", {440, 480}}}) {
        QQuickWindow* window = application.open(QString::fromLatin1(c.id));
        ASSERT_NE(window, nullptr) << c.id;
        EXPECT_EQ(window->title(), QString::fromUtf8(c.title));
        EXPECT_FALSE(window->size().isEmpty()) << c.id;
        if (!c.size.isEmpty()) {
            EXPECT_EQ(window->size(), c.size) << c.id;
        }
        EXPECT_EQ(window->minimumSize(), window->maximumSize()) << c.id;
        EXPECT_EQ(application.open(QString::fromLatin1(c.id)), window) << c.id;
    }
}

}  // namespace
