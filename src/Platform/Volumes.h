#pragma once

#include <cstdint>
#include <optional>
#include <string>

// Capacities of mounted volumes.
namespace Volumes {

struct Capacity {
    std::int64_t total = 0;
    std::int64_t availableForImportantUse = 0;
};

// The figures of the volume that holds `path`; none when it can't be read.
std::optional<Capacity> capacity(const std::string& path);

}  // namespace Volumes
