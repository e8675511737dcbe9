#include "Platform/DesktopStartupSettings.h"

#include "Platform/ExecutablePath.h"

#include <algorithm>
#include <cstdlib>

namespace DesktopStartupSettings {
namespace {

struct Candidate {
    std::string_view desktop;  // as the session names itself in $XDG_CURRENT_DESKTOP
    std::vector<std::string> command;
};

// In order of preference within a desktop.
const std::vector<Candidate>& candidates()
{
    static const std::vector<Candidate> table = {
        {"KDE", {"systemsettings", "kcm_autostart"}},
        {"KDE", {"systemsettings5", "kcm_autostart"}},
        {"GNOME", {"gnome-session-properties"}},
        {"GNOME", {"gnome-tweaks"}},
        {"Unity", {"gnome-session-properties"}},
        {"XFCE", {"xfce4-session-settings"}},
        {"MATE", {"mate-session-properties"}},
        {"X-Cinnamon", {"cinnamon-session-properties"}},
        {"LXQt", {"lxqt-config-session"}},
    };
    return table;
}

}  // namespace

std::optional<std::vector<std::string>> command(std::string_view currentDesktops,
                                                const std::function<bool(const std::string&)>& isInstalled)
{
    std::size_t start = 0;
    while (start <= currentDesktops.size()) {
        const auto end = std::min(currentDesktops.find(':', start), currentDesktops.size());
        const std::string_view desktop = currentDesktops.substr(start, end - start);
        start = end + 1;
        for (const Candidate& candidate : candidates()) {
            if (candidate.desktop == desktop && isInstalled(candidate.command.front()))
                return candidate.command;
        }
    }
    return std::nullopt;
}

std::optional<std::vector<std::string>> command()
{
    const char* desktops = std::getenv("XDG_CURRENT_DESKTOP");
    return command(desktops ? desktops : "",
                   [](const std::string& program) { return ExecutablePath::find(program).has_value(); });
}

}  // namespace DesktopStartupSettings
