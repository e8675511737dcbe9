#include "Views/ProjectCleanup/ProjectCleanupModel.h"

#include "Views/ProjectCleanup/ProjectDirText.h"

#include "Platform/Paths.h"
#include "Support/ModelFixture.h"
#include "Support/PathsOf.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;

// Puts folders on the list as a scan would have found them, so the rules can be tried on dates
// and sizes no file system hands out on demand (no date at all, equal sizes).
struct ProjectCleanupModelTestAccess {
    static void add(ProjectCleanupModel& model, const ProjectDir& dir, bool measured = true)
    {
        model.found_.push_back({dir, measured, 0, 0});
        model.publishNow(false, true);
    }
};

namespace {

using Days = std::chrono::duration<std::int64_t, std::ratio<86400>>;

// A fixed day, so dates read alike on every run.
const Clock::TimePoint today = Clock::TimePoint{} + Days(20'000);

std::optional<Clock::TimePoint> daysAgo(int days) { return today - Days(days); }

ProjectDir folder(const std::string& path, std::int64_t size, std::optional<Clock::TimePoint> modified,
                  const std::string& kind = "node_modules")
{
    return {path, kind, kind == "target" ? "target" : "node_modules", "shippingbox.fill", size, modified};
}

class ProjectCleanupModelTest : public ModelFixture {
protected:
    void add(const ProjectDir& dir, bool measured = true) { ProjectCleanupModelTestAccess::add(cleanup, dir, measured); }

    ProjectCleanupModel cleanup;
};

TEST_F(ProjectCleanupModelTest, SortsBiggestOrOldestFirstUndatedLastAndTiesAsFound)
{
    // Two projects: "web" (one folder, undated) and "api" (two folders); one more undated group.
    add(folder("/w/web/node_modules", 500, std::nullopt));
    add(folder("/w/api/node_modules", 300, daysAgo(40)));
    add(folder("/w/api/target", 300, daysAgo(400), "target"));
    add(folder("/w/old/node_modules", 100, daysAgo(900)));
    add(folder("/w/cli/node_modules", 100, std::nullopt));

    struct Case {
        bool byAge;
        std::vector<std::string> dirs;
        std::vector<std::string> groups;
    };
    const Case cases[] = {
        // Equal sizes keep the order they were found in; groups go by their total.
        {false,
         {"/w/web/node_modules", "/w/api/node_modules", "/w/api/target", "/w/old/node_modules", "/w/cli/node_modules"},
         {"/w/api", "/w/web", "/w/old", "/w/cli"}},
        // Undated folders, and groups with no dated folder, stand last, still in found order.
        {true,
         {"/w/old/node_modules", "/w/api/target", "/w/api/node_modules", "/w/web/node_modules", "/w/cli/node_modules"},
         {"/w/old", "/w/api", "/w/web", "/w/cli"}},
    };
    for (const Case& c : cases) {
        cleanup.setSortByAge(c.byAge);
        EXPECT_EQ(pathsOf(cleanup.sortedDirs()), c.dirs) << "by age: " << c.byAge;
        EXPECT_EQ(pathsOf(cleanup.projectGroups()), c.groups) << "by age: " << c.byAge;
    }
    // Inside a group the folders keep the list's order.
    EXPECT_THAT(pathsOf(cleanup.projectGroups()[1].dirs), ElementsAre("/w/api/target", "/w/api/node_modules"));
    EXPECT_EQ(cleanup.projectGroups()[1].oldest(), daysAgo(400));
    EXPECT_EQ(cleanup.projectGroups()[3].oldest(), std::nullopt);
}

TEST_F(ProjectCleanupModelTest, TicksHiddenByTheFilterStayButCountForNothing)
{
    add(folder("/w/a/node_modules", 10, daysAgo(1)));
    add(folder("/w/a/target", 20, daysAgo(1), "target"));
    add(folder("/w/b/node_modules", 30, daysAgo(1)));
    cleanup.toggle("/w/a/target");
    cleanup.setActiveKinds({"node_modules"});

    cleanup.selectAll(true);
    EXPECT_EQ(cleanup.visibleSelectedCount(), 2);
    EXPECT_EQ(cleanup.selectedSize(), 40);
    EXPECT_TRUE(cleanup.allVisibleSelected());

    cleanup.selectAll(false);
    EXPECT_THAT(cleanup.selected(), ElementsAre("/w/a/target"));
    EXPECT_EQ(cleanup.visibleSelectedCount(), 0);
    EXPECT_EQ(cleanup.selectedSize(), 0);

    cleanup.clearKinds();
    EXPECT_EQ(cleanup.visibleSelectedCount(), 1);
    EXPECT_EQ(cleanup.selectedSize(), 20);
}

TEST_F(ProjectCleanupModelTest, AFolderStillBeingMeasuredCantBeTicked)
{
    add(folder("/w/a/node_modules", 10, daysAgo(1)));
    add(folder("/w/a/target", 0, daysAgo(1), "target"), false);
    cleanup.toggle("/w/a/target");
    EXPECT_TRUE(cleanup.selected().empty());

    const ProjectGroup group = cleanup.projectGroups().front();
    cleanup.toggleGroup(group);
    EXPECT_THAT(cleanup.selected(), ElementsAre("/w/a/node_modules"));
    EXPECT_TRUE(cleanup.allVisibleSelected());  // everything that can be ticked is
    cleanup.toggleGroup(group);
    EXPECT_TRUE(cleanup.selected().empty());

    cleanup.selectAll(true);
    EXPECT_THAT(cleanup.selected(), ElementsAre("/w/a/node_modules"));
}

TEST_F(ProjectCleanupModelTest, TheRootsComeFromTheChosenFolderElseTheSettingsElseHome)
{
    const std::string home = Paths::home();
    EXPECT_EQ(ProjectCleanupModel().effectiveRoots(), std::vector<std::string>{home});  // no settings at all

    cleanup.setModel(model.get());
    EXPECT_EQ(cleanup.effectiveRoots(), (std::vector<std::string>{home + "/src", home + "/dev"}));
    EXPECT_EQ(cleanup.rootsLabel(), "~/src, ~/dev");

    settings.setProjectRoots({"~/Code", "/srv/work"});
    EXPECT_EQ(cleanup.rootsLabel(), "~/Code, /srv/work");
    settings.setProjectRoots({});
    EXPECT_EQ(cleanup.effectiveRoots(), std::vector<std::string>{home});
    EXPECT_EQ(cleanup.rootsLabel(), "~");

    cleanup.scanFolder(QString::fromStdString(home + "/elsewhere"));
    EXPECT_EQ(cleanup.effectiveRoots(), std::vector<std::string>{home + "/elsewhere"});
    EXPECT_EQ(cleanup.rootsLabel(), "~/elsewhere");
}

TEST(ProjectDirText, AgeIsCountedInWholeDays)
{
    const std::pair<std::optional<Clock::TimePoint>, const char*> cases[] = {
        {std::nullopt, "—"},
        {today - std::chrono::hours(23), "today"},
        {today + std::chrono::hours(5), "today"},  // a clock set wrong is not "in the future"
        {daysAgo(1), "yesterday"},
        {today - Days(2) + std::chrono::seconds(1), "yesterday"},
        {daysAgo(2), "2 days ago"},
        {daysAgo(29), "29 days ago"},
        {daysAgo(30), "1 mo ago"},
        {daysAgo(364), "12 mo ago"},
        {daysAgo(365), "1 yr ago"},
        {daysAgo(800), "2 yr ago"},
    };
    for (const auto& [modified, text] : cases)
        EXPECT_EQ(ProjectDirText::ageText(modified, today), text);
}

}  // namespace
