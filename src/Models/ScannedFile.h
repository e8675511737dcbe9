#pragma once

#include <cstdint>
#include <functional>
#include <string>

// A regular file the duplicate scan found, with the bytes it takes on disk (its length where the
// allocation isn't known, else 0). Known by its path; equal only when the size agrees too.
struct ScannedFile {
    std::string path;
    std::int64_t size = 0;

    bool operator==(const ScannedFile&) const = default;
};

template <>
struct std::hash<ScannedFile> {
    std::size_t operator()(const ScannedFile& file) const noexcept
    {
        const std::size_t pathHash = std::hash<std::string>{}(file.path);
        return pathHash ^ (std::hash<std::int64_t>{}(file.size) + 0x9e3779b97f4a7c15ULL + (pathHash << 6) + (pathHash >> 2));
    }
};
