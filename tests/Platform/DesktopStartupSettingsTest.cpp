#include "Platform/DesktopStartupSettings.h"

#include <gtest/gtest.h>

#include <set>

TEST(DesktopStartupSettings, PicksTheFirstNamedDesktopWhoseProgramIsThere)
{
    using Command = std::optional<std::vector<std::string>>;
    struct Case {
        const char* desktops;
        std::set<std::string> installed;
        Command command;
    };
    for (const Case& c : {
             Case{"KDE", {"systemsettings"}, std::vector<std::string>{"systemsettings", "kcm_autostart"}},
             Case{"KDE", {"systemsettings5"}, std::vector<std::string>{"systemsettings5", "kcm_autostart"}},
             Case{"ubuntu:GNOME", {"gnome-tweaks"}, std::vector<std::string>{"gnome-tweaks"}},
             Case{"GNOME", {"gnome-tweaks", "gnome-session-properties"},
                  std::vector<std::string>{"gnome-session-properties"}},
             Case{"XFCE", {}, std::nullopt},
             Case{"Weird:XFCE", {"xfce4-session-settings"}, std::vector<std::string>{"xfce4-session-settings"}},
             Case{"", {"systemsettings"}, std::nullopt},
         }) {
        const auto found = DesktopStartupSettings::command(
            c.desktops, [&](const std::string& program) { return c.installed.count(program) > 0; });
        EXPECT_EQ(found, c.command) << c.desktops;
    }
}
