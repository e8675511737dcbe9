#pragma once

#include "Services/TreeEvents.h"

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

// Carries a walk's events to another thread that builds the tree from them, so that building
// (making records, sorting folders, touching new memory) runs while the walk waits in the kernel
// for the next item's metadata. One thread puts events in, one other replays them, in the same
// order. Events travel in batches, one hand-over per batch rather than per event; a batch also
// goes out once it has waited long enough, so a slow walk's findings are not held back. The
// builder, far quicker than the walk, is woken for several batches at a time: every wake is a
// system call on the walk's side and, often enough, a switch on its processor.
class TreeEventQueue final : public TreeEvents {
public:
    // Batches waiting to be replayed, at most; the walk waits when the builder is this far behind.
    static constexpr std::size_t batchesInFlight = 8;
    // Batches waiting when the builder is woken, unless one has waited longestWait.
    static constexpr std::size_t batchesPerWake = 4;
    static constexpr std::size_t batchBytes = 16 * 1024;
    static constexpr auto longestWait = std::chrono::milliseconds(50);

    TreeEventQueue();

    // The walking side.
    void item(std::string_view name, std::int64_t allocatedSize, std::optional<Clock::TimePoint> modified) override;
    void opened(std::string_view name, Clock::TimePoint modified) override;
    void closed() override;
    void unreadable() override;
    // Hands the batch over, and wakes the builder for it, if an event has waited longestWait.
    void handOverIfDue();
    // No more events come. Allocates nothing.
    void finish();
    // The builder failed and takes nothing more: the walk should stop.
    bool abandoned() const { return abandoned_.load(std::memory_order_acquire); }

    // The building side: replays every event into `target` as batches arrive, and returns after
    // the last once finish() is called. If `target` throws, the queue is abandoned (what is
    // still put in is dropped) and the exception goes on to the caller.
    void replayInto(TreeEvents& target);

private:
    enum class Kind : std::uint8_t;
    void put(Kind kind, std::string_view name, std::int64_t size, std::optional<Clock::TimePoint> modified);
    enum class Wake : bool { whenSeveral, now };
    void handOver(Wake wake);
    void abandon();
    // Waits for the next batch and takes it into `batch`, whose storage goes to the spares; false
    // once the walk has finished and every batch is taken.
    bool take(std::string& batch);
    static void replay(const std::string& batch, TreeEvents& target);

    std::string filling_;  // the walking side's batch
    std::chrono::steady_clock::time_point fillingSince_;
    // Batches handed over that the builder may not have been woken for, and when the first of
    // them began filling.
    bool unannounced_ = false;
    std::chrono::steady_clock::time_point unannouncedSince_;

    std::mutex mutex_;
    std::condition_variable ready_;  // a batch is waiting, or the walk finished
    std::condition_variable room_;   // the builder took a batch, or gave up
    // Waiting batches in a ring, so that handing one over never allocates.
    std::array<std::string, batchesInFlight> waiting_;
    std::size_t firstWaiting_ = 0;
    std::size_t waitingCount_ = 0;
    std::vector<std::string> spares_;  // replayed batches, their storage reused
    bool finished_ = false;
    std::atomic<bool> abandoned_{false};
};
