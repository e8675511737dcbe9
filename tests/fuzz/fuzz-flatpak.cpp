// The tab-separated listings of `flatpak list` and `flatpak remote-ls --updates`: the input is
// split at its first form feed into the two.

#include "Services/FlatpakUpdater.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto split = text.find('\f');
    const std::string_view installed = text.substr(0, split);
    const std::string_view updates = split == std::string_view::npos ? std::string_view() : text.substr(split + 1);
    for (const auto& package : FlatpakUpdater::parseOutdated(installed, updates))
        (void)FlatpakUpdater::upgradeCommand(package);
    (void)FlatpakUpdater::parseOutdated(text, text);
    return 0;
}
