#pragma once

#include "Platform/Clock.h"

#include <cstdint>

// What one metadata call tells about an item, without following a link.
struct ItemInfo {
    enum class Type { regular, folder, symlink, other };

    Type type = Type::other;
    std::int64_t allocatedSize = 0;  // blocks on disk, what removing the item gives back
    std::int64_t logicalSize = 0;
    Clock::TimePoint modified;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t linkCount = 1;

    bool isFolder() const { return type == Type::folder; }
    bool isRegularFile() const { return type == Type::regular; }
    bool isSymlink() const { return type == Type::symlink; }
};
