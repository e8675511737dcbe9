#include "Services/DuplicateScanner.h"

#include "Services/FileDigest.h"
#include "Support/DroppedCapabilities.h"
#include "Support/PathsOf.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sys/stat.h>

namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

constexpr std::int64_t MB = 1'000'000;

std::vector<ScannedFile> files(const std::vector<std::pair<std::string, std::int64_t>>& list)
{
    std::vector<ScannedFile> result;
    for (const auto& [path, size] : list)
        result.push_back({path, size});
    return result;
}

TEST(DuplicateScannerStages, BucketsStartAtTheFloorRunLargestFirstAndDropLoneSizes)
{
    struct Case {
        const char* what;
        std::vector<std::pair<std::string, std::int64_t>> all;
        std::vector<std::vector<std::string>> buckets;
    };
    const std::vector<Case> cases = {
        {"999,999 bytes never take part, 1,000,000 do",
         {{"a", MB - 1}, {"b", MB - 1}, {"c", MB}, {"d", MB}},
         {{"c", "d"}}},
        {"larger sizes first, walk order within a size, lone sizes dropped",
         {{"a", 2 * MB}, {"b", 3 * MB}, {"c", 2 * MB}, {"d", 5 * MB}, {"e", 3 * MB}, {"f", 2 * MB}},
         {{"b", "e"}, {"a", "c", "f"}}},
    };
    for (const Case& test : cases) {
        std::vector<std::vector<std::string>> buckets;
        for (const auto& bucket : DuplicateScanner::candidateBuckets(files(test.all)))
            buckets.push_back(pathsOf(bucket));
        EXPECT_EQ(buckets, test.buckets) << test.what;
    }
}

TEST(DuplicateScannerStages, LargestKeepsAHundredInStableOrder)
{
    // 101 files of 0, 1 and 2 bytes in turn: every 2 in walk order, then every 1, then the 0s
    // but the last.
    std::vector<ScannedFile> all, expected;
    for (int i = 0; i < 101; ++i)
        all.push_back({"f" + std::to_string(i), i % 3});
    for (std::int64_t size : {2, 1, 0}) {
        for (const ScannedFile& file : all) {
            if (file.size == size && expected.size() < 100)
                expected.push_back(file);
        }
    }
    EXPECT_EQ(DuplicateScanner::largest(all), expected);
}

TEST(DuplicateScannerStages, GroupsFollowDigestsAndSortByWhatTheyFree)
{
    const auto bucket = files({{"a", 2 * MB}, {"b", 2 * MB}, {"c", 2 * MB}, {"d", 2 * MB}, {"e", 2 * MB}});
    const std::vector<std::optional<std::string>> digests = {"y", "x", std::nullopt, "y", "x"};
    const auto groups = DuplicateScanner::groupsOf(bucket, digests);
    ASSERT_EQ(groups.size(), 2u);  // in the order each digest first appears
    EXPECT_EQ(groups[0].id, "y");
    EXPECT_THAT(pathsOf(groups[0].files), ElementsAre("a", "d"));
    EXPECT_EQ(groups[1].id, "x");

    // Three copies of 2 MB free 4 MB, ahead of two copies of 3 MB; equal amounts keep order.
    const DuplicateGroup twoOfThree{"t", 3 * MB, files({{"t1", 3 * MB}, {"t2", 3 * MB}})};
    const DuplicateGroup threeOfTwo{"s", 2 * MB, files({{"s1", 2 * MB}, {"s2", 2 * MB}, {"s3", 2 * MB}})};
    const DuplicateGroup alsoThree{"u", 3 * MB, files({{"u1", 3 * MB}, {"u2", 3 * MB}})};
    const auto sorted = DuplicateScanner::sortedGroups({twoOfThree, alsoThree, threeOfTwo});
    EXPECT_EQ(sorted, (std::vector<DuplicateGroup>{threeOfTwo, twoOfThree, alsoThree}));
}

// Contents of `size` bytes drawn from `seed`; `flipAt` changes one byte of it.
std::string contents(std::size_t size, unsigned seed, std::optional<std::size_t> flipAt = std::nullopt)
{
    std::string bytes(size, '\0');
    std::uint64_t state = seed * 0x9e3779b97f4a7c15ULL + 1;
    for (char& byte : bytes) {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        byte = static_cast<char>(state >> 56);
    }
    if (flipAt)
        bytes[*flipAt] = static_cast<char>(~bytes[*flipAt]);
    return bytes;
}

struct Calls {
    std::vector<std::int64_t> progress;
    std::vector<FileScanResult> results;
};

class DuplicateScannerTest : public TempHomeTest {
protected:
    std::string path(const std::string& relative) const { return tempHome.home() + "/" + relative; }
    std::string write(const std::string& relative, const std::string& bytes) const
    {
        return tempHome.writeFile(relative, bytes);
    }

    Calls scan(const std::string& root, const DuplicateScanner::Options& options = {},
             const std::function<void(Calls&, const std::shared_ptr<CancelToken>&)>& onCall = {}) const
    {
        Calls run;
        auto token = std::make_shared<CancelToken>();
        DuplicateScanner::scan(
            root, token,
            [&](std::int64_t count) {
                run.progress.push_back(count);
                if (onCall)
                    onCall(run, token);
            },
            [&](const FileScanResult& result) {
                run.results.push_back(result);
                if (onCall)
                    onCall(run, token);
            },
            options);
        return run;
    }
};

// Both ways of reading must find the same: the plain one hashes everything in full on one thread.
const std::vector<std::pair<const char*, DuplicateScanner::Options>> readingWays = {
    {"plain", {{.setAsideByEnds = false, .compareWithFirst = false, .threads = 1}, nullptr}},
    {"shortcuts", {{.setAsideByEnds = true, .compareWithFirst = true, .threads = 3}, nullptr}},
    {"compared, ends unread", {{.setAsideByEnds = false, .compareWithFirst = true, .threads = 2}, nullptr}},
};

TEST_F(DuplicateScannerTest, FindsCopiesStageByStageWhateverTheWayOfReading)
{
    const std::string big = contents(3 * MB, 1);
    const std::string a = write("tree/a.bin", big);
    write("tree/sub/.hidden/copy.bin", big);   // hidden folders are never entered
    write("tree/.copy.bin", big);              // nor hidden files listed
    const std::string b = write("tree/sub/b.bin", big);
    std::filesystem::create_symlink(a, path("tree/link.bin"));  // links are never followed
    std::filesystem::create_directory_symlink(path("tree/sub"), path("tree/linkdir"));
    // Three copies of 2 MB free more than two of 3 MB, so they come first once found.
    const std::string small = contents(2 * MB, 2);
    const std::string c1 = write("tree/c1.bin", small);
    const std::string c2 = write("tree/deeper/c2.bin", small);
    const std::string c3 = write("tree/deeper/c3.bin", small);
    // Same size, different contents: differing at the start, the end, the middle, or one of two
    // contents each with its own copy.
    write("tree/d/first.bin", contents(2 * MB, 2, 0));
    write("tree/d/last.bin", contents(2 * MB, 2, 2 * MB - 1));
    // The one in the middle has a copy: it differs from the first copy it is compared with, yet
    // still finds its twin.
    const std::string m1 = write("tree/d/middle.bin", contents(2 * MB, 2, MB));
    const std::string m2 = write("tree/d/middle2.bin", contents(2 * MB, 2, MB));
    const std::string other = contents(MB + 5000, 3);
    const std::string e1 = write("tree/e1.bin", other), e2 = write("tree/e2.bin", other);
    const std::string f1 = write("tree/f1.bin", contents(MB + 5000, 4));
    const std::string f2 = write("tree/f2.bin", contents(MB + 5000, 4));
    // Two hard links to one file are two files with one digest.
    const std::string h1 = write("tree/h1.bin", contents(MB + 300'000, 5));
    const std::string h2 = path("tree/h2.bin");
    std::filesystem::create_hard_link(h1, h2);
    write("tree/tiny.txt", "x");

    std::optional<Calls> first;
    for (const auto& [way, options] : readingWays) {
        const Calls run = scan(path("tree"), options);
        ASSERT_EQ(run.progress, std::vector<std::int64_t>{16}) << way;
        // The largest right after the walk; then one picture per size with copies, largest
        // size first (3 MB, 2 MB with two groups, 1.3 MB, 1.005 MB); then the final one.
        ASSERT_EQ(run.results.size(), 6u) << way;
        const FileScanResult& walked = run.results[0];
        EXPECT_EQ(walked.largest.size(), 16u);
        EXPECT_EQ(walked.largest.front().size, TreeBuilder::allocatedSize(a));
        EXPECT_EQ(walked.largest.back().path, path("tree/tiny.txt"));
        for (const FileScanResult& result : run.results)
            EXPECT_EQ(result.largest, walked.largest) << way;
        std::vector<std::size_t> counts;
        for (const FileScanResult& result : run.results)
            counts.push_back(result.duplicates.size());
        // Two contents in one size, each with a copy, arrive together in one picture.
        EXPECT_THAT(counts, ElementsAre(0, 1, 3, 4, 6, 6)) << way;

        const auto& final = run.results.back().duplicates;
        ASSERT_EQ(final.size(), 6u) << way;
        EXPECT_THAT(pathsOf(final[0].files), UnorderedElementsAre(c1, c2, c3));
        EXPECT_THAT(pathsOf(final[1].files), UnorderedElementsAre(a, b));
        EXPECT_EQ(final[1].id, FileDigest::sha256(a));
        EXPECT_EQ(final[1].size, TreeBuilder::allocatedSize(a));
        EXPECT_THAT(pathsOf(final[2].files), UnorderedElementsAre(m1, m2));
        EXPECT_THAT(pathsOf(final[3].files), UnorderedElementsAre(h1, h2));
        EXPECT_EQ(final[4].size, final[5].size);
        EXPECT_EQ((std::set<std::string>{final[4].files[0].path, final[5].files[0].path, final[4].files[1].path,
                                         final[5].files[1].path}),
                  (std::set<std::string>{e1, e2, f1, f2}));
        // Members keep walk order, which equal sizes also keep among the largest.
        const std::vector<std::string> walkOrder = pathsOf(walked.largest);
        const auto position = [&walkOrder](const ScannedFile& file) {
            return std::find(walkOrder.begin(), walkOrder.end(), file.path) - walkOrder.begin();
        };
        for (const DuplicateGroup& group : final) {
            EXPECT_TRUE(std::is_sorted(group.files.begin(), group.files.end(),
                                       [&](const ScannedFile& x, const ScannedFile& y) { return position(x) < position(y); }));
        }
        EXPECT_EQ(run.results[4].duplicates, final);
        if (first) {
            EXPECT_EQ(run.results, first->results) << way;
        } else {
            first = run;
        }
    }
}

TEST_F(DuplicateScannerTest, EqualAllocationsWithDifferentLengthsShareABucketAndPartByDigest)
{
    const std::string one = write("alloc/one.bin", contents(MB + 100, 6));
    const std::string two = write("alloc/two.bin", contents(MB + 200, 6));
    ASSERT_EQ(TreeBuilder::allocatedSize(one), TreeBuilder::allocatedSize(two));
    for (const auto& [way, options] : readingWays) {
        BucketHasher::Counters counters;
        DuplicateScanner::Options counted = options;
        counted.counters = &counters;
        const Calls run = scan(path("alloc"), counted);
        ASSERT_EQ(run.results.size(), 2u) << way;  // no bucket yielded a group
        EXPECT_TRUE(run.results.back().duplicates.empty());
        // Both were candidates: read in full, or set aside by their lengths.
        EXPECT_EQ(counters.filesHashed + counters.filesSetAside, 2) << way;
    }
}

TEST_F(DuplicateScannerTest, ProgressComesEveryFiveHundredFilesAndOnceAtTheEnd)
{
    const std::vector<std::pair<int, std::vector<std::int64_t>>> cases = {
        {1200, {500, 1000, 1200}}, {1000, {500, 1000, 1000}}, {0, {0}}};
    for (const auto& [count, expected] : cases) {
        const std::string folder = "count" + std::to_string(count);
        std::filesystem::create_directories(path(folder));
        for (int i = 0; i < count; ++i)
            std::ofstream(path(folder + "/" + std::to_string(i)));
        const Calls run = scan(path(folder));
        EXPECT_EQ(run.progress, expected) << count;
        // With nothing at the floor: the largest after the walk, and the final picture.
        ASSERT_EQ(run.results.size(), 2u);
        EXPECT_EQ(run.results[1], run.results[0]);
        EXPECT_EQ(run.results[0].largest.size(), std::min<std::size_t>(count, 100));
    }
}

TEST_F(DuplicateScannerTest, CancellingInTheWalkGivesNoResultAndInTheHashingKeepsTheLastPicture)
{
    std::filesystem::create_directories(path("cancel"));
    for (int i = 0; i < 700; ++i)
        std::ofstream(path("cancel/" + std::to_string(i)));
    const Calls walk = scan(path("cancel"), {}, [](Calls& run, const std::shared_ptr<CancelToken>& token) {
        if (run.progress.size() == 1)
            token->cancel();
    });
    EXPECT_EQ(walk.progress, std::vector<std::int64_t>{500});
    EXPECT_TRUE(walk.results.empty());

    for (int i = 0; i < 3; ++i) {
        const std::string bytes = contents(std::size_t(MB) + std::size_t(i) * 10'000, 7 + i);
        write("cancel/big" + std::to_string(i) + "a", bytes);
        write("cancel/big" + std::to_string(i) + "b", bytes);
    }
    const Calls hashing = scan(path("cancel"), {}, [](Calls& run, const std::shared_ptr<CancelToken>& token) {
        if (run.results.size() == 2)
            token->cancel();
    });
    ASSERT_EQ(hashing.results.size(), 2u);  // the largest, then the first size's copies
    EXPECT_EQ(hashing.results[1].duplicates.size(), 1u);
}

TEST_F(DuplicateScannerTest, UnreadableFilesDropOutAndOddNamesKeepTheirBytes)
{
    const std::string bytes = contents(MB, 8);
    const std::string odd = write("odd/caf\xe9-\xff.bin", bytes);  // not UTF-8
    const std::string plain = write("odd/plain.bin", bytes);
    const std::string locked = write("odd/locked.bin", contents(MB, 9));
    write("odd/partner.bin", contents(MB, 9));
    write("odd/closed/inside.bin", bytes);
    chmod(locked.c_str(), 0);
    chmod(path("odd/closed").c_str(), 0);
    DroppedCapabilities dropped;
    MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);

    const Calls run = scan(path("odd"));
    ASSERT_FALSE(run.results.empty());
    const auto& groups = run.results.back().duplicates;
    ASSERT_EQ(groups.size(), 1u);  // the locked file's partner is left alone
    const std::vector<std::string> members = pathsOf(groups[0].files);
    EXPECT_EQ(std::set<std::string>(members.begin(), members.end()), (std::set<std::string>{odd, plain}));
    EXPECT_EQ(run.progress.back(), 4);  // the closed folder is passed over
}

TEST_F(DuplicateScannerTest, ARootThatIsNoFolderGivesNoCallAtAll)
{
    const std::string file = write("file.bin", "x");
    for (const std::string& root : {file, path("missing")}) {
        const Calls run = scan(root);
        EXPECT_TRUE(run.progress.empty()) << root;
        EXPECT_TRUE(run.results.empty()) << root;
    }
    // "~" stands for the home folder.
    write("tilde/x.bin", "x");
    EXPECT_EQ(scan("~/tilde").results.at(0).largest.at(0).path, path("tilde/x.bin"));
}

}  // namespace
