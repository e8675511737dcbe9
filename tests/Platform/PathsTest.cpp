#include "Platform/Paths.h"
#include "Support/ScopedVariable.h"
#include "Support/TempHome.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

TEST_F(TempHomeTest, TildeExpandsOnlyAtTheStart)
{
    const std::string home = tempHome.home();
    EXPECT_EQ(Paths::home(), home);
    EXPECT_EQ(Paths::expandingTilde("~"), home);
    EXPECT_EQ(Paths::expandingTilde("~/Library/Caches"), home + "/Library/Caches");
    EXPECT_EQ(Paths::expandingTilde("~other/x"), "~other/x");
    EXPECT_EQ(Paths::expandingTilde("/a/~/b"), "/a/~/b");
    EXPECT_EQ(Paths::expandingTilde(""), "");
}

TEST_F(TempHomeTest, AbbreviatingReplacesOnlyTheWholeHomeFolder)
{
    const std::string home = tempHome.home();
    EXPECT_EQ(Paths::abbreviatingWithTilde(home), "~");
    EXPECT_EQ(Paths::abbreviatingWithTilde(home + "/Movies/Old"), "~/Movies/Old");
    // A second user whose home merely begins with ours keeps the full path.
    EXPECT_EQ(Paths::abbreviatingWithTilde(home + "2/Movies"), home + "2/Movies");
    EXPECT_EQ(Paths::abbreviatingWithTilde("/etc/hosts"), "/etc/hosts");
}

TEST(Paths, HomeFallsBackToThePasswordDatabase)
{
    const ScopedVariable noHome("HOME", std::nullopt);
    const std::string home = Paths::home();
    EXPECT_FALSE(home.empty());
    EXPECT_TRUE(home.starts_with("/"));
}

TEST_F(TempHomeTest, ResolvingFollowsLinksInTheExistingPartAndKeepsTheRest)
{
    const std::string home = tempHome.home();
    fs::create_directories(home + "/real/inner");
    fs::create_directory_symlink(home + "/real", home + "/link");
    fs::create_directory_symlink("real/inner", home + "/relative");
    fs::create_directory_symlink(home + "/loopA", home + "/loopB");
    fs::create_directory_symlink(home + "/loopB", home + "/loopA");

    EXPECT_EQ(Paths::resolvingSymlinks(home + "/link/inner"), home + "/real/inner");
    EXPECT_EQ(Paths::resolvingSymlinks(home + "/relative"), home + "/real/inner");
    EXPECT_EQ(Paths::resolvingSymlinks(home + "/link/missing/../gone/./x"), home + "/real/gone/x");
    EXPECT_EQ(Paths::resolvingSymlinks(home + "/link/.."), home);
    EXPECT_EQ(Paths::resolvingSymlinks("/"), "/");
    EXPECT_EQ(Paths::resolvingSymlinks("//usr///"), "/usr");
    // A loop stops being followed instead of hanging.
    EXPECT_TRUE(Paths::resolvingSymlinks(home + "/loopA/x").ends_with("/x"));

    const auto previous = fs::current_path();
    fs::current_path(home);
    EXPECT_EQ(Paths::resolvingSymlinks("link"), home + "/real");
    fs::current_path(previous);
}
