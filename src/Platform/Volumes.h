#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Capacities of mounted volumes, and the volumes a user would think of as drives.
namespace Volumes {

struct Capacity {
    std::int64_t total = 0;
    std::int64_t availableForImportantUse = 0;
};

// The figures of the volume that holds `path`; none when it can't be read.
std::optional<Capacity> capacity(const std::string& path);

struct MountedVolume {
    std::string name;  // the mount point's last component, e.g. "USB STICK"
    std::string path;  // the mount point
};

// Real, user-visible file systems other than the root, in mount order, each mount point once:
// disks, sticks and network shares mounted under /media, /run/media, /mnt or the home folder.
// Pseudo file systems, system partitions (/boot, /var, a separate /home, snaps) and mounts
// marked x-gvfs-hide are left out. Empty when the mount table can't be read.
std::vector<MountedVolume> mountedVolumes();

// The same from the text of a /proc/<pid>/mountinfo file. Where several file systems are stacked
// on one mount point, the last one mounted is what the user sees there: it alone decides whether
// the point is listed, and the point takes that mount's place in the order.
std::vector<MountedVolume> parseMountInfo(std::string_view mountinfo);

}  // namespace Volumes
