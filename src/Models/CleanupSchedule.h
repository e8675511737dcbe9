#pragma once

#include <array>
#include <string_view>

enum class CleanupSchedule { off, daily, weekly };

namespace CleanupSchedules {

inline constexpr std::array<CleanupSchedule, 3> all = {CleanupSchedule::off, CleanupSchedule::daily,
                                                       CleanupSchedule::weekly};

std::string_view rawValue(CleanupSchedule schedule);
// Anything unknown reads as off.
CleanupSchedule fromRawValue(std::string_view raw);

}  // namespace CleanupSchedules
