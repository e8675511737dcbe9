#include "Models/ScanPreset.h"

#include "Support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

std::vector<std::pair<std::string, std::string>> places(PlatformProfile profile)
{
    std::vector<std::pair<std::string, std::string>> found;
    for (const ScanPreset& preset : ScanPreset::forProfile(profile))
        found.emplace_back(preset.label, preset.path);
    return found;
}

TEST(ScanPreset, AMacOffersItsSixPlacesWhetherOrNotTheyExist)
{
    const TempHome temp;
    const std::string& home = temp.home();
    EXPECT_THAT(places(PlatformProfile::macOS),
                ElementsAre(Pair("Home", home), Pair("Documents", home + "/Documents"),
                            Pair("Downloads", home + "/Downloads"), Pair("Desktop", home + "/Desktop"),
                            Pair("Applications", "/Applications"), Pair("Whole Disk", "/")));
}

// What a Linux desktop has: the home and the disk always, the rest only where it is.
TEST(ScanPreset, ALinuxDesktopOffersTheFoldersItHasWhereItsSettingsPutThem)
{
    const TempHome temp;
    const std::string& home = temp.home();
    std::vector<std::pair<std::string, std::string>> bare{{"Home", home}, {"Whole Disk", "/"}};
    // Flatpak apps installed for everyone count as the user's when the user has none of their own.
    if (std::filesystem::is_directory("/var/lib/flatpak"))
        bare.insert(bare.begin() + 1, {"Flatpak Apps", "/var/lib/flatpak"});
    EXPECT_EQ(places(PlatformProfile::linuxDesktop), bare)
        << "no /Applications, nor any card for a folder this home doesn't have";

    temp.makeFolder("Dokumente");
    temp.makeFolder("My Downloads");
    temp.makeFolder("Desktop");
    temp.makeFolder("Applications");
    temp.makeFolder(".local/share/flatpak/app");
    temp.makeFolder(".var/app/org.gimp.GIMP");
    // As xdg-user-dirs writes it, with a setting that switches the desktop folder off and one
    // that names a folder outside the home.
    temp.writeFile(".config/user-dirs.dirs", "# written by xdg-user-dirs-update\n"
                                             "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
                                             "  XDG_DOWNLOAD_DIR=\"$HOME/My Downloads\"\n"
                                             "XDG_DESKTOP_DIR=\"$HOME\"\n"
                                             "XDG_MUSIC_DIR=\"/srv/music\"\n");
    EXPECT_THAT(places(PlatformProfile::linuxDesktop),
                ElementsAre(Pair("Home", home), Pair("Documents", home + "/Dokumente"),
                            Pair("Downloads", home + "/My Downloads"), Pair("Applications", home + "/Applications"),
                            Pair("Flatpak Apps", home + "/.local/share/flatpak"),
                            Pair("App Data", home + "/.var/app"), Pair("Whole Disk", "/")));

    // Without the settings, the folders keep their English names.
    temp.writeFile(".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=Dokumente\n");
    EXPECT_THAT(places(PlatformProfile::linuxDesktop)[1], Pair("Desktop", home + "/Desktop"));
}

}  // namespace
