#pragma once

#include <cstdint>
#include <string>

// Capacity figures of one volume, in bytes.
struct DiskInfo {
    std::int64_t total = 0;
    std::int64_t availableImportant = 0;  // counts purgeable space as available

    bool operator==(const DiskInfo&) const = default;

    // The volume that holds `path`; both figures 0 when it can't be read.
    static DiskInfo current(const std::string& path);
};
