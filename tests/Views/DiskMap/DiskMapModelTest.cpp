#include "Views/DiskMap/DiskMapModel.h"

#include "Platform/DefaultsStore.h"
#include "Platform/Trash.h"
#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <QTest>

#include <filesystem>

namespace {

class DiskMapModelTest : public ModelFixture {
protected:
    DiskMapModelTest() { map.setModel(model.get()); }

    std::string home() const { return tempHome.home(); }
    std::string seed(const std::string& relative, std::size_t bytes) const
    {
        const std::string path = home() + "/" + relative;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        TreeBuilder::writeFile(path, bytes);
        return path;
    }
    void scanAndWait(const std::string& path = {})
    {
        map.scan(QString::fromStdString(path));
        ASSERT_TRUE(waitUntil([&] { return map.phase() == DiskMapModel::Phase::ready; }));
    }
    const DiskNode& child(const std::string& name) const
    {
        for (const DiskNode& node : map.current()->children()) {
            if (node.name() == name)
                return node;
        }
        throw std::runtime_error("no child " + name);
    }

    DiskMapModel map;
};

DiskNode folder(const std::string& id, std::vector<DiskNode> children = {}, bool synthetic = false)
{
    return DiskNode(id, std::filesystem::path(id).filename().string(), 1, true, FileCategory::other,
                    std::nullopt, synthetic, std::move(children));
}

TEST_F(DiskMapModelTest, ScanPassesThroughThePhasesAndStoresTheFolder)
{
    const std::string a = seed("Data/a.bin", 300'000);
    const std::string b = seed("Data/sub/b.bin", 120'000);
    EXPECT_EQ(map.rootPath(), home());  // nothing stored yet
    EXPECT_EQ(map.phase(), DiskMapModel::Phase::empty);

    map.scan(QString::fromStdString(home() + "/Data"));
    EXPECT_EQ(map.phase(), DiskMapModel::Phase::scanning);
    EXPECT_FALSE(map.root());
    EXPECT_EQ(store->string(DiskMapModel::rootKey), home() + "/Data");
    ASSERT_TRUE(waitUntil([&] { return map.phase() == DiskMapModel::Phase::ready; }));

    const std::int64_t aSize = TreeBuilder::allocatedSize(a);
    const std::int64_t bSize = TreeBuilder::allocatedSize(b);
    ASSERT_TRUE(map.root());
    EXPECT_EQ(map.root()->size(), aSize + bSize);
    EXPECT_EQ(map.scannedBytes(), aSize + bSize);
    ASSERT_EQ(map.childList().size(), 2);
    EXPECT_EQ(map.childList()[0].toMap()["name"], "a.bin");  // largest first
    EXPECT_EQ(map.childList()[1].toMap()["size"].toLongLong(), bSize);
    EXPECT_TRUE(map.childList()[1].toMap()["canZoom"].toBool());

    // A new window starts from the folder scanned last, with no tree.
    DiskMapModel reopened;
    reopened.setModel(model.get());
    EXPECT_EQ(reopened.rootPath(), home() + "/Data");
    EXPECT_EQ(reopened.phase(), DiskMapModel::Phase::empty);
}

TEST_F(DiskMapModelTest, StopKeepsAConsistentPartialTreeAndDropsLateEntries)
{
    // Every folder sits at the top, so each report of progress comes just before its folder's
    // entry: the second report follows the first entry, and the Stop lands right behind it
    // however fast the walk runs.
    for (int i = 0; i < 30; ++i) {
        for (int j = 0; j < 20; ++j)
            seed("Many/f" + std::to_string(i) + "/" + std::to_string(j), 10 + i);
    }
    int reports = 0;
    QObject::connect(&map, &DiskMapModel::progressChanged, &map, [this, &reports] {
        if (map.isScanning() && map.scannedBytes() > 0 && ++reports == 2)
            map.cancel();
    });
    map.scan(QString::fromStdString(home() + "/Many"));
    ASSERT_TRUE(waitUntil([&] { return !map.isScanning(); }));
    ASSERT_TRUE(map.root());
    EXPECT_EQ(map.root()->children().size(), 1u);
    const DiskNode partial = *map.root();

    std::int64_t total = 0;
    for (std::size_t i = 0; i < partial.children().size(); ++i) {
        total += partial.children()[i].size();
        if (i > 0) {
            EXPECT_GE(partial.children()[i - 1].size(), partial.children()[i].size());
        }
    }
    EXPECT_EQ(partial.size(), total);
    EXPECT_EQ(map.phase(), DiskMapModel::Phase::ready);
    QTest::qWait(200);
    EXPECT_TRUE(map.root()->sharesRecordWith(partial));  // nothing arrived after the Stop

    // A new scan of the same folder starts over from nothing.
    QObject::disconnect(&map, &DiskMapModel::progressChanged, &map, nullptr);
    map.scan();
    EXPECT_FALSE(map.root());
    ASSERT_TRUE(waitUntil([&] { return map.phase() == DiskMapModel::Phase::ready; }));
    EXPECT_EQ(map.root()->children().size(), 30u);
}

TEST_F(DiskMapModelTest, ASecondScanSupersedesTheFirst)
{
    seed("One/x.bin", 50'000);
    seed("Two/y.bin", 50'000);
    map.scan(QString::fromStdString(home() + "/One"));
    scanAndWait(home() + "/Two");
    QTest::qWait(200);
    EXPECT_EQ(map.root()->id(), home() + "/Two");
    ASSERT_EQ(map.root()->children().size(), 1u);
    EXPECT_EQ(map.root()->children()[0].name(), "y.bin");
}

TEST_F(DiskMapModelTest, NavigationAndSelectionStayInBounds)
{
    seed("Nav/big/x.bin", 300'000);
    seed("Nav/big/y.bin", 200'000);
    seed("Nav/f.bin", 100'000);
    scanAndWait(home() + "/Nav");
    const DiskNode big = child("big");
    const DiskNode file = child("f.bin");

    map.moveSelection(1);  // no selection: the first child, whatever the step
    EXPECT_EQ(map.selection()->id(), big.id());
    map.moveSelection(-1);
    EXPECT_EQ(map.selection()->id(), big.id());
    map.moveSelection(5);
    EXPECT_EQ(map.selection()->id(), file.id());

    map.zoom(file);                               // files can't be entered
    map.zoom(folder(home() + "/Nav/empty"));      // nor empty folders
    EXPECT_TRUE(map.stack().empty());
    EXPECT_TRUE(map.selection());                 // and the selection stays

    map.goUp();  // at the root: nothing, not even the selection
    EXPECT_TRUE(map.selection());

    map.zoomInto(0);
    ASSERT_EQ(map.stack().size(), 1u);
    EXPECT_FALSE(map.selection());
    EXPECT_EQ(map.currentName(), "big");
    ASSERT_EQ(map.breadcrumb().size(), 2);
    EXPECT_EQ(map.breadcrumb()[1].toMap()["name"], "big");

    map.select(1);
    map.goTo(1);  // at or past the stack's length: stack kept, selection cleared
    EXPECT_EQ(map.stack().size(), 1u);
    EXPECT_FALSE(map.selection());

    // A selection from elsewhere starts over at the first child.
    map.setSelection(file);
    map.moveSelection(1);
    EXPECT_EQ(map.selectedName(), "x.bin");

    map.goTo(-3);
    EXPECT_TRUE(map.stack().empty());
    map.zoom(big);
    map.goUp();
    EXPECT_TRUE(map.stack().empty());
    EXPECT_EQ(map.currentName(), "Nav");
}

TEST_F(DiskMapModelTest, OnlyRealItemsInsideHomeOrSafePlacesCanBeTrashed)
{
    const std::string file = seed("Docs/file.txt", 10);
    const std::string outside = tempHome.root() + "/outside";
    std::filesystem::create_symlink(home(), home() + "/homeLink");
    std::filesystem::create_directories(outside);
    std::filesystem::create_symlink(file, outside + "/toFile");

    EXPECT_TRUE(DiskMapModel::canTrash(folder(file)));
    EXPECT_FALSE(DiskMapModel::canTrash(folder(home())));
    EXPECT_FALSE(DiskMapModel::canTrash(folder(home() + "/homeLink")));  // leads to home
    EXPECT_TRUE(DiskMapModel::canTrash(folder(outside + "/toFile")));    // leads inside it
    EXPECT_FALSE(DiskMapModel::canTrash(folder(outside)));
    EXPECT_FALSE(DiskMapModel::canTrash(folder("/usr/bin")));
    EXPECT_FALSE(DiskMapModel::canTrash(folder(home() + "/Docs/file.txt#other", {}, true)));
}

TEST_F(DiskMapModelTest, TrashMovesTheItemRecordsItAndRescans)
{
    const std::string doomed = seed("Junk/old.iso", 400'000);
    seed("Junk/keep.bin", 100'000);
    scanAndWait(home() + "/Junk");
    const DiskNode node = child("old.iso");
    map.setSelection(node);
    EXPECT_TRUE(map.canTrashSelection());

    map.trashSelection();
    EXPECT_EQ(map.phase(), DiskMapModel::Phase::scanning);
    EXPECT_FALSE(std::filesystem::exists(doomed));
    const std::string trashed = Trash::homeTrashFolder() + "/files/old.iso";
    EXPECT_TRUE(std::filesystem::exists(trashed));

    ASSERT_FALSE(model->history().empty());
    const CleanRecord& record = model->history().front();
    EXPECT_EQ(record.targetName, "old.iso");
    EXPECT_EQ(record.freed, node.size());
    ASSERT_TRUE(record.items);
    EXPECT_EQ(*record.items, (std::vector<TrashedItem>{{doomed, trashed}}));

    ASSERT_TRUE(waitUntil([&] { return map.phase() == DiskMapModel::Phase::ready; }));
    ASSERT_EQ(map.root()->children().size(), 1u);
    EXPECT_EQ(map.root()->children()[0].name(), "keep.bin");
    EXPECT_FALSE(map.selection());

    // The root is the home folder: refused, nothing happens.
    scanAndWait(home());
    map.trash(*map.root());
    EXPECT_EQ(model->history().size(), 1u);
    EXPECT_EQ(map.phase(), DiskMapModel::Phase::ready);
}

}  // namespace
