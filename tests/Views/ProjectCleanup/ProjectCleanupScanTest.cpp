#include "Views/ProjectCleanup/ProjectCleanupModel.h"

#include "Platform/FileSystem.h"
#include "Platform/Trash.h"
#include "Services/Scanner.h"
#include "Support/ModelFixture.h"
#include "Support/PathsOf.h"
#include "Support/TreeBuilder.h"

#include <gmock/gmock.h>

#include <QTest>

#include <filesystem>

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace {

class ProjectCleanupScanTest : public ModelFixture {
protected:
    ProjectCleanupScanTest()
    {
        settings.setProjectRoots({QString::fromStdString(code())});
        cleanup.setModel(model.get());
    }

    std::string code() const { return tempHome.home() + "/Code"; }
    // A project with `files` files of 5,000 bytes in its node_modules; returns that folder.
    std::string nodeProject(const std::string& name, int files = 1) const
    {
        tempHome.writeFile("Code/" + name + "/package.json", "{}");
        for (int i = 0; i < files; ++i)
            tempHome.writeFile("Code/" + name + "/node_modules/lib/f" + std::to_string(i), std::string(5000, 'x'));
        return code() + "/" + name + "/node_modules";
    }
    void scanAndWait()
    {
        cleanup.scan();
        ASSERT_TRUE(waitUntil([&] { return !cleanup.isScanning(); }));
    }
    int trashedCount() const { return int(TreeBuilder::namesIn(Trash::homeTrashFolder() + "/files").size()); }

    ProjectCleanupModel cleanup;
};

TEST_F(ProjectCleanupScanTest, AScanFindsMeasuresAndDatesEveryFolderAndSkipsIgnoredOnes)
{
    const std::string app = nodeProject("app", 3);
    tempHome.writeFile("Code/rs/Cargo.toml");
    tempHome.writeFile("Code/rs/target/debug/bin", std::string(9000, 'y'));
    nodeProject("old");
    settings.setIgnoredFinderPaths({"~/Code/old"});

    scanAndWait();
    EXPECT_TRUE(cleanup.hasScanned());
    EXPECT_EQ(cleanup.foundCount(), 2);
    EXPECT_THAT(pathsOf(cleanup.dirs()), UnorderedElementsAre(app, code() + "/rs/target"));
    for (const ProjectDir& dir : cleanup.dirs()) {
        EXPECT_TRUE(cleanup.isMeasured(dir.path));
        EXPECT_EQ(dir.size, Scanner::directorySize(dir.path));
        EXPECT_EQ(dir.modified, FileSystem::info(dir.path)->modified);
    }
    EXPECT_EQ(cleanup.sortedDirs().front().path, app);  // 15,000 bytes before 9,000
    EXPECT_EQ(cleanup.rows()->count(), 2);
}

TEST_F(ProjectCleanupScanTest, ARescanStartsWithNoTicksAndAReplacedScanAddsNothing)
{
    const std::string app = nodeProject("app");
    scanAndWait();
    cleanup.toggle(app);
    ASSERT_EQ(cleanup.selected().size(), 1u);

    // The first scan is replaced before it can report: only the second one's folder shows.
    tempHome.writeFile("Other/web/package.json", "{}");
    tempHome.makeFolder("Other/web/node_modules");
    cleanup.scan();
    EXPECT_TRUE(cleanup.selected().empty());
    EXPECT_FALSE(cleanup.hasDirs());
    cleanup.scanFolder(QString::fromStdString(tempHome.home() + "/Other"));
    ASSERT_TRUE(waitUntil([&] { return !cleanup.isScanning(); }));
    QTest::qWait(100);
    EXPECT_THAT(pathsOf(cleanup.dirs()), ElementsAre(tempHome.home() + "/Other/web/node_modules"));
}

TEST_F(ProjectCleanupScanTest, StopKeepsWhatWasMeasuredAsAFinishedScan)
{
    for (int i = 0; i < 40; ++i)
        nodeProject("p" + std::to_string(i), 20);
    QObject::connect(&cleanup, &ProjectCleanupModel::contentChanged, &cleanup, [this] {
        if (cleanup.isScanning() && cleanup.foundCount() > 0 && !cleanup.dirs().empty() &&
            cleanup.isMeasured(cleanup.dirs().front().path))
            cleanup.cancel();
    });
    cleanup.scan();
    ASSERT_TRUE(waitUntil([&] { return !cleanup.isScanning(); }));
    EXPECT_TRUE(cleanup.hasScanned());
    const std::vector<ProjectDir> kept = cleanup.dirs();
    ASSERT_FALSE(kept.empty());
    EXPECT_LT(kept.size(), 40u);
    for (const ProjectDir& dir : kept)
        EXPECT_TRUE(cleanup.isMeasured(dir.path)) << dir.path;
    QTest::qWait(200);
    EXPECT_EQ(cleanup.dirs(), kept);  // nothing arrives after the Stop

    // With nothing running, Stop only marks the list as finished.
    ProjectCleanupModel idle;
    idle.cancel();
    EXPECT_TRUE(idle.hasScanned());
    EXPECT_FALSE(idle.isScanning());
    EXPECT_FALSE(idle.hasDirs());
}

TEST_F(ProjectCleanupScanTest, OnlyTheUnchangedFolderGoesToTheTrashAndEveryTickedRowLeaves)
{
    const std::string kept = nodeProject("kept", 2);
    const std::string linked = nodeProject("linked");
    const std::string replaced = nodeProject("replaced");
    const std::string vanished = nodeProject("vanished");
    const std::string unticked = nodeProject("unticked");
    const std::string precious = tempHome.writeFile("Precious/thesis.tex", "chapter one");
    scanAndWait();
    ASSERT_EQ(cleanup.dirs().size(), 5u);
    for (const std::string& path : {kept, linked, replaced, vanished})
        cleanup.toggle(path);

    // Between the scan and the click: a folder became a link to something precious, one was
    // made anew (a reinstall), one went away.
    fs::remove_all(linked);
    fs::create_directory_symlink(tempHome.home() + "/Precious", linked);
    fs::rename(replaced, replaced + ".old");  // still there, so the new folder can't reuse its inode
    fs::create_directories(replaced + "/fresh");
    fs::remove_all(vanished);
    const std::int64_t keptSize = Scanner::directorySize(kept);

    cleanup.trashSelected();
    EXPECT_EQ(trashedCount(), 1);
    EXPECT_FALSE(fs::exists(kept));
    EXPECT_TRUE(fs::is_symlink(linked));
    EXPECT_TRUE(fs::exists(precious));
    EXPECT_TRUE(fs::exists(replaced + "/fresh"));
    EXPECT_THAT(pathsOf(cleanup.dirs()), ElementsAre(unticked));
    EXPECT_TRUE(cleanup.selected().empty());

    ASSERT_EQ(model->history().size(), 1u);
    const CleanRecord& record = model->history().front();
    EXPECT_EQ(record.targetName, "1 project folder");
    EXPECT_EQ(record.freed, keptSize);
    ASSERT_TRUE(record.items);
    ASSERT_EQ(record.items->size(), 1u);
    EXPECT_EQ(record.items->front().original, kept);
}

TEST_F(ProjectCleanupScanTest, SeveralFoldersMakeOnePluralRecordAndOddNamesSurvive)
{
    // A name that is not UTF-8: the row must still lead to the very same bytes on disk.
    const std::string odd = nodeProject("caf\xe9");
    const std::string plain = nodeProject("plain");
    scanAndWait();
    ASSERT_EQ(cleanup.rows()->count(), 2);
    for (int row = 0; row < cleanup.rows()->count(); ++row)
        cleanup.toggleRow(row);
    EXPECT_THAT(cleanup.selected(), UnorderedElementsAre(odd, plain));

    cleanup.trashSelected();
    EXPECT_EQ(trashedCount(), 2);
    ASSERT_EQ(model->history().size(), 1u);
    EXPECT_EQ(model->history().front().targetName, "2 project folders");
    std::vector<std::string> originals;
    for (const TrashedItem& item : *model->history().front().items)
        originals.push_back(item.original);
    EXPECT_THAT(originals, UnorderedElementsAre(odd, plain));
}

TEST_F(ProjectCleanupScanTest, PinningIgnoresTheFolderOnceForThisWindowAndTheCatalog)
{
    settings.setDeveloperMode(true);
    model->rebuildTargets();
    const std::string app = nodeProject("app");
    const std::string web = nodeProject("web");
    scanAndWait();
    cleanup.toggle(app);
    const auto dirs = cleanup.dirs();
    const ProjectDir appDir = *std::find_if(dirs.begin(), dirs.end(), [&](const ProjectDir& d) { return d.path == app; });

    cleanup.pin(appDir);
    cleanup.pin(appDir);
    EXPECT_EQ(settings.ignoredFinderPaths(), QStringList{QString::fromStdString(app)});
    EXPECT_THAT(pathsOf(cleanup.dirs()), ElementsAre(web));
    EXPECT_TRUE(cleanup.selected().empty());
    const TargetState* modules = state("node_modules");
    ASSERT_NE(modules, nullptr);
    EXPECT_THAT(std::get<FinderKind>(modules->target.kind).ignore, ::testing::Contains(app));

    scanAndWait();
    EXPECT_THAT(pathsOf(cleanup.dirs()), ElementsAre(web));
    // Without the application model only the row goes.
    ProjectCleanupModel alone;
    alone.scanFolder(QString::fromStdString(code()));
    ASSERT_TRUE(waitUntil([&] { return !alone.isScanning(); }));
    ASSERT_EQ(alone.dirs().size(), 2u);
    alone.pin(alone.dirs().front());
    EXPECT_EQ(alone.dirs().size(), 1u);
    EXPECT_EQ(settings.ignoredFinderPaths().size(), 1);
}

}  // namespace
