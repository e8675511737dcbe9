#pragma once

#include <chrono>
#include <optional>

// The time of day as the application sees it. Tests fix it to make schedules deterministic.
namespace Clock {

using TimePoint = std::chrono::system_clock::time_point;

TimePoint now();

// Fixes now() at `time` until cleared with std::nullopt.
void setNowForTesting(std::optional<TimePoint> time);

}  // namespace Clock
