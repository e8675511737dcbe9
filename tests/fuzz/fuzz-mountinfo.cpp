// Lines of /proc/self/mountinfo, with the octal escapes the kernel writes for odd mount points.

#include "Platform/Volumes.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto volumes = Volumes::parseMountInfo(std::string_view(reinterpret_cast<const char*>(data), size));
    for (const auto& volume : volumes)
        (void)volume.name.size();
    return 0;
}
