#include "Models/DiskInfo.h"

#include "Platform/Volumes.h"

DiskInfo DiskInfo::current(const std::string& path)
{
    const auto capacity = Volumes::capacity(path);
    if (!capacity)
        return {};
    return {capacity->total, capacity->availableForImportantUse};
}
