#include "Services/TreeEventQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

// Spells each event out, so two runs compare as lists of text.
struct Recorder final : TreeEvents {
    std::vector<std::string> seen;
    std::function<void()> onEach;

    void record(std::string text)
    {
        seen.push_back(std::move(text));
        if (onEach)
            onEach();
    }
    void item(std::string_view name, std::int64_t size, std::optional<Clock::TimePoint> modified) override
    {
        record("item " + std::string(name) + " " + std::to_string(size) + " " +
               (modified ? std::to_string(modified->time_since_epoch().count()) : "-"));
    }
    void opened(std::string_view name, Clock::TimePoint modified) override
    {
        record("opened " + std::string(name) + " " + std::to_string(modified.time_since_epoch().count()));
    }
    void closed() override { record("closed"); }
    void unreadable() override { record("unreadable"); }
};

// Puts events of every kind, with names from empty to long and bytes that are not text, into
// `events`: enough to fill the queue's whole ring several times over.
void putMany(TreeEvents& events, int count)
{
    for (int i = 0; i < count; ++i) {
        const std::string name = std::string(i % 300, 'n') + "\xff\x01" + std::to_string(i);
        const Clock::TimePoint when{Clock::TimePoint::duration(-i * 1000LL)};
        switch (i % 5) {
        case 0: events.opened(name, when); break;
        case 1: events.item(name, i * 512LL, when); break;
        case 2: events.item(name, 0, std::nullopt); break;
        case 3: events.closed(); break;
        default: events.unreadable(); break;
        }
    }
}

TEST(TreeEventQueueTest, ReplaysEveryEventInOrderWhenTheBuilderFallsBehind)
{
    Recorder expected;
    putMany(expected, 60000);
    TreeEventQueue queue;
    std::thread walker([&] {
        putMany(queue, 60000);
        queue.finish();
    });
    Recorder replayed;
    // A builder that stalls at first makes the walk wait for room in the ring.
    replayed.onEach = [&] {
        if (replayed.seen.size() == 1)
            std::this_thread::sleep_for(100ms);
    };
    queue.replayInto(replayed);
    walker.join();
    EXPECT_EQ(replayed.seen, expected.seen);
}

TEST(TreeEventQueueTest, ABuilderThatFailsStopsTheWalkInsteadOfBlockingIt)
{
    TreeEventQueue queue;
    std::thread walker([&] {
        for (int i = 0; i < 100000 && !queue.abandoned(); ++i)
            queue.item("file", 512, std::nullopt);
        queue.finish();
    });
    Recorder failing;
    failing.onEach = [&] {
        if (failing.seen.size() == 10)
            throw std::runtime_error("out of memory");
    };
    EXPECT_THROW(queue.replayInto(failing), std::runtime_error);
    walker.join();  // would hang if the walk still waited for room
    EXPECT_TRUE(queue.abandoned());
}

// The builder is woken for several batches at once, but nothing waits much longer than
// longestWait for it: neither a batch being filled nor full ones handed over without a wake.
TEST(TreeEventQueueTest, EventsThatWaitedLongEnoughArriveBeforeMoreCome)
{
    TreeEventQueue queue;
    std::atomic<std::size_t> arrived{0};
    std::vector<bool> arrivedInTime;
    std::thread walker([&] {
        const auto handOverAfterAWait = [&](std::size_t expected) {
            std::this_thread::sleep_for(TreeEventQueue::longestWait);
            queue.handOverIfDue();
            const auto deadline = std::chrono::steady_clock::now() + 10s;
            while (arrived < expected && std::chrono::steady_clock::now() < deadline)
                std::this_thread::sleep_for(1ms);
            arrivedInTime.push_back(arrived == expected);
        };
        // Two batches exactly: with their 24-byte headers, 256 of these fill one.
        for (int i = 0; i < 512; ++i)
            queue.item(std::string(40, 'f'), 512, std::nullopt);
        handOverAfterAWait(512);
        queue.opened("slow", {});
        handOverAfterAWait(513);
        queue.finish();
    });
    Recorder builder;
    builder.onEach = [&] { ++arrived; };
    queue.replayInto(builder);
    walker.join();
    EXPECT_EQ(arrivedInTime, (std::vector<bool>{true, true}));
    ASSERT_EQ(builder.seen.size(), 513u);
    EXPECT_EQ(builder.seen.back(), "opened slow 0");
}

}  // namespace
