#include "AppModel.h"
#include "Services/Scanner.h"
#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <QSignalSpy>
#include <QTest>
#include <qcoro/qcorotask.h>

namespace {

class AppModelScanningTest : public ModelFixture {};

}  // namespace

TEST_F(AppModelScanningTest, ScanAllMeasuresEveryTargetAndStampsTheTime)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/.cache/app/blob", 20'000);
    TreeBuilder::writeFile(home + "/.local/share/xorg/Xorg.0.log.old", 3'000);
    QSignalSpy lastScan(model.get(), &AppModel::lastScanChanged);
    const auto before = Clock::now();

    QCoro::waitFor(model->scanAll());

    EXPECT_EQ(state("appcaches")->size, TreeBuilder::allocatedSize(home + "/.cache/app/blob"));
    EXPECT_EQ(state("logs")->size, TreeBuilder::allocatedSize(home + "/.local/share/xorg/Xorg.0.log.old"));
    EXPECT_EQ(state("firefox")->size, 0);  // missing folders measure 0
    EXPECT_FALSE(model->isScanning());
    ASSERT_TRUE(model->lastScan().has_value());
    EXPECT_GE(*model->lastScan(), before);
    EXPECT_EQ(lastScan.count(), 1);
    EXPECT_EQ(model->totalReclaimable(), *state("appcaches")->size + *state("logs")->size);
}

TEST_F(AppModelScanningTest, ScanShowsItselfWhileRunningAndIgnoresUnknownIds)
{
    TreeBuilder::writeFile(tempHome.home() + "/.local/share/xorg/Xorg.0.log", 100);
    const auto targetsBefore = model->targets();
    QCoro::waitFor(model->scan("no-such-target"));
    EXPECT_EQ(model->targets(), targetsBefore);

    // What the model published while the scan ran: a small scan may end before the call
    // returns, so the state is caught as it changes rather than read afterwards.
    bool shownAsScanning = false;
    QObject::connect(model.get(), &AppModel::targetsChanged, model.get(), [&] {
        const TargetState* logs = state("logs");
        shownAsScanning = shownAsScanning || (logs && logs->isScanning && !logs->size && model->isScanning());
    });
    QCoro::waitFor(model->scan("logs"));
    EXPECT_TRUE(shownAsScanning);
    EXPECT_FALSE(state("logs")->isScanning);
    EXPECT_GT(*state("logs")->size, 0);
}

TEST_F(AppModelScanningTest, ARebuildDuringAScanKeepsTheFinalResultById)
{
    const std::string home = tempHome.home();
    for (int i = 0; i < 3100; ++i)
        TreeBuilder::writeFile(home + "/.local/share/xorg/d" + std::to_string(i % 5) + "/f" + std::to_string(i), 1);
    auto running = model->scan("logs");
    model->rebuildTargets();
    EXPECT_FALSE(state("logs")->isScanning);  // the new state starts idle
    QCoro::waitFor(std::move(running));
    QCoreApplication::processEvents();  // late progress reports must not undo anything
    EXPECT_EQ(state("logs")->size, Scanner::directorySize(home + "/.local/share/xorg"));
}

// Which folders may be added, once each, and their removal are the settings window's test.
TEST_F(AppModelScanningTest, AnAddedFolderIsListedLastAndMeasuredUntilItIsRemoved)
{
    const std::string home = tempHome.home();
    TreeBuilder::writeFile(home + "/Movies/Old/clip.mov", 8'000);
    EXPECT_EQ(model->addCustomFolder("~/Movies/Old"), std::nullopt);

    const std::string id = "custom:" + home + "/Movies/Old";
    ASSERT_NE(state(id), nullptr);
    EXPECT_EQ(model->targets().back().id(), id);
    QTRY_VERIFY_WITH_TIMEOUT(!state(id)->isScanning, 5000);  // the scan it started lands by id
    EXPECT_EQ(state(id)->size, TreeBuilder::allocatedSize(home + "/Movies/Old/clip.mov"));

    model->removeCustomFolder(QString::fromStdString(home + "/Movies/Old"));
    EXPECT_EQ(state(id), nullptr);
}
