// Launch agents' property lists, XML or binary.

#include "Services/LaunchAgentManager.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto summary = LaunchAgentManager::parsePlist(std::string_view(reinterpret_cast<const char*>(data), size));
    (void)summary.label;
    return 0;
}
