#include "AppModel.h"
#include "Platform/DefaultsStore.h"
#include "Services/AppSettings.h"
#include "Support/AppModelTestAccess.h"
#include "Support/PathsOf.h"
#include "Support/TempHome.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

namespace {

class AppModelTest : public TempHomeTest {
protected:
    std::shared_ptr<DefaultsStore> store = std::make_shared<DefaultsStore>(tempHome.configHome() + "/mopwell/defaults.plist");
    // The behaviour the Mac's catalog was specified with; the Linux list is tested with its table.
    AppModel model{store, PlatformProfile::macOS};
    AppSettings& settings = *model.settings();

    std::vector<std::string> ids() const { return stringsOf(model.targets(), &TargetState::id); }
    const TargetState& state(const std::string& id) const
    {
        for (const auto& candidate : model.targets()) {
            if (candidate.id() == id)
                return candidate;
        }
        throw std::out_of_range(id);
    }
    void size(const std::string& id, std::optional<std::int64_t> bytes) { AppModelTestAccess::setSize(model, id, bytes); }
};

}  // namespace

TEST_F(AppModelTest, DeveloperModeAndOptionalCachesShapeTheList)
{
    EXPECT_THAT(ids(), ElementsAre("trash", "appcaches", "logs", "maildownloads", "chrome", "safari", "firefox"));
    settings.setDeveloperMode(true);
    settings.setCleanSavedState(true);
    settings.setCleanMusicCache(true);
    settings.setCustomFolders({"/data/old", "/data/tmp/"});
    model.rebuildTargets();
    const auto all = ids();
    ASSERT_EQ(all.size(), 27u + 5u + 2u);
    EXPECT_EQ(all[26], "ml");
    EXPECT_THAT(std::vector<std::string>(all.begin() + 27, all.end()),
                ElementsAre("node_modules", "next_build", "rust_target", "pycache", "venv", "custom:/data/old",
                            "custom:/data/tmp/"));
    EXPECT_EQ(state("custom:/data/tmp/").target.name, "tmp");

    // The finder rows carry the roots, ignores and the age truncated to whole days.
    settings.setFinderMinAgeDays(6.9);
    settings.setIgnoredFinderPaths({"/src/keep"});
    model.rebuildTargets();
    const auto& finder = std::get<FinderKind>(state("venv").target.kind);
    EXPECT_EQ(finder.minAgeDays, 6);
    EXPECT_EQ(finder.ignore, std::vector<std::string>{"/src/keep"});
    EXPECT_EQ(finder.roots, (std::vector<std::string>{tempHome.home() + "/src", tempHome.home() + "/dev"}));

    // The three gates hold in developer mode too.
    settings.setCleanMailDownloads(false);
    settings.setCleanSavedState(false);
    model.rebuildTargets();
    const auto gated = ids();
    EXPECT_EQ(std::count(gated.begin(), gated.end(), "maildownloads"), 0);
    EXPECT_EQ(std::count(gated.begin(), gated.end(), "savedstate"), 0);
    EXPECT_EQ(gated.size(), 25u + 5u + 2u);
}

TEST_F(AppModelTest, RebuildKeepsSizesOnlyForIdsThatStayed)
{
    size("logs", 500);
    settings.setDeveloperMode(true);
    model.rebuildTargets();
    size("gradle", 700);
    EXPECT_EQ(state("logs").size, 500);

    settings.setDeveloperMode(false);
    model.rebuildTargets();
    settings.setDeveloperMode(true);
    model.rebuildTargets();
    EXPECT_EQ(state("logs").size, 500);
    EXPECT_EQ(state("gradle").size, std::nullopt);  // left the list in between
}

TEST_F(AppModelTest, RebuildToleratesADuplicatedCustomFolder)
{
    store->set("customFolders", std::vector<std::string>{"/data/x", "/data/x"});
    AppModel edited(store, PlatformProfile::macOS);
    AppModelTestAccess::setSize(edited, "custom:/data/x", 9);
    edited.rebuildTargets();
    ASSERT_EQ(edited.targets().size(), 9u);
    EXPECT_EQ(edited.targets()[7].size, 9);
    EXPECT_EQ(edited.targets()[8].size, 9);
}

TEST_F(AppModelTest, TotalsCountKnownSizesOfEnabledTargetsOnly)
{
    size("trash", 100);
    size("appcaches", 1000);
    size("chrome", 10);
    EXPECT_EQ(model.totalReclaimable(), 1110);
    QSignalSpy changed(&model, &AppModel::changed);
    settings.setEnabled(false, "appcaches");
    EXPECT_EQ(model.totalReclaimable(), 110);
    EXPECT_GE(changed.count(), 1);

    // Group sizes include disabled members.
    const auto groups = model.simpleGroups();
    ASSERT_EQ(groups.size(), 3u);
    EXPECT_THAT(groups[0].targetIDs, ElementsAre("appcaches", "logs", "maildownloads"));
    EXPECT_EQ(groups[0].size, 1000);
    EXPECT_THAT(groups[1].targetIDs, ElementsAre("chrome", "safari", "firefox"));
    EXPECT_EQ(groups[2].size, 100);
    EXPECT_FALSE(groups[0].isScanning);

    AppModelTestAccess::setScanning(model, "logs");
    EXPECT_TRUE(model.simpleGroups()[0].isScanning);
    EXPECT_TRUE(model.isScanning());
}

TEST_F(AppModelTest, AGroupIsOnOnlyWhenAllItsMembersAre)
{
    const auto browsers = model.simpleGroups()[1];
    settings.setEnabled(false, "safari");
    EXPECT_FALSE(model.isGroupEnabled(browsers));
    model.setGroupEnabled(true, browsers);
    EXPECT_TRUE(model.isGroupEnabled(browsers));
}

TEST_F(AppModelTest, GroupedTargetsFollowCategoryOrderAndOptionallySize)
{
    settings.setCustomFolders({"/data/a"});
    model.rebuildTargets();
    size("safari", 5);
    size("firefox", 5);
    size("chrome", std::nullopt);
    auto grouped = model.groupedTargets();
    ASSERT_EQ(grouped.size(), 3u);  // developer and build-artifact sections are empty and left out
    EXPECT_EQ(grouped[0].first, CleanupCategory::recommended);
    EXPECT_EQ(grouped[1].first, CleanupCategory::browsers);
    EXPECT_EQ(grouped[2].first, CleanupCategory::custom);
    EXPECT_EQ(grouped[1].second[0].id(), "chrome");

    settings.setSortBySize(true);
    grouped = model.groupedTargets();
    // Equal sizes keep their order; an unknown size sorts as 0.
    EXPECT_THAT(stringsOf(grouped[1].second, &TargetState::id), ElementsAre("safari", "firefox", "chrome"));
}

TEST_F(AppModelTest, MenuBarTextFollowsTheChosenDisplay)
{
    // 87.5 rounds away from zero; more available than total never goes negative.
    const std::vector<std::tuple<DiskInfo, MenuBarDisplay, QString>> cases = {
        {{0, 0}, MenuBarDisplay::percent, "0%"},       {{1000, 125}, MenuBarDisplay::percent, "88%"},
        {{1000, 2000}, MenuBarDisplay::percent, "0%"}, {{1000, 1000}, MenuBarDisplay::percent, "0%"},
        {{500'000'000'000, 123'456'000'000}, MenuBarDisplay::free, "123.46 GB"},
        {{500'000'000'000, 123'456'000'000}, MenuBarDisplay::icon, ""},
    };
    for (const auto& [disk, display, text] : cases) {
        AppModelTestAccess::setDisk(model, disk);
        settings.setMenuBarDisplay(display);
        EXPECT_EQ(model.menuBarText(), text) << disk.total << " " << disk.availableImportant;
    }
}

TEST_F(AppModelTest, StartRunsOnceAndRefreshesTheDiskEveryTime)
{
    AppModelTestAccess::setDisk(model, {1, 1});
    model.start();
    EXPECT_TRUE(model.didStart());
    EXPECT_GT(model.disk().total, 1);  // refreshed from the real volume of the home folder
    AppModelTestAccess::setDisk(model, {1, 1});
    model.start();
    EXPECT_GT(model.disk().total, 1);
}
