#include "Models/ScanPreset.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/XdgFolders.h"

#include <string_view>

namespace {

std::vector<ScanPreset> macOSPresets(const std::string& home)
{
    return {
        {Uuid::random(), "Home", "house", home},
        {Uuid::random(), "Documents", "doc.text", home + "/Documents"},
        {Uuid::random(), "Downloads", "arrow.down.circle", home + "/Downloads"},
        {Uuid::random(), "Desktop", "menubar.dock.rectangle", home + "/Desktop"},
        {Uuid::random(), "Applications", "app.badge", "/Applications"},
        {Uuid::random(), "Whole Disk", "internaldrive", "/"},
    };
}

bool isFolder(const std::string& path)
{
    const auto info = FileSystem::infoFollowingLinks(path);
    return info && info->isFolder();
}

std::string userFolder(std::string_view kind, const std::string& fallback)
{
    return XdgFolders::userDir(kind).value_or(fallback);
}

// Flatpak installs for one user below the data folder, and for everyone (as software centres
// do by default) in the system's.
std::string flatpakApps()
{
    const std::string own = XdgFolders::dataHome() + "/flatpak";
    return isFolder(own) ? own : "/var/lib/flatpak";
}

std::vector<ScanPreset> linuxPresets(const std::string& home)
{
    std::vector<ScanPreset> presets{{Uuid::random(), "Home", "house", home}};
    const std::vector<ScanPreset> optional = {
        {Uuid::random(), "Documents", "doc.text", userFolder("DOCUMENTS", home + "/Documents")},
        {Uuid::random(), "Downloads", "arrow.down.circle", userFolder("DOWNLOAD", home + "/Downloads")},
        {Uuid::random(), "Desktop", "menubar.dock.rectangle", userFolder("DESKTOP", home + "/Desktop")},
        {Uuid::random(), "Applications", "app.badge", home + "/Applications"},
        {Uuid::random(), "Flatpak Apps", "shippingbox", flatpakApps()},
        {Uuid::random(), "App Data", "folder", home + "/.var/app"},
    };
    // A folder setting that points at the home itself switches that folder off.
    for (const ScanPreset& preset : optional) {
        if (preset.path != home && isFolder(preset.path))
            presets.push_back(preset);
    }
    presets.push_back({Uuid::random(), "Whole Disk", "internaldrive", "/"});
    return presets;
}

}  // namespace

std::vector<ScanPreset> ScanPreset::all()
{
    return forProfile(currentPlatformProfile());
}

std::vector<ScanPreset> ScanPreset::forProfile(PlatformProfile profile)
{
    const std::string home = Paths::home();
    return profile == PlatformProfile::macOS ? macOSPresets(home) : linuxPresets(home);
}
