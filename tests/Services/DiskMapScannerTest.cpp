#include "Services/DiskMapScanner.h"
#include "Services/Scanner.h"

#include "Platform/FileSystem.h"
#include "Support/DroppedCapabilities.h"
#include "Support/FailingFolderReads.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

DiskNode scan(const std::string& root, std::shared_ptr<CancelToken> token = std::make_shared<CancelToken>(),
              const DiskMapScanner::Progress& onProgress = {}, const DiskMapScanner::ChildHandler& onChild = {})
{
    return DiskMapScanner::scanStreaming(root, token, onProgress, onChild);
}

std::vector<std::string> idsOf(std::span<const DiskNode> nodes)
{
    std::vector<std::string> ids;
    for (const auto& node : nodes)
        ids.push_back(node.id());
    return ids;
}

// Full paths of a folder's entries, in the order the folder lists them.
std::vector<std::string> listed(const std::string& folder, bool fullPaths = true)
{
    std::vector<std::string> entries;
    for (const auto& name : FileSystem::contentsOfFolder(folder).value_or(std::vector<std::string>{}))
        entries.push_back(fullPaths ? folder + "/" + name : name);
    return entries;
}

DiskNode entry(const std::string& name, std::int64_t size)
{
    return DiskNode("/f/" + name, name, size, false, FileCategory::other, std::nullopt, false, {});
}

// What any tree the scanner returns must satisfy, partial or not: a folder measures the sum of
// its entries (all files here are non-empty, so pruning drops nothing), kept entries run largest
// first, and the synthetic node, when present, is last.
void expectConsistent(const DiskNode& root)
{
    std::vector<const DiskNode*> pending{&root};
    while (!pending.empty()) {
        const DiskNode& node = *pending.back();
        pending.pop_back();
        std::int64_t sum = 0;
        const auto children = node.children();
        for (std::size_t i = 0; i < children.size(); ++i) {
            sum += children[i].size();
            if (children[i].isSynthetic()) {
                EXPECT_EQ(i, children.size() - 1) << node.id();
            } else if (i > 0) {
                EXPECT_LE(children[i].size(), children[i - 1].size()) << node.id();
            }
            pending.push_back(&children[i]);
        }
        if (node.isDirectory() && !children.empty()) {
            EXPECT_EQ(sum, node.size()) << node.id();
        }
    }
}

class DiskMapScannerTest : public TempHomeTest {
protected:
    std::string path(const std::string& relative) const { return tempHome.home() + "/" + relative; }
};

TEST_F(DiskMapScannerTest, FolderOfSixtyOneEqualFilesKeepsTheFirstSixtyListed)
{
    for (int i = 0; i < 61; ++i)
        tempHome.writeFile("equal/file" + std::to_string(i) + ".txt", std::string(100, 'x'));
    const std::vector<std::string> listed = ::listed(path("equal"));

    const DiskNode root = scan(path("equal"));

    const auto children = root.children();
    ASSERT_EQ(children.size(), 61u);
    EXPECT_EQ(idsOf(children.first(60)), std::vector<std::string>(listed.begin(), listed.begin() + 60));
    const DiskNode& synthetic = children.back();
    EXPECT_TRUE(synthetic.isSynthetic());
    EXPECT_TRUE(synthetic.isDirectory());
    EXPECT_EQ(synthetic.name(), "(smaller items)");
    EXPECT_EQ(synthetic.id(), listed.front() + "#other");
    EXPECT_EQ(synthetic.category(), FileCategory::other);
    EXPECT_FALSE(synthetic.modified());
    EXPECT_THAT(idsOf(synthetic.children()), ElementsAre(listed.back()));
    EXPECT_EQ(root.size(), 61 * TreeBuilder::allocatedSize(listed.front()));
    EXPECT_EQ(root.category(), FileCategory::documents);
    expectConsistent(root);
}

// Ties keep their listing order, in a folder of a few entries and in one large enough to fold,
// whose "(smaller items)" goes on in the same order.
TEST_F(DiskMapScannerTest, FoldersRunLargestFirstWithTiesInListingOrder)
{
    for (const auto& [folder, files] : {std::pair<std::string, int>{"few", 8}, {"many", 150}}) {
        // Three sizes in turn: ties everywhere, and the listing order is not the size order.
        constexpr std::array sizes{100, 20000, 5000};
        for (int i = 0; i < files; ++i)
            tempHome.writeFile(folder + "/f" + std::to_string(i) + ".bin", std::string(sizes[i % 3], 'x'));
        std::vector<std::string> expected = listed(path(folder));
        std::stable_sort(expected.begin(), expected.end(), [](const std::string& a, const std::string& b) {
            return TreeBuilder::allocatedSize(a) > TreeBuilder::allocatedSize(b);
        });

        const DiskNode root = scan(path(folder));

        std::vector<std::string> shown = idsOf(root.children());
        if (root.children().back().isSynthetic()) {
            shown.pop_back();
            const auto folded = idsOf(root.children().back().children());
            shown.insert(shown.end(), folded.begin(), folded.end());
        }
        EXPECT_EQ(shown, expected) << folder;
        EXPECT_EQ(root.children().back().isSynthetic(), files > 60) << folder;
    }
}

TEST_F(DiskMapScannerTest, PruneFoldsByShareAndCount)
{
    const DiskNode::Path folder("/f");
    // 249 bytes: the threshold truncates to 0, so even an empty entry stays.
    EXPECT_THAT(idsOf(DiskMapScanner::prune(folder, {entry("a", 249), entry("z", 0)}, 249)),
                ElementsAre("/f/a", "/f/z"));
    // 250 bytes: the threshold is 1; the empty entry is the only small one and vanishes.
    EXPECT_THAT(idsOf(DiskMapScanner::prune(folder, {entry("a", 250), entry("z", 0)}, 250)), ElementsAre("/f/a"));
    // An entry exactly at the threshold (2 of 500) stays; one byte below goes.
    const auto atThreshold = DiskMapScanner::prune(folder, {entry("a", 497), entry("b", 2), entry("c", 1)}, 500);
    EXPECT_THAT(idsOf(atThreshold), ElementsAre("/f/a", "/f/b", "/f/a#other"));
    EXPECT_EQ(atThreshold.back().size(), 1);
    EXPECT_TRUE(DiskMapScanner::prune(folder, {entry("a", 0)}, 0).empty());

    // A hundred entries of 10 bytes: 60 stay, the other 40 make a node larger than any of them,
    // which still comes last and keeps them in order.
    std::vector<DiskNode> hundred;
    std::vector<std::string> folded;
    for (int i = 0; i < 100; ++i) {
        hundred.push_back(entry("e" + std::to_string(i), 10));
        if (i >= 60)
            folded.push_back("/f/e" + std::to_string(i));
    }
    const auto pruned = DiskMapScanner::prune(folder, hundred, 1000);
    ASSERT_EQ(pruned.size(), 61u);
    EXPECT_EQ(pruned.back().size(), 400);
    EXPECT_TRUE(pruned.back().isSynthetic());
    EXPECT_EQ(pruned.back().id(), "/f/e0#other");
    EXPECT_EQ(idsOf(pruned.back().children()), folded);
}

TEST_F(DiskMapScannerTest, MeasuresWhatIsThereWithoutFollowingLinksOrHiddenEntries)
{
    tempHome.writeFile("root/big/inside.mov", std::string(20000, 'x'));
    tempHome.writeFile("root/.hidden/secret.txt", std::string(50000, 'x'));
    tempHome.writeFile("root/.dotfile", std::string(50000, 'x'));
    tempHome.writeFile("root/shared.txt", std::string(5000, 'x'));
    tempHome.makeFolder("root/other");
    ASSERT_EQ(link(path("root/shared.txt").c_str(), path("root/other/hardlink.txt").c_str()), 0);
    std::filesystem::create_directory_symlink(path("root/big"), path("root/linkToBig"));
    tempHome.makeFolder("root/Tool.app");
    tempHome.writeFile("root/Tool.app/readme.txt", std::string(100, 'x'));

    std::vector<DiskNode> streamed;
    const DiskNode root = DiskMapScanner::scanStreaming(
        path("root"), std::make_shared<CancelToken>(), {}, [&](const DiskNode& node) { streamed.push_back(node); },
        DiskMapScanner::hiddenEntriesOn(PlatformProfile::macOS));

    std::map<std::string, DiskNode> byName;
    for (const auto& node : streamed)
        byName.emplace(node.name(), node);
    EXPECT_EQ(byName.size(), 5u) << "on a Mac hidden entries are neither measured nor shown";
    const DiskNode& link = byName.at("linkToBig");
    EXPECT_FALSE(link.isDirectory());
    EXPECT_TRUE(link.children().empty());
    EXPECT_EQ(link.size(), TreeBuilder::allocatedSize(path("root/linkToBig")));
    EXPECT_EQ(byName.at("Tool.app").category(), FileCategory::apps);
    EXPECT_EQ(byName.at("big").category(), FileCategory::video);
    EXPECT_EQ(byName.at("other").size(), TreeBuilder::allocatedSize(path("root/shared.txt")))
        << "a hard link counts again wherever it is";
    const std::int64_t expected = TreeBuilder::allocatedSize(path("root/big/inside.mov")) +
                                  2 * TreeBuilder::allocatedSize(path("root/shared.txt")) +
                                  TreeBuilder::allocatedSize(path("root/linkToBig")) +
                                  TreeBuilder::allocatedSize(path("root/Tool.app/readme.txt"));
    EXPECT_EQ(root.size(), expected);
    EXPECT_EQ(root.id(), path("root"));
    EXPECT_EQ(root.name(), "root");
    EXPECT_EQ(scan("~/root/").id(), path("root")) << "a root with ~ has its id spelled out";
}

TEST_F(DiskMapScannerTest, OnALinuxDesktopHiddenEntriesAreMappedLikeAnyOther)
{
    tempHome.writeFile("root/.cache/thumbnails/normal/a.png", std::string(30000, 'x'));
    // Neighbours whose names end alike but aren't all of a kind, in whatever order they list.
    for (const char* name : {".png", "b.png", "c.PNG", "d.png.log", "e.xpng", "png"})
        tempHome.writeFile(std::string("root/.cache/thumbnails/normal/") + name, "x");
    tempHome.writeFile("root/.local/share/game/data.pak", std::string(60000, 'x'));
    tempHome.writeFile("root/.dotfile", std::string(9000, 'x'));
    tempHome.writeFile("root/visible.txt", std::string(4000, 'x'));
    ASSERT_EQ(DiskMapScanner::hiddenEntriesOn(PlatformProfile::linuxDesktop), DiskMapScanner::HiddenEntries::included);

    const DiskNode root = DiskMapScanner::scanStreaming(path("root"), std::make_shared<CancelToken>(), {}, {},
                                                        DiskMapScanner::HiddenEntries::included);

    std::vector<std::string> names;
    for (const auto& child : root.children())
        names.push_back(std::string(child.name()));
    EXPECT_THAT(names, ElementsAre(".local", ".cache", ".dotfile", "visible.txt"));
    EXPECT_EQ(root.size(), Scanner::directorySize(path("root")));
    EXPECT_EQ(DiskMapScanner::scanStreaming(path("root"), std::make_shared<CancelToken>(), {}, {},
                                            DiskMapScanner::HiddenEntries::included,
                                            DirectoryWalker::ReadAheadMode::always),
              root);
    const DiskNode& cache = root.children()[1];
    ASSERT_EQ(cache.children().size(), 1u);
    EXPECT_EQ(cache.children()[0].id(), path("root/.cache/thumbnails"));
    std::vector<const DiskNode*> pending{&root};
    while (!pending.empty()) {
        const DiskNode* node = pending.back();
        pending.pop_back();
        if (!node->isDirectory()) {
            EXPECT_EQ(node->category(), FileCategories::forFile(node->name())) << node->id();
        }
        for (const DiskNode& child : node->children())
            pending.push_back(&child);
    }
}

TEST_F(DiskMapScannerTest, ReportsProgressBeforeEachStreamedFolder)
{
    for (const std::string folder : {"a/deep", "b", "c"})
        tempHome.writeFile("root/" + folder + "/file.bin", std::string(9000, 'x'));
    tempHome.writeFile("root/loose.bin", std::string(9000, 'x'));
    std::vector<std::string> events;
    std::vector<std::int64_t> reported;
    std::int64_t streamedTotal = 0;

    const DiskNode root = scan(
        path("root"), std::make_shared<CancelToken>(),
        [&](std::int64_t bytes) {
            events.push_back("progress");
            reported.push_back(bytes);
        },
        [&](const DiskNode& node) {
            events.push_back(std::string(node.name()));
            streamedTotal += node.size();
        });

    const std::vector<std::string> topLevel = listed(path("root"), false);
    std::vector<std::string> streamedOrder;
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (events[i] == "progress")
            continue;
        streamedOrder.push_back(events[i]);
        if (events[i] != "loose.bin") {
            EXPECT_TRUE(i > 0 && events[i - 1] == "progress") << events[i] << " came without its progress first";
        }
    }
    EXPECT_EQ(streamedOrder, topLevel) << "entries stream in listing order";
    EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
    EXPECT_EQ(streamedTotal, root.size());
}

// Past a number of entries, building moves off the walking thread mid-walk: nothing may be lost
// or doubled at the move, the streamed entries keep their order, and cancelling still stops the
// walk with a consistent tree.
TEST_F(DiskMapScannerTest, ALargeWalkMovesBuildingElsewhereWithoutLosingAnything)
{
    // Hard links to one file: quicker to make than as many files, and each counts in full.
    const std::string original = path("original");
    tempHome.writeFile("original", std::string(100, 'x'));
    int files = 0;
    for (const char* folder : {"a", "b", "c", "d"}) {
        const std::string parent = tempHome.makeFolder(std::string("root/") + folder);
        for (int i = 0; i < 7000; ++i, ++files)
            ASSERT_EQ(link(original.c_str(), (parent + "/" + std::to_string(i)).c_str()), 0);
    }
    const std::int64_t expectedSize = files * TreeBuilder::allocatedSize(original);
    std::vector<std::string> streamed;
    const DiskNode root = scan(path("root"), std::make_shared<CancelToken>(), {},
                               [&](const DiskNode& node) { streamed.push_back(std::string(node.name())); });
    EXPECT_EQ(root.size(), expectedSize);
    EXPECT_EQ(streamed, listed(path("root"), false));
    EXPECT_EQ(root.itemCount(), files + 5) << "every file, the four folders and the root";
    expectConsistent(root);

    // The third folder finishes past the move: cancelling then leaves the fourth out.
    auto token = std::make_shared<CancelToken>();
    int reports = 0;
    const DiskNode partial = scan(path("root"), token, [&](std::int64_t) {
        if (++reports == 3)
            token->cancel();
    });
    EXPECT_EQ(partial.size(), root.size() / 4 * 3);
    expectConsistent(partial);
}

TEST_F(DiskMapScannerTest, CancelledMidWalkReturnsAConsistentPartialTree)
{
    for (int folder = 0; folder < 4; ++folder)
        for (int sub = 0; sub < 3; ++sub)
            for (int file = 0; file < 20; ++file)
                tempHome.writeFile("root/f" + std::to_string(folder) + "/s" + std::to_string(sub) + "/x" +
                                       std::to_string(file),
                                   std::string(5000, 'x'));
    const std::int64_t full = scan(path("root")).size();
    auto token = std::make_shared<CancelToken>();
    std::int64_t streamedTotal = 0;
    int streamed = 0;
    int progressAfterCancel = 0;

    const DiskNode partial = scan(
        path("root"), token,
        [&](std::int64_t) {
            progressAfterCancel += token->isCancelled() ? 1 : 0;
            token->cancel();  // the first finished folder stops the walk
        },
        [&](const DiskNode& node) {
            ++streamed;
            streamedTotal += node.size();
        });

    EXPECT_GT(partial.size(), 0);
    EXPECT_LT(partial.size(), full);
    EXPECT_EQ(streamed, 1) << "the folder being walked is streamed with what it holds, then nothing";
    EXPECT_EQ(streamedTotal, partial.size());
    EXPECT_EQ(progressAfterCancel, 1) << "only the top folder left open reports again";
    expectConsistent(partial);
}

TEST_F(DiskMapScannerTest, RootsThatAreNotReadableFoldersFallBack)
{
    const std::string movie = tempHome.writeFile("clip.MOV", std::string(3000, 'x'));
    const DiskNode file = scan(movie);
    EXPECT_FALSE(file.isDirectory());
    EXPECT_EQ(file.id(), movie);
    EXPECT_EQ(file.size(), TreeBuilder::allocatedSize(movie));
    EXPECT_EQ(file.category(), FileCategory::video);
    EXPECT_TRUE(file.modified());

    const DiskNode missing = scan(path("nowhere.txt"));
    EXPECT_FALSE(missing.isDirectory());
    EXPECT_EQ(missing.size(), 0);
    EXPECT_FALSE(missing.modified());

    tempHome.writeFile("full/Library.photoslibrary/a.txt", "x");
    auto cancelled = std::make_shared<CancelToken>();
    cancelled->cancel();
    int callbacks = 0;
    const auto count = [&](auto&&...) { ++callbacks; };
    for (const std::string& root : {path("full"), path("full/Library.photoslibrary"), std::string("/")}) {
        const DiskNode empty = scan(root, cancelled, count, count);
        EXPECT_TRUE(empty.isDirectory()) << root;
        EXPECT_EQ(empty.size(), 0) << root;
        EXPECT_TRUE(empty.children().empty()) << root;
        EXPECT_FALSE(empty.modified()) << root;
    }
    EXPECT_EQ(callbacks, 0);
    EXPECT_EQ(scan("/", cancelled).name(), "/");
    EXPECT_EQ(scan("/", cancelled).id(), "/");
    EXPECT_EQ(scan(path("full/Library.photoslibrary"), cancelled).category(), FileCategory::images);

    const std::string locked = tempHome.makeFolder("full/locked");
    tempHome.writeFile("full/locked/inside.txt", std::string(5000, 'x'));
    ASSERT_EQ(chmod(locked.c_str(), 0), 0);
    DiskNode unreadableRoot;
    DiskNode parentOfUnreadable;
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        unreadableRoot = scan(locked);
        parentOfUnreadable = scan(path("full"));
    }
    chmod(locked.c_str(), 0755);
    EXPECT_TRUE(unreadableRoot.isDirectory());
    EXPECT_EQ(unreadableRoot.size(), 0);
    EXPECT_FALSE(unreadableRoot.modified());
    EXPECT_EQ(parentOfUnreadable.size(), TreeBuilder::allocatedSize(path("full/Library.photoslibrary/a.txt")))
        << "an unreadable folder adds nothing";
}

// What can't be read still shows as what is known of it: an entry whose metadata can't be read
// is a file of 0 bytes, and a folder whose listing breaks off shows nothing it held.
TEST_F(DiskMapScannerTest, UnreadableEntriesAndBrokenListingsShowWhatIsKnown)
{
    std::vector<DiskNode> streamed;
    const auto keep = [&](const DiskNode& node) { streamed.push_back(node); };

    tempHome.writeFile("Broken/notes.txt", std::string(3000, 'x'));
    tempHome.writeFile("Broken/Films/film.mov", std::string(90000, 'x'));
    tempHome.writeFile("Broken/Films/clip.mp4", std::string(9000, 'x'));
    DiskNode root;
    {
        FailingFolderReads failing(path("Broken/Films"));
        root = scan(path("Broken"), std::make_shared<CancelToken>(), {}, keep);
    }
    ASSERT_EQ(streamed.size(), 2u);
    const DiskNode& films = streamed[0].name() == "Films" ? streamed[0] : streamed[1];
    EXPECT_TRUE(films.isDirectory());
    EXPECT_EQ(films.size(), 0);
    EXPECT_TRUE(films.children().empty());
    EXPECT_FALSE(films.modified());
    EXPECT_EQ(root.size(), TreeBuilder::allocatedSize(path("Broken/notes.txt")));
    {
        FailingFolderReads failing(path("Broken"));
        root = scan(path("Broken"));
    }
    EXPECT_TRUE(root.isDirectory());
    EXPECT_EQ(root.size(), 0);
    EXPECT_TRUE(root.children().empty());
    EXPECT_FALSE(root.modified());

    // A folder that may be listed but not searched: its names are all there is.
    const std::string unsearchable = tempHome.makeFolder("Shared");
    tempHome.writeFile("Shared/report.pdf", std::string(5000, 'x'));
    tempHome.makeFolder("Shared/Photos");
    ASSERT_EQ(chmod(unsearchable.c_str(), 0444), 0);
    streamed.clear();
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        root = scan(unsearchable, std::make_shared<CancelToken>(), {}, keep);
    }
    chmod(unsearchable.c_str(), 0755);
    ASSERT_EQ(streamed.size(), 2u);
    for (const DiskNode& node : streamed) {
        EXPECT_FALSE(node.isDirectory()) << node.id();
        EXPECT_EQ(node.size(), 0) << node.id();
        EXPECT_FALSE(node.modified()) << node.id();
        EXPECT_EQ(node.category(), FileCategories::forFile(node.name())) << node.id();
    }
    EXPECT_EQ(root.size(), 0);
}

TEST_F(DiskMapScannerTest, WalksTwoThousandLevelsWithoutRecursing)
{
    const std::string root = tempHome.makeFolder("deep");
    TreeBuilder::makeDeepChain(root, 2000, "d", 5000);
    const int descriptorsBefore = TreeBuilder::openDescriptorCount();

    DiskNode tree = scan(root);

    EXPECT_EQ(TreeBuilder::openDescriptorCount(), descriptorsBefore);
    int depth = 0;
    const DiskNode* node = &tree;
    while (node->isDirectory() && node->children().size() == 1) {
        node = &node->children().front();
        ++depth;
    }
    EXPECT_EQ(depth, 2001) << "2,000 folders, then the file";
    EXPECT_EQ(node->name(), "bottom.bin");
    EXPECT_EQ(tree.size(), node->size());
    EXPECT_GT(tree.size(), 0);
    // Helpers reading ahead change nothing in the tree, and leave no descriptor open.
    EXPECT_EQ(DiskMapScanner::scanStreaming(root, std::make_shared<CancelToken>(), {}, {},
                                            DiskMapScanner::HiddenEntries::included,
                                            DirectoryWalker::ReadAheadMode::always),
              tree);
    EXPECT_EQ(TreeBuilder::openDescriptorCount(), descriptorsBefore);
    const DiskNode copy = tree;
    EXPECT_EQ(copy, tree);
    EXPECT_EQ(std::hash<DiskNode>{}(copy), std::hash<DiskNode>{}(tree));
    tree = DiskNode();  // the copy is the last owner now; freeing it must not exhaust the stack
}

}  // namespace
