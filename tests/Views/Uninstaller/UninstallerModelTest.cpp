#include "Views/Uninstaller/UninstallerModel.h"

#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <QSignalSpy>

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
