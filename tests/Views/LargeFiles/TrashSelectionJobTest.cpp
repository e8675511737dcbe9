#include "Views/LargeFiles/TrashSelectionJob.h"

#include "Platform/Trash.h"
#include "Services/DuplicateScanner.h"
#include "Support/TempHome.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

namespace {

namespace fs = std::filesystem;

class TrashSelectionJobTest : public TempHomeTest {
protected:
    // Three copies of one file, scanned: the group as the finder would hold it.
    DuplicateGroup copies(const std::string& folder) const
    {
        const std::string bytes(1'200'000, 'c');
        for (const char* name : {"kept.bin", "copy1.bin", "copy2.bin"})
            tempHome.writeFile(folder + "/" + name, bytes);
        FileScanResult last;
        DuplicateScanner::scan(tempHome.home() + "/" + folder, std::make_shared<CancelToken>(), {},
                               [&last](const FileScanResult& result) { last = result; });
        EXPECT_EQ(last.duplicates.size(), 1u);
        DuplicateGroup group = last.duplicates.at(0);
        // The walk lists in directory order; the copy called "kept" is the one that stays.
        std::stable_partition(group.files.begin(), group.files.end(),
                              [](const ScannedFile& file) { return file.path.ends_with("kept.bin"); });
        return group;
    }
};

TEST_F(TrashSelectionJobTest, ACopyGoesOnlyWhileAVerifiedCopyStays)
{
    struct Case {
        const char* what;
        std::function<void(const std::string& kept)> afterScan;
        bool everyCopyTicked;
        bool copiesGo;
    };
    const std::vector<Case> cases = {
        {"the kept copy is untouched", [](const std::string&) {}, false, true},
        {"the kept copy was rewritten with other bytes of the same size",
         [](const std::string& kept) { std::ofstream(kept, std::ios::binary) << std::string(1'200'000, 'd'); }, false,
         false},
        {"the kept copy was deleted", [](const std::string& kept) { fs::remove(kept); }, false, false},
        {"the kept copy became a link to a copy that goes",
         [](const std::string& kept) {
             fs::remove(kept);
             fs::create_symlink(fs::path(kept).parent_path() / "copy1.bin", kept);
         },
         false, false},
        {"every copy is ticked, so none would stay", [](const std::string&) {}, true, false},
    };
    int folder = 0;
    for (const Case& test : cases) {
        const DuplicateGroup group = copies("case" + std::to_string(folder++));
        const std::string kept = group.files[0].path;
        test.afterScan(kept);
        std::vector<std::string> ticked = {group.files[1].path, group.files[2].path};
        if (test.everyCopyTicked)
            ticked.push_back(kept);

        const TrashSelectionJob::Outcome outcome = TrashSelectionJob(ticked, {group}).run();

        EXPECT_EQ(fs::exists(group.files[1].path), !test.copiesGo) << test.what;
        EXPECT_EQ(fs::exists(group.files[2].path), !test.copiesGo) << test.what;
        EXPECT_EQ(outcome.trashed.size(), test.copiesGo ? 2u : 0u) << test.what;
        EXPECT_EQ(outcome.keptAsLastCopy.size(), test.copiesGo ? 0u : ticked.size()) << test.what;
        if (test.copiesGo) {
            EXPECT_TRUE(fs::exists(kept));
            EXPECT_EQ(outcome.freed, 2 * group.size);
            EXPECT_EQ(outcome.trashed[0].original, group.files[1].path);
            EXPECT_TRUE(fs::exists(outcome.trashed[0].trashPath));
        }
    }
}

TEST_F(TrashSelectionJobTest, OnlyWhatLiesInTheHomeOrPassesTheSafetyTestMayGo)
{
    const std::string outside = tempHome.root() + "/outside";
    fs::create_directories(outside);
    std::ofstream(outside + "/file.bin") << "x";
    fs::create_symlink(outside + "/file.bin", tempHome.home() + "/link.bin");
    const std::string inside = tempHome.writeFile("Documents/file.bin", "x");

    EXPECT_TRUE(TrashSelectionJob::mayTrash(inside));
    EXPECT_FALSE(TrashSelectionJob::mayTrash(outside + "/file.bin"));
    EXPECT_FALSE(TrashSelectionJob::mayTrash(tempHome.home() + "/link.bin"));  // judged where it leads
    EXPECT_FALSE(TrashSelectionJob::mayTrash("/usr/bin/env"));

    const auto outcome = TrashSelectionJob({outside + "/file.bin", inside}, {}).run();
    EXPECT_TRUE(fs::exists(outside + "/file.bin"));
    EXPECT_FALSE(fs::exists(inside));
    ASSERT_EQ(outcome.trashed.size(), 1u);

    EXPECT_EQ(TrashSelectionJob::historyName(1), "1 file (duplicate/large)");
    EXPECT_EQ(TrashSelectionJob::historyName(0), "0 files (duplicate/large)");
    EXPECT_EQ(TrashSelectionJob::historyName(12), "12 files (duplicate/large)");
}

}  // namespace
