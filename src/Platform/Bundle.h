#pragma once

#include <optional>
#include <string>

// What the application knows about bundles: its own identity, and in time the Info values of
// other applications' bundles.
namespace Bundle {

// The identifier the installed application runs under: its desktop entry, icon and D-Bus names.
inline constexpr const char* applicationIdentifier = "org.mopwell.Mopwell";

// The running application's identifier, or none. None until the executable sets it at start, so
// a test binary or a command-line tool never speaks to the desktop by accident.
std::optional<std::string> mainIdentifier();
void setMainIdentifier(std::optional<std::string> identifier);

}  // namespace Bundle
