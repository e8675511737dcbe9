#include "Platform/Trash.h"
#include "Services/Cleaner.h"
#include "Services/Scanner.h"
#include "Support/CatalogRows.h"
#include "Support/DroppedCapabilities.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"
#include "Support/TreeSnapshot.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;
using ::testing::UnorderedElementsAre;

namespace {

using CatalogRows::folders;

class CleanerTest : public TempHomeTest {
protected:
    std::string H = tempHome.home();

    static CleanupTarget command(std::string shell, std::vector<std::string> fallback)
    {
        return {"c", "C", "cube.box.fill", "", CommandKind{std::move(shell), std::move(fallback)},
                CleanupCategory::developer, true};
    }
    // A target's folder is emptied, never removed.
    static std::vector<std::string> contents(const std::string& folder)
    {
        EXPECT_TRUE(fs::is_directory(folder)) << folder;
        return TreeBuilder::namesIn(folder);
    }
    // Everything outside the target folders and the Trash.
    TreeSnapshot outside(const std::vector<std::string>& targets) const
    {
        auto skip = targets;
        skip.push_back(Trash::homeTrashFolder());
        return snapshotTree(tempHome.root(), skip);
    }
};

}  // namespace

TEST_F(CleanerTest, FoldersAreEmptiedIntoTheTrashAndKept)
{
    const std::string cache = H + "/Library/Caches";
    TreeBuilder::writeFile(cache + "/app/blob.bin", 50'000);
    TreeBuilder::writeFile(cache + "/.hidden", 10);
    TreeBuilder::writeFile(cache + "/name with spaces\nand a newline", 10);
    TreeBuilder::writeFile(cache + "/bad-\xff-utf8", 10);
    TreeBuilder::writeFile(cache + "/CloudKit/x", 10);  // a child the safety test would refuse alone
    TreeBuilder::writeFile(H + "/Documents/keep.txt", 10);
    const auto before = outside({cache});
    const auto size = Scanner::directorySize(cache);

    const CleanOutcome outcome = Cleaner::clean(CatalogRows::builtIn("appcaches", PlatformProfile::macOS), true);

    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_EQ(outcome.freed, size);
    EXPECT_TRUE(contents(cache).empty());
    ASSERT_EQ(outcome.trashed.size(), 5u);
    for (const auto& item : outcome.trashed) {
        EXPECT_TRUE(item.original.starts_with(cache + "/"));
        EXPECT_TRUE(item.trashPath.starts_with(Trash::homeTrashFolder() + "/files/"));
        EXPECT_TRUE(fs::exists(fs::symlink_status(item.trashPath)));
    }
    EXPECT_EQ(outside({cache}), before);
}

TEST_F(CleanerTest, ExcludedFoldersStayWhateverLiesAroundThem)
{
    const std::string cache = H + "/.cache";
    TreeBuilder::writeFile(cache + "/pip/wheel.whl", 20'000);
    TreeBuilder::writeFile(cache + "/mozilla/other/blob", 8'000);
    TreeBuilder::writeFile(cache + "/mozilla/firefox/p.default/cache2/entry", 30'000);
    TreeBuilder::writeFile(cache + "/thumbnails/normal/a.png", 6'000);
    TreeBuilder::writeFile(cache + "/huggingface/token", 40);
    TreeBuilder::writeFile(cache + "/huggingface/hub/model.bin", 9'000);
    // A folder on the way to an exclusion that leads elsewhere is only a link: it goes as one.
    TreeBuilder::writeFile(H + "/Documents/notes/keep.txt", 10);
    fs::create_directory_symlink(H + "/Documents/notes", cache + "/linked");
    const CleanupTarget target{"appcaches", "App cache files", "shippingbox.fill", "",
                               PathsKind{{"~/.cache"},
                                         {"~/.cache/thumbnails", "~/.cache/mozilla/firefox", "~/.cache/huggingface/token",
                                          "~/.cache/linked/keep.txt"}},
                               CleanupCategory::recommended, true};
    const auto kept = snapshotTree(cache + "/mozilla/firefox");
    const std::int64_t removable = TreeBuilder::allocatedSize(cache + "/pip/wheel.whl") +
                                   TreeBuilder::allocatedSize(cache + "/mozilla/other/blob") +
                                   TreeBuilder::allocatedSize(cache + "/huggingface/hub/model.bin");
    EXPECT_EQ(Scanner::size(target), removable);

    const CleanOutcome outcome = Cleaner::clean(target, true);

    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_EQ(outcome.freed, removable);
    EXPECT_THAT(contents(cache), UnorderedElementsAre("mozilla", "thumbnails", "huggingface"));
    EXPECT_THAT(contents(cache + "/mozilla"), UnorderedElementsAre("firefox"));
    EXPECT_THAT(contents(cache + "/huggingface"), UnorderedElementsAre("token"));
    EXPECT_EQ(snapshotTree(cache + "/mozilla/firefox"), kept);
    EXPECT_TRUE(fs::exists(cache + "/thumbnails/normal/a.png"));
    EXPECT_TRUE(fs::exists(H + "/Documents/notes/keep.txt"));
    EXPECT_EQ(Scanner::size(target), 0);
}

TEST_F(CleanerTest, PermanentRemovalLeavesNothingInTheTrash)
{
    TreeBuilder::writeFile(H + "/junk/a/b/c.bin", 9000);
    TreeBuilder::makeDeepChain(tempHome.makeFolder("junk/deep"), 600, "d", 10);
    const CleanOutcome outcome = Cleaner::clean(folders({"~/junk"}), false);
    EXPECT_TRUE(outcome.trashed.empty());
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_GT(outcome.freed, 0);
    EXPECT_TRUE(contents(H + "/junk").empty());
    EXPECT_FALSE(fs::exists(Trash::homeTrashFolder() + "/files"));

    // An empty folder frees nothing and reports nothing.
    const CleanOutcome empty = Cleaner::clean(folders({"~/junk"}), true);
    EXPECT_EQ(empty.freed, 0);
    EXPECT_EQ(empty.error, std::nullopt);
    EXPECT_TRUE(empty.trashed.empty());
}

TEST_F(CleanerTest, LinksInsideATargetGoButWhatTheyPointAtStays)
{
    TreeBuilder::writeFile(H + "/Documents/thesis.tex", 100);
    TreeBuilder::writeFile(tempHome.root() + "/elsewhere/system.conf", 100);
    fs::create_directories(H + "/cache");
    fs::create_directory_symlink(H + "/Documents", H + "/cache/docs");
    fs::create_symlink(tempHome.root() + "/elsewhere/system.conf", H + "/cache/conf");
    fs::create_directory_symlink(H + "/cache", H + "/cache/loop");
    const auto before = outside({H + "/cache"});

    for (bool toTrash : {false, true}) {
        const CleanOutcome outcome = Cleaner::clean(folders({"~/cache"}), toTrash);
        EXPECT_EQ(outcome.error, std::nullopt);
        EXPECT_TRUE(contents(H + "/cache").empty());
        EXPECT_EQ(outside({H + "/cache"}), before);
        fs::create_directory_symlink(H + "/Documents", H + "/cache/docs");
    }
}

TEST_F(CleanerTest, AFolderThatBecameALinkToAProtectedPlaceIsRefused)
{
    TreeBuilder::writeFile(H + "/Documents/thesis.tex", 100);
    TreeBuilder::writeFile(H + "/other/old.bin", 100);
    fs::create_directory_symlink(H + "/Documents", H + "/was-a-folder");
    const auto documents = snapshotTree(H + "/Documents");

    const CleanOutcome outcome = Cleaner::clean(folders({"~/was-a-folder", "~/other"}), true);

    EXPECT_EQ(outcome.error, "Refused (protected): " + H + "/Documents");
    EXPECT_EQ(snapshotTree(H + "/Documents"), documents);
    EXPECT_TRUE(contents(H + "/other").empty());  // the target's other folders are still cleaned

    // Missing folders are no error.
    EXPECT_EQ(Cleaner::clean(folders({"~/never-existed"}), true).error, std::nullopt);
}

TEST_F(CleanerTest, UnremovableItemsOnlyShrinkWhatWasFreed)
{
    TreeBuilder::writeFile(H + "/c/loose.bin", 8000);
    TreeBuilder::writeFile(H + "/c/locked/inner/secret.bin", 8000);
    chmod((H + "/c/locked/inner").c_str(), 0500);
    const auto sizeBefore = Scanner::directorySize(H + "/c");
    CleanOutcome outcome;
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        outcome = Cleaner::clean(folders({"~/c"}), false);
    }
    chmod((H + "/c/locked/inner").c_str(), 0755);
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_TRUE(fs::exists(H + "/c/locked/inner/secret.bin"));
    EXPECT_FALSE(fs::exists(H + "/c/loose.bin"));
    EXPECT_EQ(outcome.freed, sizeBefore - Scanner::directorySize(H + "/c"));
    EXPECT_GT(outcome.freed, 0);
}

TEST_F(CleanerTest, AnUnusableTrashFallsBackToDeleting)
{
    TreeBuilder::writeFile(H + "/c/a.bin", 100);
    TreeBuilder::writeFile(H + "/c/b.bin", 100);
    fs::create_directories(Trash::homeTrashFolder());
    chmod(Trash::homeTrashFolder().c_str(), 0500);
    CleanOutcome outcome;
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        outcome = Cleaner::clean(folders({"~/c"}), true);
    }
    chmod(Trash::homeTrashFolder().c_str(), 0700);
    EXPECT_TRUE(outcome.trashed.empty());
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_TRUE(contents(H + "/c").empty());
}

TEST_F(CleanerTest, CommandsFallBackToTheirFoldersWhenTheyFail)
{
    auto seed = [&] { TreeBuilder::writeFile(H + "/fallback/blob", 5000); };

    seed();
    auto outcome = Cleaner::clean(command("exit 0", {"~/fallback"}), true);
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_TRUE(fs::exists(H + "/fallback/blob"));  // success: the command did the cleaning

    outcome = Cleaner::clean(command("echo '  it broke  '; exit 3", {"~/fallback"}), false);
    EXPECT_EQ(outcome.error, "it broke");
    EXPECT_FALSE(fs::exists(H + "/fallback/blob"));
    EXPECT_GT(outcome.freed, 0);

    seed();
    outcome = Cleaner::clean(command("no-such-tool-here --clean", {"~/fallback"}), false);
    EXPECT_EQ(outcome.error, std::nullopt);  // not installed is no error
    EXPECT_FALSE(fs::exists(H + "/fallback/blob"));

    outcome = Cleaner::clean(command("exit 4", {}), true);
    EXPECT_EQ(outcome.error, "Command exited with status 4");
    EXPECT_EQ(outcome.freed, 0);
}
