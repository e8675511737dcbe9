#pragma once

#include "Platform/Clock.h"

#include <cstdint>
#include <optional>
#include <string>

// One build folder found in a code folder, with the kind it was found as.
struct ProjectDir {
    std::string path;  // as walked: symbolic links are not resolved
    std::string kindID;
    std::string kindLabel;
    std::string symbol;
    std::int64_t size = 0;  // bytes on disk
    std::optional<Clock::TimePoint> modified;  // the folder's own date; none when unreadable

    bool operator==(const ProjectDir&) const = default;
};
