#pragma once

// Platform-internal: turns the kernel's metadata into ItemInfo.

#include "Platform/ItemInfo.h"

#include <sys/stat.h>

inline ItemInfo itemInfoFrom(const struct stat& status)
{
    ItemInfo info;
    if (S_ISREG(status.st_mode))
        info.type = ItemInfo::Type::regular;
    else if (S_ISDIR(status.st_mode))
        info.type = ItemInfo::Type::folder;
    else if (S_ISLNK(status.st_mode))
        info.type = ItemInfo::Type::symlink;
    info.allocatedSize = static_cast<std::int64_t>(status.st_blocks) * 512;
    info.logicalSize = static_cast<std::int64_t>(status.st_size);
    info.modified = Clock::TimePoint{} + std::chrono::seconds{status.st_mtim.tv_sec} +
                    std::chrono::duration_cast<Clock::TimePoint::duration>(std::chrono::nanoseconds{status.st_mtim.tv_nsec});
    info.device = static_cast<std::uint64_t>(status.st_dev);
    info.inode = static_cast<std::uint64_t>(status.st_ino);
    info.linkCount = static_cast<std::uint64_t>(status.st_nlink);
    return info;
}
