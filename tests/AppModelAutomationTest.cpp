#include "Models/CleanupCatalog.h"
#include "Platform/Bundle.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Trash.h"
#include "Services/Notifier.h"
#include "Support/FakeNotificationServer.h"
#include "Support/PrivateSessionBus.h"
#include "Support/AppModelTestAccess.h"
#include "Support/ModelFixture.h"
#include "Support/TreeBuilder.h"

#include <QSignalSpy>
#include <gmock/gmock.h>
#include <qcoro/qcorotask.h>

#include <filesystem>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

class AppModelAutomationTest : public ModelFixture {
protected:
    std::string H = tempHome.home();
    Clock::TimePoint now = Clock::TimePoint{} + std::chrono::seconds{1'900'000'000};

    void SetUp() override { Clock::setNowForTesting(now); }
    void TearDown() override { Clock::setNowForTesting(std::nullopt); }

    // One file in each kind of place a scheduled clean must or must not touch.
    void seedEverywhere()
    {
        TreeBuilder::writeFile(H + "/.cache/app/blob", 5000);
        TreeBuilder::writeFile(H + "/.local/share/xorg/Xorg.0.log", 5000);
        TreeBuilder::writeFile(H + "/.gradle/caches/dep.jar", 5000);
        TreeBuilder::writeFile(H + "/keepme/custom.bin", 5000);
        TreeBuilder::writeFile(Trash::homeTrashFolder() + "/files/old.txt", 10);
    }
};

}  // namespace

TEST_F(AppModelAutomationTest, TheFirstSightOfAScheduleOnlyStoresTheDate)
{
    model->runScheduledCleanupIfDue();
    EXPECT_EQ(settings.lastAutoCleanup(), std::nullopt);  // off: nothing at all

    settings.setCleanupSchedule(CleanupSchedule::daily);
    model->runScheduledCleanupIfDue();
    EXPECT_EQ(settings.lastAutoCleanup(), now);
    EXPECT_FALSE(model->isCleaningAll());
}

TEST_F(AppModelAutomationTest, AWeeklyCleanRunsOnceAWeekHasPassed)
{
    seedEverywhere();
    settings.setCleanupSchedule(CleanupSchedule::weekly);
    settings.setLastAutoCleanup(now - 604'799s);
    model->runScheduledCleanupIfDue();
    EXPECT_FALSE(model->isCleaningAll());  // one second younger than a week
    EXPECT_TRUE(fs::exists(H + "/.local/share/xorg/Xorg.0.log"));

    settings.setLastAutoCleanup(now - 604'800s);
    QSignalSpy cleaningAll(model.get(), &AppModel::isCleaningAllChanged);
    model->runScheduledCleanupIfDue();
    EXPECT_EQ(settings.lastAutoCleanup(), now);  // stamped before any work
    model->runScheduledCleanupIfDue();           // a later tick starts nothing more
    ASSERT_TRUE(waitUntil([&] { return !model->isCleaningAll(); }));
    EXPECT_EQ(cleaningAll.count(), 2);           // on for the one clean, then off
    EXPECT_FALSE(fs::exists(H + "/.local/share/xorg/Xorg.0.log"));
    EXPECT_FALSE(fs::exists(H + "/.cache/app"));
    EXPECT_TRUE(model->statusMessage().startsWith("Auto-cleanup freed "));
}

TEST_F(AppModelAutomationTest, AnAutomaticCleanTouchesOnlyEverydayCachesAndAlwaysUsesTheTrash)
{
    seedEverywhere();
    settings.setDeveloperMode(true);
    settings.setCustomFolders({QString::fromStdString(H + "/keepme")});
    settings.setMoveToTrash(false);  // ignored: nothing unattended is deleted for good
    model->rebuildTargets();
    settings.setCleanupSchedule(CleanupSchedule::daily);
    settings.setLastAutoCleanup(now - 86'400s);
    model->runScheduledCleanupIfDue();
    ASSERT_TRUE(waitUntil([&] { return !model->isCleaningAll(); }));

    EXPECT_TRUE(fs::exists(H + "/.gradle/caches/dep.jar"));
    EXPECT_TRUE(fs::exists(H + "/keepme/custom.bin"));
    EXPECT_TRUE(fs::exists(Trash::homeTrashFolder() + "/files/old.txt"));
    EXPECT_FALSE(fs::exists(H + "/.local/share/xorg/Xorg.0.log"));
    // Both cleaned folders went to the Trash, and the history can put them back.
    std::size_t restorable = 0;
    for (const auto& record : model->history())
        restorable += record.items ? record.items->size() : 0;
    EXPECT_EQ(restorable, 2u);
}

TEST_F(AppModelAutomationTest, NothingEligibleStillFinishesCleanly)
{
    for (const auto& target : model->targets())
        settings.setEnabled(false, QString::fromStdString(target.id()));
    settings.setCleanupSchedule(CleanupSchedule::daily);
    settings.setLastAutoCleanup(now - 100'000s);
    model->runScheduledCleanupIfDue();
    ASSERT_TRUE(waitUntil([&] { return !model->isCleaningAll(); }));
    EXPECT_EQ(settings.lastAutoCleanup(), now);
    EXPECT_TRUE(model->statusMessage().isEmpty());  // nothing freed: the message stays as it was
}

TEST_F(AppModelAutomationTest, LowSpaceAlertsOncePerDip)
{
    // A real notification service on a bus of the test's own.
    PrivateSessionBus bus;
    ASSERT_TRUE(bus.isRunning());
    FakeNotificationServer server(bus.connect());
    ASSERT_TRUE(server.registered());
    NotificationCenter center(bus.connect());
    Notifier::setCenter(&center);
    Bundle::setMainIdentifier(Bundle::applicationIdentifier);
    Notifier::requestAuthorization();

    const auto available = model->disk().availableImportant;
    auto dip = [&] { settings.setLowSpaceThresholdGB((available + 50e9) / 1e9); };
    auto recover = [&] { settings.setLowSpaceThresholdGB(0.0); };

    dip();
    model->start();
    model->start();  // still below: no second alert for the same dip
    ASSERT_TRUE(server.waitForNotifications(1));  // what it says is the notifier's test
    recover();
    model->start();
    EXPECT_FALSE(model->lowSpaceNotified());
    dip();
    model->start();
    ASSERT_TRUE(server.waitForNotifications(2));

    settings.setLowSpaceAlertsEnabled(false);
    model->start();
    EXPECT_FALSE(model->lowSpaceNotified());  // switched off: rearmed for when it comes back
    settings.setLowSpaceAlertsEnabled(true);
    model->start();
    ASSERT_TRUE(server.waitForNotifications(3));
    EXPECT_EQ(server.received().size(), 3);

    Bundle::setMainIdentifier(std::nullopt);
    Notifier::setCenter(nullptr);
}

TEST_F(AppModelAutomationTest, StartSetsTheTimersGoingOnce)
{
    settings.setRefreshInterval(0.5);
    EXPECT_EQ(AppModelTestAccess::refreshTimer(*model), nullptr);
    model->start();
    const QTimer* timer = AppModelTestAccess::refreshTimer(*model);
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 2000);  // at least two seconds
    EXPECT_EQ(settings.refreshInterval(), 0.5);
    EXPECT_EQ(AppModelTestAccess::cacheWatchTimer(*model)->interval(), 180'000);
    EXPECT_TRUE(timer->isActive());
    model->start();
    EXPECT_EQ(AppModelTestAccess::refreshTimer(*model), timer);

    settings.setRefreshInterval(7.5);
    model->restartTimer();
    EXPECT_EQ(AppModelTestAccess::refreshTimer(*model)->interval(), 7500);
    ASSERT_TRUE(waitUntil([&] { return model->lastScan().has_value(); }));  // start's first scan
}

TEST_F(AppModelAutomationTest, TheCacheWatcherRemeasuresOnlyEverydayCaches)
{
    seedEverywhere();
    settings.setDeveloperMode(true);
    settings.setEnabled(false, "firefox");  // disabled caches are still watched
    model->rebuildTargets();
    QCoro::waitFor(AppModelTestAccess::refreshCacheSizes(*model));
    EXPECT_GT(*state("appcaches")->size, 0);
    EXPECT_EQ(state("firefox")->size, 0);
    EXPECT_TRUE(state("trash")->size.has_value());
    EXPECT_EQ(state("gradle")->size, std::nullopt);  // developer caches wait for a full scan
    EXPECT_EQ(state("npm")->size, std::nullopt);
    EXPECT_EQ(model->lastScan(), std::nullopt);
}
