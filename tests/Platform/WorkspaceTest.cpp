#include "Platform/Workspace.h"
#include "Platform/Trash.h"
#include "Support/FakeFileManager.h"
#include "Support/PrivateSessionBus.h"
#include "Support/ScopedVariable.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

// No test may start the desktop's file manager or default applications: URLs go to a recorder.
class WorkspaceTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bus.isRunning()) << "dbus-daemon could not be started"; }

    Workspace::UrlOpener recorder(bool succeeds = true)
    {
        return [this, succeeds](const QUrl& url) {
            opened.append(url);
            return succeeds;
        };
    }

    PrivateSessionBus bus;
    QList<QUrl> opened;
};

}  // namespace

TEST_F(WorkspaceTest, RevealAsksTheFileManagerWithAPercentEncodedFileUri)
{
    FakeFileManager fileManager(bus.connect());
    ASSERT_TRUE(fileManager.registered());

    EXPECT_TRUE(Workspace::reveal("/tmp/Old Stuff/Café #2 at 100%.txt", bus.connect(), recorder()));
    ASSERT_TRUE(fileManager.waitForRequests(1));
    EXPECT_EQ(fileManager.shown()[0].uris,
              QStringList{"file:///tmp/Old%20Stuff/Caf%C3%A9%20%232%20at%20100%25.txt"});
    EXPECT_EQ(fileManager.shown()[0].startupId, "");

    QTest::qWait(50);  // the file manager's answer comes back
    EXPECT_TRUE(opened.isEmpty()) << "the folder opened although the file manager showed the item";
}

TEST_F(WorkspaceTest, WithoutAFileManagerRevealOpensTheEnclosingFolder)
{
    // Nobody owns the file manager's name on this bus, so the call fails at once.
    EXPECT_TRUE(Workspace::reveal("/tmp/Old Stuff/notes.txt", bus.connect(), recorder()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.isEmpty(); }, 5000));
    EXPECT_EQ(opened, QList<QUrl>{QUrl::fromLocalFile("/tmp/Old Stuff")});

    // Without a session bus at all the folder opens straight away, and its failure is reported.
    opened.clear();
    const QDBusConnection noBus(QStringLiteral("mopwell-no-bus"));
    EXPECT_FALSE(Workspace::reveal("/tmp/Old Stuff/notes.txt", noBus, recorder(false)));
    EXPECT_EQ(opened, QList<QUrl>{QUrl::fromLocalFile("/tmp/Old Stuff")});
}

TEST(Workspace, OpenTrashOpensTheFileManagersOwnViewWhereItHasOne)
{
    const QUrl homeTrash = QUrl::fromLocalFile(QString::fromStdString(Trash::homeTrashFolder() + "/files"));
    const struct {
        const char* desktop;
        QUrl opened;
    } cases[] = {
        {"GNOME", QUrl("trash:///")},
        {"ubuntu:GNOME", QUrl("trash:///")},
        {"X-Cinnamon", QUrl("trash:///")},
        {"XFCE", QUrl("trash:///")},
        {"KDE", QUrl("trash:/")},
        {"", homeTrash},        // unknown: the home Trash's folder of files
        {"sway", homeTrash},
    };
    for (const auto& c : cases) {
        const ScopedVariable desktop("XDG_CURRENT_DESKTOP", c.desktop);
        QList<QUrl> opened;
        EXPECT_TRUE(Workspace::openTrash([&](const QUrl& url) { opened.append(url); return true; }));
        EXPECT_EQ(opened, QList<QUrl>{c.opened}) << c.desktop;
    }
}
