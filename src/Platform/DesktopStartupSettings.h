#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Where a desktop session keeps its own startup settings: the program (and its arguments) that
// opens them on the common desktops, for the startup window's footer.
namespace DesktopStartupSettings {

// The command for the first desktop in `currentDesktops` ($XDG_CURRENT_DESKTOP, a
// colon-separated list such as "ubuntu:GNOME") that has a known startup settings program which
// `isInstalled` finds; none when no desktop named has one.
std::optional<std::vector<std::string>> command(std::string_view currentDesktops,
                                                const std::function<bool(const std::string&)>& isInstalled);

// The same for this session, with programs looked up on $PATH.
std::optional<std::vector<std::string>> command();

}  // namespace DesktopStartupSettings
