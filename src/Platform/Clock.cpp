#include "Platform/Clock.h"

#include <mutex>

namespace Clock {
namespace {

std::mutex overrideLock;
std::optional<TimePoint> fixedNow;

}  // namespace

TimePoint now()
{
    std::lock_guard guard(overrideLock);
    return fixedNow.value_or(std::chrono::system_clock::now());
}

void setNowForTesting(std::optional<TimePoint> time)
{
    std::lock_guard guard(overrideLock);
    fixedNow = time;
}

}  // namespace Clock
