// The cleaner on the layouts a careful Linux user has and a hostile one makes: a home reached
// through a link, a Trash on another disk, and a folder swapped for a link in the middle of a clean.

#include "Models/CleanupCatalog.h"
#include "Platform/Trash.h"
#include "Services/Cleaner.h"
#include "Support/CatalogRows.h"
#include "Support/ScopedVariable.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"
#include "Support/TreeSnapshot.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fcntl.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

using CatalogRows::folders;

class CleanerLayoutTest : public TempHomeTest {
protected:
    std::string root = tempHome.root();
    std::string H = tempHome.home();

    static CleanupTarget trashRow() { return CatalogRows::builtIn("trash"); }
    // A trash folder at `folder` with one trashed file, as a file manager leaves it.
    static void fillTrash(const std::string& folder)
    {
        TreeBuilder::writeFile(folder + "/files/old report.pdf", 5000);
        TreeBuilder::writeFile(folder + "/info/old report.pdf.trashinfo", 80);
    }
    static bool isEmptyFolder(const std::string& path) { return fs::is_directory(path) && fs::is_empty(path); }
};

}  // namespace

TEST_F(CleanerLayoutTest, AHomeReachedThroughALinkOrWrittenWithASlashStillCleans)
{
    // Image-based desktops reach /home through /var/home; some set HOME with a trailing slash.
    fs::create_directory_symlink(H, root + "/linked-home");
    for (const std::string& written : {root + "/linked-home", H + "/", root + "/linked-home/"}) {
        SCOPED_TRACE(written);
        ScopedVariable home("HOME", written);
        TreeBuilder::writeFile(H + "/cache/blob.bin", 4000);
        TreeBuilder::writeFile(H + "/Documents/thesis.tex", 100);

        EXPECT_EQ(Cleaner::validateCustom("~/cache"), std::nullopt);
        const CleanOutcome outcome = Cleaner::clean(folders({"~/cache"}), false);
        EXPECT_EQ(outcome.error, std::nullopt);
        EXPECT_TRUE(isEmptyFolder(H + "/cache"));

        // The home's protected places stay protected in their resolved spelling.
        EXPECT_FALSE(Cleaner::isSafe(H));
        EXPECT_FALSE(Cleaner::isSafe(H + "/Documents"));
        EXPECT_FALSE(Cleaner::isSafe(H + "/Pictures/holiday.jpg"));
        EXPECT_EQ(Cleaner::validateCustom("~/Documents"), "That location is protected and can't be cleaned.");
        EXPECT_EQ(Cleaner::clean(folders({"~/Documents"}), false).error, "Refused (protected): " + H + "/Documents");
        EXPECT_TRUE(fs::exists(H + "/Documents/thesis.tex"));
        EXPECT_TRUE(Cleaner::isSafe(H + "/cache/blob.bin"));
    }
}

TEST_F(CleanerLayoutTest, TheTrashRowEmptiesATrashOnAnotherDiskOrOutsideTheHome)
{
    // The Trash moved to a bigger disk through a link.
    const std::string bigDisk = root + "/media/big/Trash";
    fillTrash(bigDisk);
    fs::create_directories(tempHome.dataHome());
    fs::create_directory_symlink(bigDisk, Trash::homeTrashFolder());
    for (bool toTrash : {true, false}) {
        const CleanOutcome outcome = Cleaner::clean(trashRow(), toTrash);
        EXPECT_EQ(outcome.error, std::nullopt);
        EXPECT_GT(outcome.freed, 0);
        EXPECT_TRUE(outcome.trashed.empty());
        EXPECT_TRUE(isEmptyFolder(bigDisk));
        EXPECT_TRUE(fs::is_symlink(Trash::homeTrashFolder()));
        fillTrash(bigDisk);
    }

    // The same disk is no wider open to anything else, the Trash's own folder included.
    EXPECT_FALSE(Cleaner::isSafe(bigDisk));
    EXPECT_EQ(Cleaner::clean(folders({bigDisk}), false).error, "Refused (protected): " + bigDisk);
    fs::create_directory_symlink(root + "/media/big", H + "/big");
    EXPECT_EQ(Cleaner::clean(folders({"~/big"}), false).error, "Refused (protected): " + root + "/media/big");
    EXPECT_TRUE(fs::exists(bigDisk + "/files/old report.pdf"));

    // A data home outside the home folder.
    const std::string dataHome = root + "/data";
    ScopedVariable variable("XDG_DATA_HOME", dataHome);
    fillTrash(dataHome + "/Trash");
    const CleanOutcome outcome = Cleaner::clean(trashRow(), true);
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_TRUE(isEmptyFolder(dataHome + "/Trash"));
}

TEST_F(CleanerLayoutTest, ATrashThatLeadsIntoAProtectedPlaceOrAboveTheHomeIsRefused)
{
    TreeBuilder::writeFile(H + "/Documents/thesis.tex", 100);
    fs::create_directories(tempHome.dataHome());
    const auto before = snapshotTree(root);
    for (const std::string& target : {H + "/Documents", H, root, std::string("/")}) {
        SCOPED_TRACE(target);
        fs::create_directory_symlink(target, Trash::homeTrashFolder());
        const CleanOutcome outcome = Cleaner::clean(trashRow(), false);
        EXPECT_TRUE(outcome.error.has_value());
        fs::remove(Trash::homeTrashFolder());
        EXPECT_EQ(snapshotTree(root), before);
    }
}

TEST_F(CleanerLayoutTest, AFolderSwappedForALinkDuringACleanNeverLeadsTheRemovalOutside)
{
    // Another process swaps the cleaned folder with a link to Documents, back and forth, as fast
    // as it can. Whatever moment the clean checks or removes at, Documents must stay whole.
    constexpr int files = 64;
    const std::string cache = H + "/cache";
    const std::string documents = H + "/Documents";
    fs::create_directories(cache);
    for (int i = 0; i < files; ++i)
        TreeBuilder::writeFile(documents + "/paper" + std::to_string(i) + ".tex", 10);
    fs::create_directory_symlink(documents, H + "/swap");
    std::atomic<bool> stop = false;
    std::thread swapper([&] {
        while (!stop)
            renameat2(AT_FDCWD, cache.c_str(), AT_FDCWD, (H + "/swap").c_str(), RENAME_EXCHANGE);
    });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    int rounds = 0;
    while (std::chrono::steady_clock::now() < deadline && rounds < 400) {
        ++rounds;
        for (int i = 0; i < files; ++i)
            TreeBuilder::writeFile(H + "/cache-refill/paper" + std::to_string(i) + ".tex", 10);
        // Refill whichever of the two names is the real folder now.
        const std::string folder = fs::is_symlink(cache) ? H + "/swap" : cache;
        for (int i = 0; i < files; ++i)
            std::rename((H + "/cache-refill/paper" + std::to_string(i) + ".tex").c_str(),
                        (folder + "/paper" + std::to_string(i) + ".tex").c_str());
        Cleaner::clean(folders({"~/cache"}), rounds % 2 == 0);
        int left = 0;
        for (int i = 0; i < files; ++i)
            left += fs::exists(documents + "/paper" + std::to_string(i) + ".tex") ? 1 : 0;
        if (left != files) {
            stop = true;
            swapper.join();
            FAIL() << "round " << rounds << ": " << files - left << " files of Documents were removed";
        }
    }
    stop = true;
    swapper.join();
    EXPECT_GT(rounds, 10);
}

// A real build folder beside it goes whole, and only it.
TEST_F(CleanerLayoutTest, ABuildFolderThatIsALinkIsLeftWithWhatItLeadsTo)
{
    TreeBuilder::writeFile(H + "/src/app/package.json", 10);
    TreeBuilder::writeFile(H + "/.pnpm-store/left-pad/index.js", 3000);
    fs::create_directory_symlink(H + "/.pnpm-store", H + "/src/app/node_modules");
    TreeBuilder::writeFile(H + "/src/web/package.json", 10);
    TreeBuilder::writeFile(H + "/src/web/node_modules/react/index.js", 3000);
    const auto finder = CleanupCatalog::finderTargets({"~/src"}, {}, 0)[0];
    ASSERT_EQ(finder.id, "node_modules");

    const CleanOutcome outcome = Cleaner::clean(finder, true);
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_GT(outcome.freed, 0);
    ASSERT_EQ(outcome.trashed.size(), 1u);
    EXPECT_EQ(outcome.trashed[0].original, H + "/src/web/node_modules");
    EXPECT_TRUE(fs::exists(H + "/src/web/package.json"));
    EXPECT_TRUE(fs::is_symlink(H + "/src/app/node_modules"));
    EXPECT_TRUE(fs::exists(H + "/.pnpm-store/left-pad/index.js"));
}
