#include "Views/LargeFiles/FileFinderModel.h"

#include "Support/ModelFixture.h"

#include <QTest>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t MB = 1'000'000;

ScannedFile file(const std::string& path, std::int64_t size) { return {path, size}; }

DuplicateGroup group(const std::string& id, std::int64_t size, const std::vector<std::string>& paths)
{
    DuplicateGroup result{id, size, {}};
    for (const std::string& path : paths)
        result.files.push_back(file(path, size));
    return result;
}

using Paths = std::unordered_set<std::string>;

class FileFinderModelTest : public ModelFixture {
protected:
    FileFinderModelTest() { finder.setModel(model.get()); }

    void scanAndWait(const std::string& path)
    {
        finder.scan(QString::fromStdString(path));
        ASSERT_TRUE(waitUntil([&] { return finder.hasScanned() && !finder.isScanning(); }));
    }
    void trashAndWait()
    {
        finder.trashSelected();
        ASSERT_TRUE(finder.isTrashing());
        ASSERT_TRUE(waitUntil([&] { return !finder.isTrashing() && finder.hasScanned(); }));
    }

    FileFinderModel finder;
};

TEST_F(FileFinderModelTest, EachPictureKeepsTheFirstCopyAndTicksTheRest)
{
    const DuplicateGroup a = group("a", 2 * MB, {"/a1", "/a2", "/a3"});
    const DuplicateGroup b = group("b", 3 * MB, {"/b1", "/b2"});
    const std::vector<ScannedFile> largest = {file("/b1", 3 * MB), file("/a2", 2 * MB), file("/big", 9 * MB)};

    finder.show({largest, {}});
    EXPECT_TRUE(finder.selected().empty());
    finder.toggle("/big");
    finder.show({largest, {a}});  // a later picture overrides the user's ticks
    EXPECT_EQ(finder.selected(), (Paths{"/a2", "/a3"}));
    // "/a2" is both among the largest and a copy: it counts once.
    EXPECT_EQ(finder.selectedSize(), 4 * MB);

    finder.toggle("/a1");
    finder.toggle("/a2");
    EXPECT_EQ(finder.selected(), (Paths{"/a1", "/a3"}));
    finder.show({largest, {a, b}});
    EXPECT_EQ(finder.selected(), (Paths{"/a2", "/a3", "/b2"}));
    EXPECT_EQ(finder.selectedSize(), 7 * MB);
    EXPECT_EQ(finder.duplicateRows()->count(), 7);

    // A tick of a file that is no longer listed counts for nothing.
    finder.toggle("/gone");
    EXPECT_EQ(finder.selectedSize(), 7 * MB);
    finder.show({largest, {}});
    EXPECT_TRUE(finder.selected().empty());
}

TEST_F(FileFinderModelTest, ListRowsFollowThePictureInPlace)
{
    const DuplicateGroup a = group("a", 2 * MB, {tempHome.home() + "/x/a1", "/srv/a2"});
    finder.show({{file(tempHome.home() + "/x/a1", 2 * MB)}, {a}});
    const auto& rows = finder.duplicateRows()->rows();
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_TRUE(rows[0].isHeader);
    EXPECT_EQ(rows[0].copies, 2);
    EXPECT_EQ(rows[1].subtitle, "~/x/a1");
    EXPECT_EQ(rows[1].title, "a1");
    EXPECT_TRUE(rows[1].canTrash);
    EXPECT_FALSE(rows[2].canTrash);  // outside the home, and the safety test refuses it
    EXPECT_TRUE(rows[2].isOn);       // yet the keep-one rule still ticks it
    EXPECT_EQ(rows[1].fileIndex, finder.largestRows()->rows()[0].fileIndex);

    // A new group arriving below keeps the rows above where they are.
    int removed = 0;
    QObject::connect(finder.duplicateRows(), &QAbstractItemModel::rowsRemoved, [&removed] { ++removed; });
    finder.show({{}, {a, group("b", MB, {"/b1", "/b2"})}});
    EXPECT_EQ(removed, 0);
    EXPECT_EQ(finder.duplicateRows()->count(), 6);
    finder.toggleFile(rows[1].fileIndex);
    EXPECT_TRUE(finder.duplicateRows()->rows()[1].isOn);
}

TEST_F(FileFinderModelTest, AStopReturnsToNothingScannedAndDropsLateResults)
{
    for (int i = 0; i < 2000; ++i)
        tempHome.writeFile("many/" + std::to_string(i), "x");
    finder.scan(QString::fromStdString(tempHome.home() + "/many"));
    EXPECT_TRUE(finder.isScanning());
    finder.stop();
    EXPECT_FALSE(finder.isScanning());
    QTest::qWait(300);
    EXPECT_FALSE(finder.hasScanned());
    EXPECT_FALSE(finder.isScanning());
    EXPECT_TRUE(finder.result().largest.empty());

    scanAndWait(tempHome.home() + "/many");
    EXPECT_EQ(finder.scannedCount(), 2000);
    EXPECT_EQ(finder.largestRows()->count(), 100);
}

TEST_F(FileFinderModelTest, AKeptCopyChangedSinceTheScanSavesItsTwin)
{
    const std::string bytes(1'500'000, 'z');
    tempHome.writeFile("Films/a.mov", bytes);
    tempHome.writeFile("Films/b.mov", bytes);
    scanAndWait(tempHome.home() + "/Films");
    ASSERT_EQ(finder.selectedCount(), 1);
    const std::string ticked = *finder.selected().begin();
    const std::string kept = finder.result().duplicates.at(0).files.at(0).path;
    // Same size, other bytes: the copy the user would keep is no copy any more.
    std::ofstream(kept, std::ios::binary) << std::string(1'500'000, 'y');

    trashAndWait();
    EXPECT_TRUE(fs::exists(ticked));
    EXPECT_TRUE(model->history().empty());
    EXPECT_TRUE(finder.result().duplicates.empty());  // the rescan shows the truth
}

}  // namespace
