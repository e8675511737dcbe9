// The JSON of `brew outdated --json=v2`.

#include "Services/HomebrewUpdater.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto packages = HomebrewUpdater::parseOutdated(std::string_view(reinterpret_cast<const char*>(data), size));
    for (const auto& package : packages)
        (void)HomebrewUpdater::upgradeCommand(package);
    return 0;
}
