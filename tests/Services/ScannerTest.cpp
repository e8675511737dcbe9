#include "Models/CleanupCatalog.h"
#include "Services/Scanner.h"
#include "Support/CatalogRows.h"
#include "Support/DroppedCapabilities.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;

using CatalogRows::folders;

TEST_F(TempHomeTest, DirectorySizeCountsAllocatedBytesOfRegularFilesOnly)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/c/one-byte", 1);
    TreeBuilder::writeFile(home + "/c/.hidden", 10'000);
    TreeBuilder::writeFile(home + "/c/sub/deeper/data", 70'000);
    TreeBuilder::writeFile(home + "/elsewhere/huge", 500'000);
    fs::create_symlink(home + "/elsewhere/huge", home + "/c/link-to-huge");
    fs::create_directory_symlink(home + "/elsewhere", home + "/c/link-to-folder");
    fs::create_hard_link(home + "/c/sub/deeper/data", home + "/c/hardlink");  // counted again, as each name frees nothing alone

    const std::int64_t expected = TreeBuilder::allocatedSize(home + "/c/one-byte") + TreeBuilder::allocatedSize(home + "/c/.hidden") +
                                  2 * TreeBuilder::allocatedSize(home + "/c/sub/deeper/data");
    EXPECT_GE(TreeBuilder::allocatedSize(home + "/c/one-byte"), 512);
    EXPECT_EQ(Scanner::directorySize(home + "/c"), expected);
    EXPECT_EQ(Scanner::directorySize("~/c"), expected);
    EXPECT_EQ(Scanner::directorySize("~/c/sub/deeper/data"), TreeBuilder::allocatedSize(home + "/c/sub/deeper/data"));
    EXPECT_EQ(Scanner::directorySize("~/missing"), 0);
}

TEST_F(TempHomeTest, ProgressComesOncePerFifteenHundredFiles)
{
    const std::string root = tempHome.makeFolder("many");
    for (int i = 0; i < 3000; ++i)
        TreeBuilder::writeFile(root + "/d" + std::to_string(i % 7) + "/f" + std::to_string(i), 0);
    for (int i = 0; i < 10; ++i)
        fs::create_symlink(root + "/d0", root + "/link" + std::to_string(i));
    std::vector<std::int64_t> reports;
    const auto total = Scanner::directorySize(root, [&](std::int64_t bytes) { reports.push_back(bytes); });
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[1], total);
}

TEST_F(TempHomeTest, TargetSizesFollowTheirKind)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/a/x", 5000);
    TreeBuilder::writeFile(home + "/b/y", 9000);
    std::vector<std::int64_t> reports;
    const auto size = Scanner::size(folders({"~/a", "~/missing", "~/b"}),
                                    [&](std::int64_t bytes) { reports.push_back(bytes); });
    const std::int64_t a = TreeBuilder::allocatedSize(home + "/a/x");
    const std::int64_t b = TreeBuilder::allocatedSize(home + "/b/y");
    EXPECT_EQ(size, a + b);
    // One report after each location, carrying the running total of the whole target.
    EXPECT_EQ(reports, (std::vector<std::int64_t>{a, a, a + b}));

    // Missing folders measure 0, not "unknown".
    EXPECT_EQ(Scanner::size(folders({"~/nope"})), 0);
    EXPECT_EQ(Scanner::size(folders({})), std::nullopt);

    // A command target is measured by its fallback folders and never run.
    TreeBuilder::writeFile(home + "/.npm/_cacache/blob", 3000);
    EXPECT_EQ(Scanner::size(CatalogRows::builtIn("npm")), TreeBuilder::allocatedSize(home + "/.npm/_cacache/blob"));
    EXPECT_EQ(Scanner::size(CatalogRows::builtIn("docker")), std::nullopt);

    // A build-folder rule that finds nothing has no size.
    EXPECT_EQ(Scanner::size(CleanupCatalog::finderTargets({"~/no-projects"}, {}, 0)[0]), std::nullopt);
}

TEST_F(TempHomeTest, UnreadableFoldersCountAsEmpty)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/c/visible", 4096);
    TreeBuilder::writeFile(home + "/c/locked/hidden-from-us", 4096);
    chmod((home + "/c/locked").c_str(), 0);
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        EXPECT_EQ(Scanner::directorySize(home + "/c"), TreeBuilder::allocatedSize(home + "/c/visible"));
    }
    chmod((home + "/c/locked").c_str(), 0755);
}
