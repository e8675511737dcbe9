#include "Platform/Volumes.h"

#include <sys/statvfs.h>

namespace Volumes {

std::optional<Capacity> capacity(const std::string& path)
{
    struct statvfs info {};
    if (statvfs(path.c_str(), &info) != 0)
        return std::nullopt;
    const auto blockSize = static_cast<std::int64_t>(info.f_frsize ? info.f_frsize : info.f_bsize);
    // What an ordinary user may still write is the figure that matters; the blocks kept back for
    // the superuser are not space the user can reclaim or fill.
    return Capacity{static_cast<std::int64_t>(info.f_blocks) * blockSize,
                    static_cast<std::int64_t>(info.f_bavail) * blockSize};
}

}  // namespace Volumes
