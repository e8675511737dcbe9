#include "Services/TreeEventQueue.h"

#include <cstring>
#include <utility>

enum class TreeEventQueue::Kind : std::uint8_t { item, opened, closed, unreadable };

namespace {

// Each event in a batch: this header, then the name's bytes.
struct Header {
    std::int64_t size;
    Clock::TimePoint::rep modifiedTicks;
    std::uint32_t nameLength;
    std::uint8_t kind;
    bool hasModified;
    std::uint8_t unused[2];  // spelled out, so that no byte copied is left undefined
};

static_assert(sizeof(Header) == 24);

}  // namespace

TreeEventQueue::TreeEventQueue()
{
    // Every batch there can be at once: the ring, the one being filled and the one replayed.
    spares_.reserve(batchesInFlight + 2);
}

void TreeEventQueue::item(std::string_view name, std::int64_t allocatedSize, std::optional<Clock::TimePoint> modified)
{
    put(Kind::item, name, allocatedSize, modified);
}

void TreeEventQueue::opened(std::string_view name, Clock::TimePoint modified)
{
    put(Kind::opened, name, 0, modified);
}

void TreeEventQueue::closed()
{
    put(Kind::closed, {}, 0, std::nullopt);
}

void TreeEventQueue::unreadable()
{
    put(Kind::unreadable, {}, 0, std::nullopt);
}

void TreeEventQueue::put(Kind kind, std::string_view name, std::int64_t size, std::optional<Clock::TimePoint> modified)
{
    if (filling_.empty()) {
        fillingSince_ = std::chrono::steady_clock::now();
        // A name is at most 255 bytes: a batch then never grows past its first storage.
        filling_.reserve(batchBytes + sizeof(Header) + 256);
    }
    const Header header{size,     modified ? modified->time_since_epoch().count() : 0,
                        static_cast<std::uint32_t>(name.size()), static_cast<std::uint8_t>(kind),
                        modified.has_value(), {0, 0}};
    filling_.append(reinterpret_cast<const char*>(&header), sizeof header);
    filling_.append(name);
    if (filling_.size() >= batchBytes)
        handOver(Wake::whenSeveral);
}

void TreeEventQueue::handOverIfDue()
{
    const auto oldest = unannounced_ ? unannouncedSince_ : fillingSince_;
    if ((unannounced_ || !filling_.empty()) && std::chrono::steady_clock::now() - oldest >= longestWait)
        handOver(Wake::now);
}

void TreeEventQueue::handOver(Wake wake)
{
    if (filling_.empty()) {
        if (wake == Wake::now && std::exchange(unannounced_, false))
            ready_.notify_one();
        return;
    }
    if (!unannounced_)
        unannouncedSince_ = fillingSince_;
    std::unique_lock lock(mutex_);
    room_.wait(lock, [this] { return waitingCount_ < batchesInFlight || abandoned(); });
    if (abandoned()) {
        filling_.clear();
        return;
    }
    std::swap(waiting_[(firstWaiting_ + waitingCount_) % batchesInFlight], filling_);
    ++waitingCount_;
    // The slot held an empty string; a replayed batch's storage is reused when there is one.
    if (!spares_.empty()) {
        filling_ = std::move(spares_.back());
        spares_.pop_back();
    }
    const bool several = waitingCount_ >= batchesPerWake;
    lock.unlock();
    unannounced_ = !(several || wake == Wake::now);
    if (!unannounced_)
        ready_.notify_one();
}

void TreeEventQueue::finish()
{
    handOver(Wake::now);
    {
        const std::lock_guard lock(mutex_);
        finished_ = true;
    }
    ready_.notify_one();
}

void TreeEventQueue::abandon()
{
    {
        const std::lock_guard lock(mutex_);
        abandoned_.store(true, std::memory_order_release);
        for (std::string& batch : waiting_)
            batch.clear();
        waitingCount_ = 0;
    }
    room_.notify_one();
}

void TreeEventQueue::replayInto(TreeEvents& target)
{
    try {
        std::string batch;
        while (take(batch)) {
            replay(batch, target);
            batch.clear();
        }
    } catch (...) {
        abandon();
        throw;
    }
}

bool TreeEventQueue::take(std::string& batch)
{
    {
        std::unique_lock lock(mutex_);
        if (batch.capacity() > 0)
            spares_.push_back(std::move(batch));
        ready_.wait(lock, [this] { return waitingCount_ > 0 || finished_; });
        if (waitingCount_ == 0)
            return false;
        batch = std::move(waiting_[firstWaiting_]);
        waiting_[firstWaiting_] = std::string();
        firstWaiting_ = (firstWaiting_ + 1) % batchesInFlight;
        --waitingCount_;
    }
    room_.notify_one();
    return true;
}

void TreeEventQueue::replay(const std::string& batch, TreeEvents& target)
{
    std::size_t at = 0;
    while (at < batch.size()) {
        Header header;
        std::memcpy(&header, batch.data() + at, sizeof header);
        const std::string_view name(batch.data() + at + sizeof header, header.nameLength);
        at += sizeof header + header.nameLength;
        const auto modified = header.hasModified
                                  ? std::optional(Clock::TimePoint(Clock::TimePoint::duration(header.modifiedTicks)))
                                  : std::nullopt;
        switch (static_cast<Kind>(header.kind)) {
        case Kind::item:
            target.item(name, header.size, modified);
            break;
        case Kind::opened:
            target.opened(name, *modified);
            break;
        case Kind::closed:
            target.closed();
            break;
        case Kind::unreadable:
            target.unreadable();
            break;
        }
    }
}
