#include "Services/HomebrewUpdater.h"

#include "Support/TempHome.h"
#include "Support/ToolStubs.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

// The shape `brew outdated --greedy --json=v2` prints.
const char* const outdatedJson = R"({
  "formulae": [
    {"name": "openssl@3", "installed_versions": ["3.1.0", "3.1.1"], "current_version": "3.1.2",
     "pinned": false, "pinned_version": null},
    {"installed_versions": ["1.0"], "current_version": "2.0"},
    {"name": "Zlib", "installed_versions": [], "installed_version": "1.2.13", "current_version": "1.3"},
    {"name": "apr", "installed_versions": ["1.7.0", 17], "current_version": null}
  ],
  "casks": [
    {"name": "firefox", "installed_versions": "118.0.1", "current_version": "119.0"},
    {"name": "Brave-Browser", "current_version": "1.60"},
    {"name": 42, "installed_versions": ["1"], "current_version": "2"}
  ]
})";

std::string describe(const OutdatedPackage& p)
{
    return p.id() + " " + p.installed + " -> " + p.current;
}

class HomebrewUpdaterTest : public TempHomeTest {
protected:
    ToolStubs stubs{tempHome.root() + "/stubs", tempHome.home()};
};

}  // namespace

TEST(HomebrewUpdater, ParsesFormulaeAndCasksSortedByNameWhateverTheCase)
{
    std::vector<std::string> rows;
    for (const auto& package : HomebrewUpdater::parseOutdated(outdatedJson))
        rows.push_back(describe(package));
    EXPECT_EQ(rows, (std::vector<std::string>{
                        "formula:apr ? -> ?",              // not all versions are text
                        "cask:Brave-Browser ? -> 1.60",    // neither installed key
                        "cask:firefox 118.0.1 -> 119.0",   // the older plain-text form
                        "formula:openssl@3 3.1.1 -> 3.1.2",  // the last of several
                        "formula:Zlib 1.2.13 -> 1.3",
                    }));
}

TEST(HomebrewUpdater, UnreadableOutputGivesNothing)
{
    for (const char* text : {"", "Error: no such command", "[]", "null", R"({"formulae": 3, "casks": {}})"})
        EXPECT_TRUE(HomebrewUpdater::parseOutdated(text).empty()) << text;
}

// Without brew, and the commands the updates window runs through it, are that window's test.
TEST_F(HomebrewUpdaterTest, WarningsBesideTheJsonDoNotSpoilIt)
{
    stubs.install("brew", std::string("echo 'Warning: noise' >&2\ncat <<'END'\n") + outdatedJson + "\nEND");
    EXPECT_EQ(HomebrewUpdater::outdated().size(), 5u);
}

TEST_F(HomebrewUpdaterTest, APackageNameFromTheJsonRunsNothingButBrew)
{
    stubs.install("brew", "exit 0");
    const std::string owned = tempHome.root() + "/owned";
    for (const auto kind : {OutdatedPackage::Kind::formula, OutdatedPackage::Kind::cask}) {
        OutdatedPackage package;
        package.kind = kind;
        package.name = "x; touch " + owned + " $(touch " + owned + ") `touch " + owned + "` 'q";
        EXPECT_EQ(HomebrewUpdater::upgrade(package).status, 0);
    }
    EXPECT_FALSE(std::filesystem::exists(owned));
    const std::string name = "x; touch " + owned + " $(touch " + owned + ") `touch " + owned + "` 'q";
    EXPECT_EQ(stubs.calls("brew"), (std::vector<std::string>{"[upgrade][" + name + "]",
                                                              "[upgrade][--cask][" + name + "]"}));
}
