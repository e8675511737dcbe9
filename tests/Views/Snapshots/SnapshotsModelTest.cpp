#include "Views/Snapshots/SnapshotsModel.h"

#include "Services/SnapshotError.h"
#include "Support/EventLoop.h"
#include "Views/Components/DesktopWords.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

namespace {

struct FakeSystem {
    std::vector<LocalSnapshot> snapshots;
    std::function<std::int64_t()> remove = [] { return 0; };
    std::atomic<int> listings = 0;
    std::vector<LocalSnapshot> removed;
};

class SnapshotsModelTest : public ::testing::Test {
protected:
    SnapshotsModelTest()
    {
        model.setBackend({
            [system = system] {
                ++system->listings;
                return system->snapshots;
            },
            [](const std::vector<LocalSnapshot>& snapshots) { return std::int64_t(snapshots.size() * 1000); },
            [system = system](const std::vector<LocalSnapshot>& snapshots) {
                system->removed = snapshots;
                return system->remove();
            },
        });
    }
    void load(std::vector<LocalSnapshot> snapshots)
    {
        system->snapshots = std::move(snapshots);
        model.refresh();
        ASSERT_TRUE(EventLoop::waitUntil([&] { return !model.isLoading(); }));
    }
    QString reclaimAndWait()
    {
        model.reclaim();
        EventLoop::waitUntil([&] { return !model.isWorking(); });
        return model.statusMessage();
    }

    std::shared_ptr<FakeSystem> system = std::make_shared<FakeSystem>();
    SnapshotsModel model;
};

const std::vector<LocalSnapshot> three = {LocalSnapshot::timeMachine("c", "2024-03-01-000000"),
                                          LocalSnapshot::timeMachine("b", "2024-02-01-000000"),
                                          LocalSnapshot::timeMachine("a", "2024-01-01-000000")};

}  // namespace

TEST_F(SnapshotsModelTest, SaysHowTheRemovalEndedAndReadsTheListAgain)
{
    struct Case {
        std::function<std::int64_t()> remove;
        QString message;
    };
    const Case cases[] = {
        {[] { return std::int64_t(1'500'000); }, "Reclaimed 1.5 MB."},
        {[] { return std::int64_t(0); }, DesktopWords::current().snapshotsRemovedLater},
        {[]() -> std::int64_t { throw SnapshotError::failed("tmutil: busy"); }, "Couldn't remove snapshots: tmutil: busy"},
        {[]() -> std::int64_t { throw SnapshotError::cancelled(); }, "Cancelled — nothing was removed."},
        {[]() -> std::int64_t { throw std::runtime_error("odd"); }, "Couldn't remove snapshots."},
    };
    for (const Case& c : cases) {
        load(three);
        system->remove = c.remove;
        system->snapshots = {three[0]};  // what is left afterwards
        const int listings = system->listings;
        EXPECT_EQ(reclaimAndWait(), c.message);
        EXPECT_EQ(system->listings, listings + 1);
        EXPECT_EQ(model.count(), 1);
        EXPECT_EQ(model.purgeable(), 1000);
    }
}

TEST_F(SnapshotsModelTest, AMessageClearsAfterItsTimeUnlessANewerOneCame)
{
    model.setMessageLifetime(400);
    load(three);
    system->remove = []() -> std::int64_t { throw SnapshotError::cancelled(); };
    QElapsedTimer clock;
    clock.start();
    ASSERT_FALSE(reclaimAndWait().isEmpty());
    EventLoop::waitUntil([&] { return clock.elapsed() >= 200; });
    // The same words again, from a second removal: only the second timer may clear them.
    const QString second = reclaimAndWait();
    ASSERT_FALSE(second.isEmpty());
    const qint64 secondAt = clock.elapsed();
    EventLoop::waitUntil([&] { return clock.elapsed() >= secondAt + 300; });
    EXPECT_EQ(model.statusMessage(), second);
    EXPECT_TRUE(EventLoop::waitUntil([&] { return model.statusMessage().isEmpty(); }, 2000));
}

TEST(SnapshotsDisplayDate, ShowsAnUnreadableStampAsItIs)
{
    EXPECT_EQ(SnapshotsModel::displayDate("not-a-date"), "not-a-date");
    EXPECT_EQ(SnapshotsModel::displayDate("2024-13-45-999999"), "2024-13-45-999999");
    const QString shown = SnapshotsModel::displayDate("2024-01-05-101112");
    EXPECT_TRUE(shown.contains("2024")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("10")) << shown.toStdString();
}
