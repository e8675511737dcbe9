#include "Platform/DirectoryWalker.h"
#include "Platform/FileSystem.h"
#include "Support/DroppedCapabilities.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Counts what the walker shows and watches the descriptors it holds.
class CountingVisitor : public DirectoryWalker::Visitor {
public:
    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        ++entries;
        maxDepth = std::max(maxDepth, entry.depth);
        if (entry.info.isSymlink())
            ++links;
        if (entry.depth % 500 == 0 || entry.depth == 1000)
            maxDescriptors = std::max(maxDescriptors, TreeBuilder::openDescriptorCount());
        return entry.info.isFolder() ? DirectoryWalker::Action::descend : DirectoryWalker::Action::skip;
    }
    void leave(const DirectoryWalker::Entry&) override { ++left; }
    void unreadable(const DirectoryWalker::Entry&) override { ++unreadableFolders; }

    int entries = 0, links = 0, left = 0, unreadableFolders = 0, maxDepth = 0, maxDescriptors = 0;
};

}  // namespace

// However deep the tree, the walker holds at most a quarter of the descriptors the process may
// open: under a tight limit it climbs back through "..", under a loose one it keeps them all.
TEST_F(TempHomeTest, WalkerGoesThousandsOfLevelsDeepWithinTheDescriptorLimit)
{
    const std::string root = tempHome.makeFolder("deep");
    TreeBuilder::makeDeepChain(root, 1200, "level-with-a-longish-name", 10);
    struct rlimit original {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &original), 0);
    struct Case {
        rlim_t limit;
        int fewest, most;  // descriptors open 1,000 levels down
    };
    for (const Case& c : {Case{256, 0, 120}, Case{8192, 1000, 1100}}) {
        if (c.limit > original.rlim_max)
            continue;
        struct rlimit changed = original;
        changed.rlim_cur = c.limit;
        ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &changed), 0);
        CountingVisitor visitor;
        const bool walked = DirectoryWalker::walk(root, visitor);
        setrlimit(RLIMIT_NOFILE, &original);
        EXPECT_TRUE(walked) << c.limit;
        EXPECT_EQ(visitor.maxDepth, 1201) << c.limit;  // the file below the 1200th folder
        EXPECT_EQ(visitor.entries, 1201) << c.limit;
        EXPECT_EQ(visitor.left, 1200) << c.limit;
        EXPECT_GE(visitor.maxDescriptors, c.fewest) << c.limit;
        EXPECT_LE(visitor.maxDescriptors, c.most) << c.limit;  // although the path is far past PATH_MAX
    }

    EXPECT_TRUE(FileSystem::removeItem(root + "/level-with-a-longish-name"));
    EXPECT_EQ(TreeBuilder::chainDepth(root, "level-with-a-longish-name"), 0);
}

// A walk gone alone keeps its own descriptors and the standard three, and nothing else of the
// process's: a pipe the process closes ends while the walk goes on, which a copy held by the walk
// would prevent. The walk still sees every entry, and the process keeps what it had.
TEST_F(TempHomeTest, AWalkGoneAloneHoldsNoneOfTheProcesssOtherDescriptors)
{
    // It goes alone after 512 entries, two or three folders down, with their descriptors open.
    std::string folder = "tree";
    for (const char* level : {"a", "b", "c", "d"}) {
        folder += std::string("/") + level;
        for (int i = 0; i < 200; ++i)
            tempHome.writeFile(folder + "/" + std::to_string(i));
    }
    int below[2], above[2];
    ASSERT_EQ(pipe2(below, O_CLOEXEC), 0);
    const int root = open((tempHome.home() + "/tree").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(pipe2(above, O_CLOEXEC), 0);

    struct Alone final : CountingVisitor {
        int* writers[2];
        std::promise<std::vector<bool>> seen;
        std::promise<void> checked;
        bool gone = false, looked = false;
        void goingAlone() override { gone = true; }
        // At the first entry after going alone, measurable or not.
        void look(int parentDescriptor)
        {
            if (!gone || std::exchange(looked, true))
                return;
            std::vector<bool> open;
            for (const int descriptor : {parentDescriptor, STDERR_FILENO, writers[0][1], writers[1][1]})
                open.push_back(fcntl(descriptor, F_GETFD) >= 0);
            seen.set_value(open);
            checked.get_future().wait();
        }
        DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
        {
            look(entry.parentDescriptor);
            return CountingVisitor::visit(entry);
        }
        void unmeasurable(int parentDescriptor, std::string_view, int) override { look(parentDescriptor); }
    } visitor;
    visitor.writers[0] = below;
    visitor.writers[1] = above;
    bool walked = false;
    std::thread walk([&] { walked = DirectoryWalker::walkDescriptor(root, visitor, DirectoryWalker::ReadAheadMode::off, 1); });
    auto seen = visitor.seen.get_future();
    if (seen.wait_for(std::chrono::seconds(10)) != std::future_status::ready) {
        walk.join();
        FAIL() << "the walk never went alone";
    }
    EXPECT_EQ(seen.get(), (std::vector<bool>{true, true, false, false}));
    for (const int* ends : {below, above}) {
        close(ends[1]);
        pollfd reader{ends[0], POLLIN, 0};
        EXPECT_EQ(poll(&reader, 1, 5000), 1);
        EXPECT_TRUE(reader.revents & POLLHUP) << "the walk still holds the writing end";
    }
    visitor.checked.set_value();
    walk.join();
    EXPECT_TRUE(walked);
    EXPECT_EQ(visitor.entries, 804);
    EXPECT_EQ(visitor.left, 4);
    for (const int descriptor : {root, below[0], above[0]}) {
        EXPECT_GE(fcntl(descriptor, F_GETFD), 0);
        close(descriptor);
    }
}

TEST_F(TempHomeTest, WalkerNeverFollowsLinksAndSurvivesLoops)
{
    const std::string root = tempHome.makeFolder("tree");
    TreeBuilder::writeFile(tempHome.home() + "/outside/big.bin", 100);
    fs::create_directory_symlink(tempHome.home() + "/outside", root + "/to-outside");
    fs::create_directory_symlink(root, root + "/loop");
    fs::create_directories(root + "/a/b");
    fs::create_directory_symlink("..", root + "/a/b/up");
    CountingVisitor visitor;
    EXPECT_TRUE(DirectoryWalker::walk(root, visitor));
    EXPECT_EQ(visitor.entries, 5);  // to-outside, loop, a, b, up
    EXPECT_EQ(visitor.links, 3);
}

TEST_F(TempHomeTest, RemovingATreeRemovesLinksNotWhatTheyPointAt)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/keep/precious.txt", 5);
    TreeBuilder::writeFile(home + "/doomed/inner/file.txt", 5);
    fs::create_directory_symlink(home + "/keep", home + "/doomed/inner/link-to-keep");
    fs::create_symlink(home + "/keep/precious.txt", home + "/doomed/file-link");
    fs::create_symlink(home + "/nowhere", home + "/doomed/dangling");
    TreeBuilder::writeFile(home + "/doomed/name with spaces\nand newline", 1);
    TreeBuilder::writeFile(home + "/doomed/bad-\xff\xfe-utf8", 1);
    // Folders listed after many names: the walk drops the names it visited before entering
    // some of them, and must still name each folder rightly when it leaves it.
    for (int i = 0; i < 20; ++i) {
        TreeBuilder::writeFile(home + "/doomed/f" + std::to_string(i), 1);
        TreeBuilder::writeFile(home + "/doomed/d" + std::to_string(i) + "/inner-file", 1);
    }

    EXPECT_TRUE(FileSystem::removeItem(home + "/doomed"));
    EXPECT_FALSE(FileSystem::exists(home + "/doomed"));
    EXPECT_TRUE(fs::exists(home + "/keep/precious.txt"));

    // A link given directly goes as a link.
    fs::create_directory_symlink(home + "/keep", home + "/link");
    EXPECT_TRUE(FileSystem::removeItem(home + "/link"));
    EXPECT_TRUE(fs::exists(home + "/keep/precious.txt"));
    EXPECT_TRUE(FileSystem::removeItem(home + "/never-there"));
}

TEST_F(TempHomeTest, UnreadableFoldersAreReportedAndKept)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/tree/open/a.txt", 1);
    TreeBuilder::writeFile(home + "/tree/locked/secret.txt", 1);
    chmod((home + "/tree/locked").c_str(), 0);
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        CountingVisitor visitor;
        EXPECT_TRUE(DirectoryWalker::walk(home + "/tree", visitor));
        EXPECT_EQ(visitor.unreadableFolders, 1);
        EXPECT_EQ(visitor.entries, 3);  // open, a.txt, locked — nothing from inside locked

        EXPECT_FALSE(FileSystem::removeItem(home + "/tree"));
        EXPECT_FALSE(fs::exists(home + "/tree/open"));  // what could go, went
    }
    chmod((home + "/tree/locked").c_str(), 0755);
    EXPECT_TRUE(fs::exists(home + "/tree/locked/secret.txt"));
}

TEST_F(TempHomeTest, AnEntryThatVanishesMidWalkIsPassedOver)
{
    const std::string root = tempHome.makeFolder("racy");
    for (int i = 0; i < 20; ++i)
        TreeBuilder::writeFile(root + "/f" + std::to_string(i), 1);

    // Removes every other entry the moment the first one is seen, after the listing was made.
    class Vanisher : public DirectoryWalker::Visitor {
    public:
        explicit Vanisher(std::string root) : root_(std::move(root)) {}
        DirectoryWalker::Action visit(const DirectoryWalker::Entry&) override
        {
            if (seen++ == 0) {
                for (const auto& entry : fs::directory_iterator(root_))
                    fs::remove(entry.path());
            }
            return DirectoryWalker::Action::skip;
        }
        int seen = 0;

    private:
        std::string root_;
    } vanisher(root);
    EXPECT_TRUE(DirectoryWalker::walk(root, vanisher));
    EXPECT_EQ(vanisher.seen, 1);
}

// A file's length is not the blocks it takes: a length changed within the same blocks must show.
TEST_F(TempHomeTest, AFilesLengthIsNotItsBlocks)
{
    EXPECT_EQ(FileSystem::info(tempHome.writeFile("one-byte", "x"))->logicalSize, 1);
}
