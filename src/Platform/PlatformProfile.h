#pragma once

#include <optional>
#include <string_view>

// Which desktop the product is shaped for: the catalog's folders, the uninstaller's idea of an
// app, the words the windows use for the file manager and the startup settings. It is fixed by
// the platform the build is for; tests and the command-line tools may ask for either by name.
enum class PlatformProfile { macOS, linuxDesktop };

// The profile of this build.
constexpr PlatformProfile currentPlatformProfile()
{
#if defined(__APPLE__)
    return PlatformProfile::macOS;
#else
    return PlatformProfile::linuxDesktop;
#endif
}

// "macos" or "linux", as the command-line tools take it.
std::string_view platformProfileName(PlatformProfile profile);
std::optional<PlatformProfile> platformProfileNamed(std::string_view name);
