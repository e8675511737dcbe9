#include "Platform/PlatformProfile.h"

std::string_view platformProfileName(PlatformProfile profile)
{
    return profile == PlatformProfile::macOS ? "macos" : "linux";
}

std::optional<PlatformProfile> platformProfileNamed(std::string_view name)
{
    for (auto profile : {PlatformProfile::macOS, PlatformProfile::linuxDesktop}) {
        if (platformProfileName(profile) == name)
            return profile;
    }
    return std::nullopt;
}
