#include "Shell/MopwellApp.h"

#include "Shell/MenuPanel.h"
#include "Platform/NotificationCenter.h"
#include "Services/Notifier.h"
#include "Shell/ShellTestSupport.h"
#include "Support/ModelFixture.h"
#include "Views/Components/Shell.h"
#include "Shell/WindowRegistry.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSystemTrayIcon>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using namespace ShellTestSupport;

// Where the tests run there is no status area, so launching shows the panel as a window.
class MopwellAppTest : public ModelFixture {
protected:
    QQuickWindow* confirmWindow() const { return app.windows().window(QStringLiteral("confirm")); }
    bool confirmationShown() const { return confirmWindow() && confirmWindow()->isVisible(); }

    // Runs the application's event loop with `action` queued; returns its exit code, or
    // `notQuit` when nothing ended it within a second.
    static int runWith(const std::function<void()>& action)
    {
        constexpr int notQuit = 42;
        QTimer watchdog;
        watchdog.setSingleShot(true);
        QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(notQuit); });
        watchdog.start(1000);
        QTimer::singleShot(0, action);
        return QCoreApplication::exec();
    }
    static constexpr int quitCode = 0;

    MopwellApp app{*model, {testView("PanelWindow.qml"), testWindows()}};
};

TEST_F(MopwellAppTest, OnlyALowSpaceTapAsksForTheConfirmation)
{
    emit Notifier::center().responded(QStringLiteral("AUTOCLEANUP"), NotificationCenter::defaultActionIdentifier);
    settle();
    EXPECT_FALSE(model->hasPendingClean());
    EXPECT_FALSE(confirmationShown());

    emit Notifier::center().responded(QLatin1String(Notifier::lowSpaceCategoryIdentifier),
                                      QLatin1String(Notifier::cleanNowActionIdentifier));
    EXPECT_TRUE(eventually([&] { return confirmationShown(); }));
    EXPECT_TRUE(model->hasPendingClean());
}

// A request to clean everything, from the views or the status item's menu, prepares the clean and
// brings the confirmation forward.
TEST_F(MopwellAppTest, ViewsReachTheShellFromQml)
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import Mopwell
        QtObject {
            Component.onCompleted: {
                Shell.openWindow("diskmap")
                Shell.post("mopwell.requestCleanAll")
            }
        })",
                      QUrl());
    std::unique_ptr<QObject> object(component.create());
    ASSERT_TRUE(object) << component.errorString().toStdString();
    EXPECT_TRUE(model->hasPendingClean());
    ASSERT_TRUE(confirmationShown());
    EXPECT_NE(app.windows().window(QStringLiteral("diskmap")), nullptr);
    EXPECT_TRUE(eventually([&] { return QGuiApplication::focusWindow() == confirmWindow(); }));

    Shell::instance().closeWindow(QStringLiteral("diskmap"));
    EXPECT_TRUE(eventually([&] { return !app.windows().window(QStringLiteral("diskmap")); }));
}

TEST_F(MopwellAppTest, WithoutAStatusAreaThePanelIsAWindowThatStartsTheModel)
{
    ASSERT_FALSE(QSystemTrayIcon::isSystemTrayAvailable());
    EXPECT_FALSE(model->didStart());
    app.launch();
    QQuickWindow* panel = app.panel().window();
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->width(), MenuPanel::width);
    EXPECT_FALSE(panel->flags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(model->didStart());
}

TEST_F(MopwellAppTest, ClosingWindowsDoesNotQuitButClosingTheStandAlonePanelDoes)
{
    app.launch();
    const int afterWindowClosed = runWith([&] {
        app.openWindow(QStringLiteral("confirm"));
        confirmWindow()->close();
    });
    EXPECT_NE(afterWindowClosed, quitCode);

    EXPECT_EQ(runWith([&] { app.panel().window()->close(); }), quitCode);
}

TEST_F(MopwellAppTest, QuitFromTheViewsEndsTheApplication)
{
    EXPECT_EQ(runWith([] { Shell::instance().quit(); }), quitCode);
}

}  // namespace
