#pragma once

#include <optional>
#include <string>

// What the application knows about bundles: its own identity, and the Info values of other
// applications' bundles.
namespace Bundle {

// An application bundle opened at a path: a folder, with the Info values of
// <path>/Contents/Info.plist (XML or binary) when that file holds a dictionary.
struct Info {
    std::optional<std::string> identifier;  // CFBundleIdentifier, when it is text
    std::optional<std::string> name;        // CFBundleName, when it is text
};

// None when nothing, or no folder, is at `path`: such a path can't be a bundle.
std::optional<Info> open(const std::string& path);

// The identifier the installed application runs under: its desktop entry, icon and D-Bus names.
inline constexpr const char* applicationIdentifier = "org.mopwell.Mopwell";

// The running application's identifier, or none. None until the executable sets it at start, so
// a test binary or a command-line tool never speaks to the desktop by accident.
std::optional<std::string> mainIdentifier();
void setMainIdentifier(std::optional<std::string> identifier);

}  // namespace Bundle
