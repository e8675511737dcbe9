#include "Models/DiskNode.h"
#include "Models/NodeSlabs.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

DiskNode file(const std::string& id, const std::string& name, std::int64_t size)
{
    return DiskNode(id, name, size, false, FileCategory::code, Clock::TimePoint(std::chrono::seconds(5)), false, {});
}

TEST(DiskNodeTest, KeepsEveryFieldHoweverTheIdIsSpelled)
{
    const DiskNode folder("/a/b", "b", 30, true, FileCategory::video, std::nullopt, false,
                          {file("/a/b/x.c", "x.c", 20), file("/a/b/y.c", "y.c", 10)});
    EXPECT_EQ(folder.id(), "/a/b");
    EXPECT_EQ(folder.name(), "b");
    EXPECT_EQ(folder.size(), 30);
    EXPECT_TRUE(folder.isDirectory());
    EXPECT_EQ(folder.category(), FileCategory::video);
    EXPECT_FALSE(folder.modified());
    ASSERT_EQ(folder.children().size(), 2u);
    EXPECT_EQ(folder.children()[1].id(), "/a/b/y.c");
    EXPECT_EQ(folder.children()[1].modified(), Clock::TimePoint(std::chrono::seconds(5)));

    // Ids that are not parent + "/" + name: the root "/", a synthetic node, anything else.
    EXPECT_EQ(file("/", "/", 0).id(), "/");
    const DiskNode synthetic("/a/x.c#other", "(smaller items)", 4, true, FileCategory::other, std::nullopt, true, {});
    EXPECT_EQ(synthetic.id(), "/a/x.c#other");
    EXPECT_EQ(synthetic.name(), "(smaller items)");
    EXPECT_TRUE(synthetic.isSynthetic());
    EXPECT_EQ(file("relative", "other", 1).id(), "relative");
    EXPECT_EQ(file("relative", "other", 1).name(), "other");
}

// Equality and the hash take every field and the children in order; a copy shares the record
// and its subtree, and a setter changes its own handle only.
TEST(DiskNodeTest, EqualityTakesAllFieldsAndChangesStayWithTheirCopy)
{
    const auto folder = [](std::vector<DiskNode> children, std::int64_t size = 3) {
        return DiskNode("/r", "r", size, true, FileCategory::other, std::nullopt, false, std::move(children));
    };
    const DiskNode a = file("/r/a", "a", 2);
    const DiskNode b = file("/r/b", "b", 1);
    const DiskNode original = folder({a, b});
    EXPECT_EQ(original, folder({file("/r/a", "a", 2), file("/r/b", "b", 1)}));
    EXPECT_EQ(std::hash<DiskNode>{}(original), std::hash<DiskNode>{}(folder({a, b})));
    EXPECT_NE(original, folder({b, a}));
    EXPECT_NE(original, folder({a, b}, 4));
    EXPECT_NE(original, folder({a, file("/r/c", "b", 1)}));
    EXPECT_EQ(DiskNode(), DiskNode("", "", 0, false, FileCategory::other, std::nullopt, false, {}));

    DiskNode changed = original;
    EXPECT_TRUE(changed.sharesRecordWith(original));
    changed.setModified(Clock::TimePoint(std::chrono::seconds(9)));
    EXPECT_NE(changed, original);
    changed.setCategory(FileCategory::audio);
    changed.setSynthetic(true);
    EXPECT_EQ(original.category(), FileCategory::other);
    EXPECT_FALSE(original.modified());
    EXPECT_FALSE(original.isSynthetic());
    EXPECT_TRUE(changed.children()[0].sharesRecordWith(original.children()[0])) << "the subtree is not copied";
    EXPECT_EQ(changed.id(), "/r");
    changed.setChildren({});
    EXPECT_EQ(original.children().size(), 2u);
    EXPECT_TRUE(changed.children().empty());
}

// Records are cut from slabs that one thread fills and any thread may free. A tree made on a
// thread that has since ended stays whole, and freeing it piecemeal on two threads while a third
// makes more gives every slab back to the system; the sanitizer build reports a slab freed too
// early.
TEST(DiskNodeTest, TreesOutliveTheThreadThatMadeThemAndAreFreedOnAnyThread)
{
    const std::size_t mappedBefore = NodeSlabs::mappedBytes();
    const auto folder = [](int index) {
        const std::string id = "/r/d" + std::to_string(index);
        std::vector<DiskNode> files;
        // Mostly small folders, every fourth too large for a slab.
        for (int i = 0; i < (index % 4 == 0 ? 300 : 5); ++i)
            files.push_back(file(id + "/f" + std::to_string(i), "f" + std::to_string(i), i));
        return DiskNode(id, "d" + std::to_string(index), 0, true, FileCategory::other, std::nullopt, false,
                        std::move(files));
    };
    std::vector<DiskNode> made;
    std::thread([&] {
        for (int index = 0; index < 400; ++index)
            made.push_back(folder(index));
    }).join();

    for (int index = 0; index < 400; index += 37) {
        const DiskNode& node = made[index];
        ASSERT_EQ(node.children().size(), index % 4 == 0 ? 300u : 5u);
        EXPECT_EQ(node.children().back().id(), node.id() + "/f" + std::to_string(node.children().size() - 1));
        EXPECT_EQ(node.children().back().size(), static_cast<std::int64_t>(node.children().size() - 1));
    }
    std::vector<DiskNode> odd, kept;
    for (std::size_t i = 0; i < made.size(); ++i)
        (i % 2 ? odd : kept).push_back(std::move(made[i]));
    std::thread freeing([odd = std::move(odd)]() mutable { odd.clear(); });
    std::vector<DiskNode> more;
    for (int index = 0; index < 100; ++index)
        more.push_back(folder(index));
    freeing.join();
    EXPECT_EQ(more[8], kept[4]) << "made again, the same";
    EXPECT_GT(NodeSlabs::mappedBytes(), mappedBefore + 1024 * 1024);
    kept.clear();
    more.clear();
    EXPECT_LE(NodeSlabs::mappedBytes(), mappedBefore + 64 * 1024) << "at most the slab this thread is filling";
}

}  // namespace
