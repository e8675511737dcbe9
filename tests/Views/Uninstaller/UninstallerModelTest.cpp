#include "Views/Uninstaller/UninstallerModel.h"

#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <QSignalSpy>
#include <QTest>

#include <filesystem>

namespace fs = std::filesystem;

// The window's rules over the bundle profile, with bundles built in a temporary home.
namespace {

class UninstallerModelTest : public ModelFixture {
protected:
    UninstallerModelTest() { uninstaller.setModel(model.get()); }

    const std::string H = tempHome.home();

    std::string bundle(const std::string& relative, const std::string& id)
    {
        tempHome.writeFile(relative + "/Contents/Info.plist",
                           "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" + id +
                               "</string></dict></plist>");
        TreeBuilder::writeFile(H + "/" + relative + "/Contents/MacOS/tool", 30'000);
        return H + "/" + relative;
    }
    void loadAndWait(const std::string& path)
    {
        uninstaller.load(path);
        ASSERT_TRUE(waitUntil([&] { return !uninstaller.isScanning(); }));
    }
    void uninstallAndWait()
    {
        uninstaller.uninstall();
        ASSERT_TRUE(waitUntil([&] { return !uninstaller.isRemoving(); }));
    }
    const UninstallItem& item(const std::string& label) const
    {
        for (const UninstallItem& found : uninstaller.items()) {
            if (found.label == label)
                return found;
        }
        throw std::runtime_error("no item " + label);
    }

    UninstallerModel uninstaller{PlatformProfile::macOS};
};

}  // namespace

TEST_F(UninstallerModelTest, LoadingChoosesEverythingFoundAndSelectAllSwitchesBothWays)
{
    const std::string app = bundle("Apps/Tool.app", "com.x.tool");
    TreeBuilder::writeFile(H + "/Library/Caches/com.x.tool/c", 8'000);
    loadAndWait(app);
    ASSERT_TRUE(uninstaller.app());
    EXPECT_EQ(uninstaller.app()->bundleID, "com.x.tool");
    ASSERT_EQ(uninstaller.itemCount(), 2);
    EXPECT_EQ(uninstaller.selectedCount(), 2);
    EXPECT_TRUE(uninstaller.allSelected());
    EXPECT_EQ(uninstaller.totalSelectedSize(), uninstaller.items()[0].size + uninstaller.items()[1].size);

    uninstaller.toggleSelectAll();
    EXPECT_EQ(uninstaller.selectedCount(), 0);
    EXPECT_EQ(uninstaller.totalSelectedSize(), 0);
    uninstaller.toggle(item("App cache").id);
    EXPECT_FALSE(uninstaller.allSelected());
    uninstaller.toggleSelectAll();
    EXPECT_TRUE(uninstaller.allSelected());
    uninstaller.toggleItem(QStringLiteral("not-an-id"));
    EXPECT_EQ(uninstaller.selectedCount(), 2);
}

TEST_F(UninstallerModelTest, RefusesTheProtectedPathsAndChangesNothingElse)
{
    const std::string tool = bundle("Apps/Tool.app", "com.x.tool");
    loadAndWait(tool);
    const auto itemsBefore = uninstaller.items();
    for (const std::string refused : {"/Applications/Safari.app", "/System/Applications/Mail.app"}) {
        uninstaller.load(refused);
        EXPECT_EQ(uninstaller.resultMessage(), "That's a protected system app and can't be removed.") << refused;
        EXPECT_EQ(uninstaller.app()->appPath, tool);
        EXPECT_EQ(uninstaller.items(), itemsBefore);
        EXPECT_FALSE(uninstaller.isScanning());
    }
    // A bundle whose name merely starts the same, elsewhere, loads and clears the message.
    loadAndWait(bundle("Applications/Safari Technology Preview.app", "com.x.stp"));
    EXPECT_EQ(uninstaller.appName(), "Safari Technology Preview");
    EXPECT_FALSE(uninstaller.optionalResultMessage());
}

TEST_F(UninstallerModelTest, RemovingLeftoversWithoutTheAppStillRecordsTheUninstall)
{
    const std::string app = bundle("Apps/Tool.app", "com.x.tool");
    TreeBuilder::writeFile(H + "/Library/Caches/com.x.tool/c", 8'000);
    loadAndWait(app);
    const std::int64_t cacheSize = item("App cache").size;
    uninstaller.toggle(item("Application").id);
    uninstallAndWait();

    EXPECT_TRUE(fs::exists(app));
    EXPECT_FALSE(fs::exists(H + "/Library/Caches/com.x.tool"));
    ASSERT_EQ(model->history().size(), 1u);
    EXPECT_EQ(model->history()[0].targetName, "Uninstalled Tool");
    EXPECT_EQ(model->history()[0].freed, cacheSize);
    ASSERT_TRUE(model->history()[0].items);
    EXPECT_EQ(model->history()[0].items->size(), 1u);
    EXPECT_FALSE(uninstaller.app());
    EXPECT_EQ(uninstaller.itemCount(), 0);
    EXPECT_TRUE(uninstaller.resultMessage().startsWith("Removed Tool — freed "));
}

TEST_F(UninstallerModelTest, NothingChosenDoesNothingAndNothingMovedSaysSo)
{
    const std::string app = bundle("Apps/Tool.app", "com.x.tool");
    loadAndWait(app);
    uninstaller.toggleSelectAll();
    QSignalSpy removing(&uninstaller, &UninstallerModel::isRemovingChanged);
    uninstaller.uninstall();
    EXPECT_EQ(removing.count(), 0);
    EXPECT_TRUE(uninstaller.app());

    // Gone before the user pressed the button: nothing reaches the Trash.
    uninstaller.toggleSelectAll();
    fs::remove_all(app);
    uninstallAndWait();
    EXPECT_EQ(uninstaller.resultMessage(), "Couldn't remove Tool.");
    EXPECT_FALSE(uninstaller.app());
    EXPECT_TRUE(model->history().empty());
}

TEST_F(UninstallerModelTest, AResultClearsAfterItsLifetimeButANewerMessageStays)
{
    uninstaller.setMessageLifetime(150);
    TreeBuilder::writeFile(H + "/Library/Caches/com.x.a/c", 8'000);
    loadAndWait(bundle("A.app", "com.x.a"));
    uninstallAndWait();
    const QString first = uninstaller.resultMessage();
    ASSERT_TRUE(first.startsWith("Removed A"));
    loadAndWait(bundle("B.app", "com.x.b"));
    uninstallAndWait();  // a second result within the first one's lifetime
    const QString second = uninstaller.resultMessage();
    ASSERT_TRUE(second.startsWith("Removed B"));
    QTest::qWait(100);
    uninstaller.load(std::string("/System/Thing.app"));
    const QString refusal = uninstaller.resultMessage();
    QTest::qWait(250);  // both results' timers have fired
    EXPECT_EQ(uninstaller.resultMessage(), refusal);

    loadAndWait(bundle("C.app", "com.x.c"));
    uninstallAndWait();
    EXPECT_TRUE(waitUntil([&] { return !uninstaller.optionalResultMessage(); }, 2'000));
}
