#include "Models/BuildArtifactType.h"
#include "Services/Finder.h"
#include "Support/DroppedCapabilities.h"
#include "Support/TempHome.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

namespace {

using Found = std::vector<std::pair<std::string, std::string>>;

const Clock::TimePoint fixedNow = Clock::TimePoint{} + std::chrono::seconds{1'700'000'000};

class FinderTest : public TempHomeTest {
protected:
    std::string path(const std::string& relative) const { return tempHome.home() + "/" + relative; }
    std::string folder(const std::string& relative) const { return tempHome.makeFolder(relative); }
    std::string file(const std::string& relative) const { return tempHome.writeFile(relative); }

    // The catalog's form: one set of names, exact markers, no age limit unless given.
    std::vector<std::string> discover(const std::set<std::string>& names, int maxDepth,
                                      const std::vector<std::string>& markers,
                                      const std::vector<std::string>& ignore = {}, int minAgeDays = 0,
                                      const std::vector<std::string>& roots = {"~/Code"}) const
    {
        return Finder::discover(roots, names, maxDepth, ignore, minAgeDays, markers, fixedNow);
    }

    Found byType(const std::vector<std::string>& roots = {"~/Code"}, const std::vector<std::string>& ignore = {}) const
    {
        return Finder::discoverByType(roots, BuildArtifactType::all(), ignore, 0, fixedNow);
    }
};

void setModified(const std::string& path, Clock::TimePoint time)
{
    const auto since = time.time_since_epoch();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(since);
    const timespec stamp{seconds.count(), static_cast<long>(std::chrono::nanoseconds(since - seconds).count())};
    const timespec both[2] = {stamp, stamp};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), both, AT_SYMLINK_NOFOLLOW), 0) << path;
}

}  // namespace

TEST_F(FinderTest, AMatchIsReportedOnceAndNeverEntered)
{
    file("Code/app/package.json");
    file("Code/app/node_modules/dep/package.json");
    folder("Code/app/node_modules/dep/node_modules");
    // Without a manifest beside it the folder is neither taken nor searched.
    file("Code/loose/node_modules/inner/package.json");
    folder("Code/loose/node_modules/inner/node_modules");

    EXPECT_THAT(discover({"node_modules"}, 5, {"package.json"}), ElementsAre(path("Code/app/node_modules")));
    EXPECT_THAT(byType(), ElementsAre(Pair(path("Code/app/node_modules"), "node_modules")));
    // Markers in the catalog's form are exact names: a pattern is not expanded.
    file("Code/cs/App.csproj");
    folder("Code/cs/bin");
    EXPECT_THAT(discover({"bin"}, 5, {"*.csproj"}), IsEmpty());
}

TEST_F(FinderTest, HiddenFoldersAreFoundButNotWalkedThrough)
{
    file("Code/.cache/proj/package.json");
    folder("Code/.cache/proj/node_modules");
    file("Code/web/package.json");
    folder("Code/web/.next");
    folder("Code/web/.git/hooks/__pycache__");

    EXPECT_THAT(byType(), ElementsAre(Pair(path("Code/web/.next"), "next")));
    EXPECT_THAT(discover({".next", "node_modules"}, 5, {"package.json"}), ElementsAre(path("Code/web/.next")));
}

TEST_F(FinderTest, DepthLimitsCountListingLevels)
{
    folder("Code/a/b/node_modules");
    folder("Code/x/y/z/node_modules");
    EXPECT_THAT(discover({"node_modules"}, 2, {}), ElementsAre(path("Code/a/b/node_modules")));
    EXPECT_THAT(discover({"node_modules"}, 3, {}),
                UnorderedElementsAre(path("Code/a/b/node_modules"), path("Code/x/y/z/node_modules")));
    EXPECT_THAT(discover({"node_modules"}, 1, {}), IsEmpty());
}

TEST_F(FinderTest, EachKindStopsAtItsOwnDepthWhileTheWalkGoesDeeper)
{
    // "target" is accepted while its parent is listed at level 5, and passed over at level 6 —
    // not entered either, or the cache inside it would be found.
    file("Code/1/2/3/4/5/Cargo.toml");
    folder("Code/1/2/3/4/5/target");
    file("Code/1/2/3/4/5/6/Cargo.toml");
    folder("Code/1/2/3/4/5/6/target/__pycache__");
    file("Code/1/2/3/4/5/6/package.json");
    folder("Code/1/2/3/4/5/6/node_modules");
    folder("Code/1/2/3/4/5/6/7/8/__pycache__");
    folder("Code/1/2/3/4/5/6/7/8/9/__pycache__");

    EXPECT_THAT(byType(), UnorderedElementsAre(Pair(path("Code/1/2/3/4/5/target"), "target"),
                                               Pair(path("Code/1/2/3/4/5/6/node_modules"), "node_modules"),
                                               Pair(path("Code/1/2/3/4/5/6/7/8/__pycache__"), "pycache")));
    EXPECT_THAT(Finder::discoverByType({"~/Code"}, {}, {}, 0, fixedNow), IsEmpty());
}

TEST_F(FinderTest, IgnoredPathsEndAtASlashAndAcceptATilde)
{
    folder("Code/old/node_modules");
    folder("Code/old/sub/node_modules");
    folder("Code/older/node_modules");
    folder("Code/keep/node_modules");

    EXPECT_THAT(discover({"node_modules"}, 5, {}, {"~/Code/old", "~/Code/keep/node_modules"}),
                ElementsAre(path("Code/older/node_modules")));
    EXPECT_THAT(discover({"node_modules"}, 5, {}, {path("Code/old")}, 0, {"~/Code/old", "~/Missing"}), IsEmpty());
    // Ignore entries are compared as text: with a trailing slash the entry matches nothing here.
    EXPECT_THAT(discover({"node_modules"}, 5, {}, {"~/Code/old/"}, 0, {"~/Code/old"}),
                UnorderedElementsAre(path("Code/old/node_modules"), path("Code/old/sub/node_modules")));
}

TEST_F(FinderTest, MarkersFollowEachKindsRule)
{
    folder("Code/py/pkg/__pycache__");
    folder("Code/py/.tox");
    file("Code/cs/App.csproj");
    folder("Code/cs/bin");
    file("Code/sln/Thing.sln");
    folder("Code/sln/obj");
    file("Code/plain/README.md");
    folder("Code/plain/bin");
    // Exact markers are not suffixes.
    file("Code/rs/MyCargo.toml");
    folder("Code/rs/target");

    EXPECT_THAT(byType(), UnorderedElementsAre(Pair(path("Code/py/pkg/__pycache__"), "pycache"),
                                               Pair(path("Code/py/.tox"), "py_caches"),
                                               Pair(path("Code/cs/bin"), "dotnet"),
                                               Pair(path("Code/sln/obj"), "dotnet")));
}

TEST_F(FinderTest, OnlyFoldersChangedStrictlyBeforeTheCutOffAreOldEnough)
{
    const auto cutOff = fixedNow - std::chrono::days{30};
    const std::string atCutOff = folder("Code/a/node_modules");
    const std::string older = folder("Code/b/node_modules");
    const std::string recent = folder("Code/c/node_modules");
    file("Code/b/node_modules/fresh.js");  // what is inside doesn't count
    setModified(atCutOff, cutOff);
    setModified(older, cutOff - std::chrono::seconds{1});
    setModified(recent, fixedNow - std::chrono::hours{1});

    EXPECT_THAT(discover({"node_modules"}, 5, {}, {}, 30), ElementsAre(older));
    EXPECT_THAT(discover({"node_modules"}, 5, {}, {}, 0), UnorderedElementsAre(atCutOff, older, recent));
    EXPECT_THAT(Finder::discoverByType({"~/Code"}, BuildArtifactType::all(), {}, 30, fixedNow), IsEmpty());
}

TEST_F(FinderTest, AnUnreadableFolderIsTreatedAsEmpty)
{
    folder("Code/open/node_modules");
    const std::string locked = folder("Code/locked");
    folder("Code/locked/node_modules");
    fs::permissions(locked, fs::perms::none);

    DroppedCapabilities dropped;
    MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
    EXPECT_THAT(discover({"node_modules"}, 5, {}), ElementsAre(path("Code/open/node_modules")));
    EXPECT_THAT(discover({"node_modules"}, 5, {}, {}, 0, {"~/Code/locked"}), IsEmpty());
}

TEST_F(FinderTest, AMatchThatIsALinkIsNoBuildFolder)
{
    // pnpm-style stores and shared virtual environments are reached through links; the link is
    // someone's deliberate set-up, and what it leads to belongs to other projects too.
    const std::string outside = tempHome.root() + "/elsewhere/modules";
    fs::create_directories(outside);
    fs::create_directories(path("Documents"));
    folder("Code/store/modules");
    folder("Code/out");
    folder("Code/docs");
    folder("Code/shared");
    folder("Code/py");
    file("Code/py/requirements.txt");
    folder("Code/envs/main");
    file("Code/shared/package.json");
    fs::create_directory_symlink(outside, path("Code/out/node_modules"));
    fs::create_directory_symlink(path("Documents"), path("Code/docs/node_modules"));
    fs::create_directory_symlink(path("Code/store/modules"), path("Code/shared/node_modules"));
    fs::create_directory_symlink(path("Code/envs/main"), path("Code/py/.venv"));
    fs::create_directory_symlink(path("gone"), path("Code/store/node_modules"));  // dangling
    const std::string real = folder("Code/app/node_modules");
    file("Code/app/package.json");
    folder("Music/proj/node_modules");

    EXPECT_THAT(discover({"node_modules", ".venv"}, 5, {}), ElementsAre(real));
    EXPECT_THAT(byType(), ElementsAre(Pair(real, "node_modules")));
    EXPECT_THAT(discover({"node_modules"}, 5, {}, {}, 0, {"~/Music"}), IsEmpty());

    // Links above a match are still followed: a root reached through a link keeps its spelling.
    fs::create_directory_symlink(path("Code/app"), path("Projects"));
    EXPECT_THAT(discover({"node_modules"}, 5, {}, {}, 0, {"~/Projects/"}), ElementsAre(path("Projects/node_modules")));
}

TEST_F(FinderTest, ALinkCycleEndsAtTheDepthLimit)
{
    folder("Code/a/node_modules");
    fs::create_directory_symlink(path("Code"), path("Code/a/loop"));

    EXPECT_THAT(discover({"node_modules"}, 4, {}),
                ElementsAre(path("Code/a/node_modules"), path("Code/a/loop/a/node_modules")));
}

TEST_F(FinderTest, ATargetIsSearchedWithItsOwnRuleAtTheCurrentTime)
{
    const std::string found = folder("Code/rs/target");
    file("Code/rs/Cargo.toml");
    folder("Code/rs/node_modules");
    const CleanupTarget rust{"rust_target", "Rust", "shippingbox.fill", "",
                             FinderKind{{"~/Code"}, {"target", "target"}, 4, {}, 1, {"Cargo.toml"}}};

    // Just made, so too young unless the clock has moved on a day.
    EXPECT_THAT(Finder::discover(rust), IsEmpty());
    Clock::setNowForTesting(Clock::now() + std::chrono::hours{25});
    const auto later = Finder::discover(rust);
    Clock::setNowForTesting(std::nullopt);
    EXPECT_THAT(later, ElementsAre(found));

    const CleanupTarget folders{"caches", "Caches", "", "", PathsKind{{"~/Code"}}};
    EXPECT_THAT(Finder::discover(folders), IsEmpty());
}
