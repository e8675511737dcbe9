#include "Models/ScanPreset.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/UserText.h"
#include "Platform/XdgFolders.h"

#include <string_view>

namespace {

std::vector<ScanPreset> macOSPresets(const std::string& home)
{
    return {
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Home"), "house", home},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Documents"), "doc.text", home + "/Documents"},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Downloads"), "arrow.down.circle", home + "/Downloads"},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Desktop"), "menubar.dock.rectangle", home + "/Desktop"},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Applications"), "app.badge", "/Applications"},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Whole Disk"), "internaldrive", "/"},
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
    std::vector<ScanPreset> presets{{Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Home"), "house", home}};
    const std::vector<ScanPreset> optional = {
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Documents"), "doc.text",
         userFolder("DOCUMENTS", home + "/Documents")},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Downloads"), "arrow.down.circle",
         userFolder("DOWNLOAD", home + "/Downloads")},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Desktop"), "menubar.dock.rectangle",
         userFolder("DESKTOP", home + "/Desktop")},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Applications"), "app.badge", home + "/Applications"},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Flatpak Apps"), "shippingbox", flatpakApps()},
        {Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "App Data"), "folder", home + "/.var/app"},
    };
    // A folder setting that points at the home itself switches that folder off.
    for (const ScanPreset& preset : optional) {
        if (preset.path != home && isFolder(preset.path))
            presets.push_back(preset);
    }
    presets.push_back({Uuid::random(), QT_TRANSLATE_NOOP("ScanPreset", "Whole Disk"), "internaldrive", "/"});
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
