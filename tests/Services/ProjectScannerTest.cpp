#include "Services/ProjectScanner.h"
#include "Support/TempHome.h"

#include <gmock/gmock.h>

#include <map>

using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;
using ProjectScannerTest = TempHomeTest;

namespace {

// What the callbacks saw, in the order they came.
struct Recorder {
    std::vector<std::string> events;
    std::vector<ProjectDir> announced;
    std::vector<ProjectDir> found;

    void scan(const std::vector<std::string>& ignore, const std::shared_ptr<CancelToken>& token,
              const std::function<void()>& afterFound = {})
    {
        ProjectScanner::scan(
            {"~/Code"}, ignore, 0, token, [&](int count) { events.push_back("progress " + std::to_string(count)); },
            [&](const ProjectDir& dir) {
                events.push_back("found");
                found.push_back(dir);
                if (afterFound)
                    afterFound();
            },
            [&](const std::vector<ProjectDir>& dirs) {
                events.push_back("discovered " + std::to_string(dirs.size()));
                announced = dirs;
            });
    }
};

}  // namespace

TEST_F(ProjectScannerTest, EveryFolderIsAnnouncedThenMeasuredStampedAndReportedAfterItsProgress)
{
    tempHome.writeFile("Code/app/package.json");
    tempHome.writeFile("Code/app/node_modules/lib/index.js", std::string(20000, 'x'));
    tempHome.writeFile("Code/rs/Cargo.toml");
    tempHome.writeFile("Code/rs/target/debug/app", std::string(5000, 'y'));
    tempHome.writeFile("Code/skip/pyproject.toml");
    tempHome.makeFolder("Code/skip/.venv");

    Recorder recorder;
    recorder.scan({"~/Code/skip"}, std::make_shared<CancelToken>());

    EXPECT_THAT(recorder.events, ElementsAre("discovered 2", "progress 1", "found", "progress 2", "found"));
    const std::string modules = tempHome.home() + "/Code/app/node_modules";
    const std::string target = tempHome.home() + "/Code/rs/target";
    std::map<std::string, std::string> kinds;
    ASSERT_EQ(recorder.announced.size(), 2u);
    for (std::size_t i = 0; i < recorder.found.size(); ++i) {
        const ProjectDir& dir = recorder.found[i];
        kinds[dir.path] = dir.kindID + " " + dir.kindLabel + " " + dir.symbol;
        // Announced in the order they are measured, dated but not yet sized. The sizes and dates
        // measured are the project window's scan test.
        EXPECT_GT(dir.size, 0);
        EXPECT_EQ(recorder.announced[i].path, dir.path);
        EXPECT_EQ(recorder.announced[i].size, 0);
        EXPECT_EQ(recorder.announced[i].modified, dir.modified);
    }
    EXPECT_THAT(kinds, UnorderedElementsAre(Pair(modules, "node_modules node_modules shippingbox.fill"),
                                            Pair(target, "target target shippingbox.fill")));
}

TEST_F(ProjectScannerTest, ACancelledTokenStopsBeforeTheNextFolder)
{
    for (const char* project : {"a", "b", "c"}) {
        tempHome.writeFile(std::string("Code/") + project + "/package.json");
        tempHome.makeFolder(std::string("Code/") + project + "/node_modules");
    }

    auto token = std::make_shared<CancelToken>();
    Recorder cancelledInside;
    cancelledInside.scan({}, token, [&] { token->cancel(); });
    EXPECT_THAT(cancelledInside.events, ElementsAre("discovered 3", "progress 1", "found"));

    // Cancelled before measuring: nothing is announced either.
    Recorder cancelledBefore;
    cancelledBefore.scan({}, token);
    EXPECT_TRUE(cancelledBefore.events.empty());

    Recorder uncancelled;
    uncancelled.scan({}, std::make_shared<CancelToken>());
    EXPECT_EQ(uncancelled.found.size(), 3u);
}
