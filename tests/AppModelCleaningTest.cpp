#include "Models/CleanupCatalog.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/Trash.h"
#include "Services/CleanHistoryStore.h"
#include "Services/Scanner.h"
#include "Support/AppModelTestAccess.h"
#include "Support/ModelFixture.h"
#include "Support/PathsOf.h"
#include "Support/TreeBuilder.h"

#include <QSignalSpy>
#include <gmock/gmock.h>
#include <qcoro/qcorotask.h>

#include <filesystem>

namespace fs = std::filesystem;
using ::testing::ElementsAre;

namespace {

using TreeBuilder::contentsOf;

class AppModelCleaningTest : public ModelFixture {
protected:
    std::string H = tempHome.home();
    std::string logs = H + "/.local/share/xorg";

    void seedLogs()
    {
        TreeBuilder::writeFile(logs + "/app/today.log", 12'000);
        TreeBuilder::writeFile(logs + "/crash report.txt", 3'000);
        TreeBuilder::writeFile(logs + "/.state", 100);
    }
    static std::vector<std::string> trashInfoFiles() { return TreeBuilder::namesIn(Trash::homeTrashFolder() + "/info"); }
};

}  // namespace

TEST_F(AppModelCleaningTest, ACleanGoesToTheTrashIsRecordedAndCanBePutBack)
{
    seedLogs();
    const std::string original = contentsOf(logs + "/app/today.log");
    QCoro::waitFor(model->scan("logs"));
    const auto sizeBefore = *state("logs")->size;

    // What the confirmation shows of the request is the confirm window's test.
    model->requestClean("logs");
    ASSERT_TRUE(model->pendingClean().has_value());
    model->confirmPending(false);
    EXPECT_FALSE(model->pendingClean().has_value());
    ASSERT_TRUE(waitUntil([&] { return !model->statusMessage().isEmpty(); }));

    EXPECT_EQ(model->statusMessage(), "Freed " + QString::fromStdString(ByteCountFormatter::string(sizeBefore)) +
                                          " from Display server logs");
    EXPECT_TRUE(fs::is_directory(logs));
    EXPECT_TRUE(fs::is_empty(logs));
    EXPECT_EQ(state("logs")->size, 0);  // measured again after the clean
    EXPECT_FALSE(state("logs")->isCleaning);
    EXPECT_EQ(trashInfoFiles().size(), 3u);
    ASSERT_EQ(model->history().size(), 1u);
    const CleanRecord record = model->history().front();
    EXPECT_EQ(record.targetName, "Display server logs");
    EXPECT_EQ(record.freed, sizeBefore);
    EXPECT_TRUE(record.trashed);
    ASSERT_TRUE(record.items.has_value());
    EXPECT_EQ(record.items->size(), 3u);
    EXPECT_EQ(model->totalFreedAllTime(), sizeBefore);

    // Put Back itself, byte for byte, is the About window's test; here, that it is stored.
    model->restore(record);
    EXPECT_EQ(contentsOf(logs + "/app/today.log"), original);
    EXPECT_EQ(CleanHistoryStore::load(DefaultsStore(defaultsPath())).history.front().restored, true);

    // A second restore of the same record changes nothing.
    model->restore(model->history().front());
    EXPECT_EQ(model->totalFreedAllTime(), 0);
    ASSERT_TRUE(waitUntil([&] { return !model->isScanning(); }));  // the rescan restore started
}

TEST_F(AppModelCleaningTest, APermanentCleanSkipsTheTrashButKeepsTheRowFlag)
{
    seedLogs();
    QCoro::waitFor(model->scan("logs"));
    model->requestClean("logs");
    model->confirmPending(true);
    ASSERT_TRUE(waitUntil([&] { return !model->history().empty(); }));
    EXPECT_TRUE(trashInfoFiles().empty());
    EXPECT_TRUE(fs::is_empty(logs));
    EXPECT_TRUE(model->history().front().trashed);  // follows the setting, which is on
    EXPECT_FALSE(model->history().front().items.has_value());

    // With the setting off every clean is permanent.
    seedLogs();
    settings.setMoveToTrash(false);
    model->requestClean("logs");
    model->confirmPending(false);
    ASSERT_TRUE(waitUntil([&] { return model->history().size() == 2; }));
    EXPECT_TRUE(trashInfoFiles().empty());
    EXPECT_FALSE(model->history().front().trashed);

    // Nothing pending: nothing happens.
    model->confirmPending(false);
    EXPECT_EQ(model->history().size(), 2u);
}

TEST_F(AppModelCleaningTest, CleanAllRequestListsEnabledTargetsBySize)
{
    TreeBuilder::writeFile(H + "/.cache/big.bin", 90'000);
    seedLogs();
    QCoro::waitFor(model->scanAll());
    settings.setEnabled(false, "chrome");
    AppModelTestAccess::setSize(*model, "chromium", std::nullopt);

    model->requestCleanAll();
    const PendingClean& pending = *model->pendingClean();
    EXPECT_EQ(pending.kind, PendingClean::Kind(PendingClean::All{}));
    EXPECT_EQ(pending.sizeText, ByteCountFormatter::string(model->totalReclaimable()));
    // Largest first; equal sizes keep list order; unknown sizes count as 0; chrome is disabled.
    EXPECT_THAT(stringsOf(pending.items, &ConfirmItem::label),
                ElementsAre("App cache files", "Display server logs", "Trash", "Thumbnails", "Chromium cache",
                            "Firefox cache"));
    EXPECT_EQ(pending.items[4].size, std::nullopt);
}

TEST_F(AppModelCleaningTest, CleanAllCleansEnabledTargetsInListOrder)
{
    seedLogs();
    TreeBuilder::writeFile(H + "/.cache/big.bin", 40'000);
    const std::string chromeCache = H + "/.cache/google-chrome/Default/Cache/data";
    TreeBuilder::writeFile(chromeCache, 4'000);
    settings.setEnabled(false, "chrome");
    QCoro::waitFor(model->scanAll());
    const auto expected = model->totalReclaimable();
    EXPECT_EQ(expected, *state("appcaches")->size + *state("logs")->size);

    QSignalSpy cleaningAll(model.get(), &AppModel::isCleaningAllChanged);
    model->requestCleanAll();
    model->confirmPending(false);
    ASSERT_TRUE(waitUntil([&] { return cleaningAll.count() == 2 && !model->isCleaningAll(); }));
    EXPECT_EQ(model->statusMessage(), "Freed " + QString::fromStdString(ByteCountFormatter::string(expected)) + " total");
    EXPECT_TRUE(fs::exists(chromeCache));  // the disabled one stays
    EXPECT_FALSE(fs::exists(logs + "/app"));
    // Newest first; targets that freed nothing (the empty Trash) leave no record.
    EXPECT_THAT(stringsOf(model->history(), &CleanRecord::targetName),
                ElementsAre("Display server logs", "App cache files"));
    for (const CleanRecord& record : model->history())
        EXPECT_TRUE(record.items.has_value()) << record.targetName;  // into the Trash, as the setting says
}

TEST_F(AppModelCleaningTest, EdgeCasesOfRequests)
{
    // Everything disabled: the message still comes, with a total of zero.
    for (const auto& target : model->targets())
        settings.setEnabled(false, QString::fromStdString(target.id()));
    QCoro::waitFor(model->cleanAll());
    EXPECT_EQ(model->statusMessage(), "Freed Zero KB total");
    EXPECT_TRUE(model->history().empty());

    // A build-folder target lists its roots, not what it finds.
    settings.setDeveloperMode(true);
    settings.setProjectRoots({"/code/a", "/code/b"});
    model->rebuildTargets();
    model->requestClean("node_modules");
    EXPECT_EQ(model->pendingClean()->items,
              (std::vector<ConfirmItem>{{"/code/a → node_modules", std::nullopt}, {"/code/b → node_modules", std::nullopt}}));
    EXPECT_EQ(model->pendingClean()->sizeText, std::nullopt);
    model->requestClean("no-such-target");
    EXPECT_EQ(model->pendingClean()->title, "node_modules folders");  // unchanged
}

TEST_F(AppModelCleaningTest, ExternalDeletionsJoinTheHistory)
{
    model->recordExternalDeletion("Disk Map", 0, {});
    EXPECT_TRUE(model->history().empty());
    model->recordExternalDeletion("Disk Map", 5000, {{"/a", "/t/a"}});
    model->recordExternalDeletion("Large Files", 7000, {});
    ASSERT_EQ(model->history().size(), 2u);
    EXPECT_EQ(model->history()[0].targetName, "Large Files");
    EXPECT_FALSE(model->history()[0].items.has_value());
    EXPECT_TRUE(model->history()[1].trashed);
    EXPECT_EQ(model->totalFreedAllTime(), 12'000);

    // A restore whose items are gone from the Trash changes nothing.
    model->restore(model->history()[1]);
    EXPECT_EQ(model->totalFreedAllTime(), 12'000);
    EXPECT_FALSE(model->history()[1].restored.has_value());
}

TEST_F(AppModelCleaningTest, AnOddNameSurvivesARestartAndIsPutBack)
{
    // A Latin-1 name from an old archive: ordinary on Linux, and not UTF-8.
    const std::string folder = H + "/old archive";
    const std::string odd = folder + "/caf\xe9 menu \xff.txt";
    TreeBuilder::writeFile(odd, 8'000);
    TreeBuilder::writeFile(folder + "/plain.txt", 4'000);
    ASSERT_EQ(model->addCustomFolder(QString::fromStdString(folder)), std::nullopt);
    const std::string id = "custom:" + folder;
    QCoro::waitFor(model->scan(id));
    model->requestClean(id);
    model->confirmPending(false);
    ASSERT_TRUE(waitUntil([&] { return !model->history().empty(); }));
    ASSERT_FALSE(fs::exists(odd));
    // Later saves are not held up by the odd record.
    model->recordExternalDeletion("Disk Map", 1'000, {});

    // The next start reads every record back, the odd path byte for byte.
    model.reset();
    store = std::make_shared<DefaultsStore>(defaultsPath());
    model = std::make_unique<AppModel>(store);
    ASSERT_EQ(model->history().size(), 2u);
    const CleanRecord cleaned = model->history()[1];
    ASSERT_TRUE(cleaned.items.has_value());
    ASSERT_EQ(cleaned.items->size(), 2u);

    model->restore(cleaned);
    EXPECT_TRUE(fs::exists(odd));
    EXPECT_TRUE(fs::exists(folder + "/plain.txt"));
    EXPECT_EQ(model->history()[1].restored, true);
    EXPECT_TRUE(trashInfoFiles().empty());
    ASSERT_TRUE(waitUntil([&] { return !model->isScanning(); }));
}
