#include "Services/LinuxLeftovers.h"

#include "Platform/DesktopEntry.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/XdgFolders.h"
#include "Services/LeftoverSearch.h"
#include "Services/LinuxApps.h"

#include <algorithm>
#include <array>

namespace LinuxLeftovers {
namespace {

constexpr std::array sharedNames = {
    "Trash",       "applications", "autostart",  "dconf",     "desktop-directories", "environment.d",
    "flatpak",     "fontconfig",   "fonts",      "gtk-3.0",   "gtk-4.0",             "icons",
    "keyrings",    "menus",        "mime",       "mimeapps.list", "mopwell",         "systemd",
    "themes",      "thumbnails",   "user-dirs.dirs", "recently-used.xbel"};

constexpr std::array iconExtensions = {".png", ".svg", ".svgz", ".xpm"};

bool usable(const std::optional<std::string>& key)
{
    return key && LeftoverSearch::isSingleComponent(*key) && !isSharedName(*key);
}

// The four per-user base folders, each joined with `key`.
void considerBaseFolders(LeftoverSearch& search, const std::string& key)
{
    search.consider(XdgFolders::configHome() + "/" + key, "Preferences");
    search.consider(XdgFolders::cacheHome() + "/" + key, "App cache");
    search.consider(XdgFolders::dataHome() + "/" + key, "Application support");
    search.consider(XdgFolders::stateHome() + "/" + key, "Saved state");
}

// The desktop entries in the applications folder that are this app's: the one it was found
// through, the one named after its identifier, and any other that starts the same app or, for a
// Flatpak app, names it.
void considerMenuEntries(LeftoverSearch& search, const AppInfo& app)
{
    const std::string folder = LinuxApps::applicationsFolder();
    if (app.desktopEntry && app.desktopEntry->starts_with(folder + "/"))
        search.consider(*app.desktopEntry, "Menu entry");
    if (usable(app.bundleID))
        search.consider(folder + "/" + *app.bundleID + ".desktop", "Menu entry");
    // In name order, so the rows don't depend on the order the folder lists its files in.
    std::vector<std::string> names = FileSystem::contentsOfFolder(folder).value_or(std::vector<std::string>{});
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        if (!name.ends_with(".desktop"))
            continue;
        const std::string path = folder + "/" + name;
        const auto entry = DesktopEntry::read(path);
        if (!entry || entry->string("Type") != "Application")
            continue;
        const bool startsApp = LinuxApps::appPathOfEntry(*entry) == app.appPath;
        const bool sameFlatpak = app.bundleID && entry->string("X-Flatpak") == app.bundleID;
        if (startsApp || sameFlatpak)
            search.consider(path, "Menu entry");
    }
}

// Icons named exactly after the identifier, loose in the icons folder or in a theme's
// <theme>/<size>/<context>/ folders.
void considerIcons(LeftoverSearch& search, const std::string& id)
{
    const std::string icons = XdgFolders::dataHome() + "/icons";
    const auto considerIn = [&](const std::string& folder) {
        for (const char* extension : iconExtensions)
            search.consider(folder + "/" + id + extension, "Icon");
    };
    considerIn(icons);
    const auto list = [](const std::string& folder) {
        return FileSystem::contentsOfFolder(folder).value_or(std::vector<std::string>{});
    };
    for (const std::string& theme : list(icons)) {
        for (const std::string& size : list(icons + "/" + theme)) {
            for (const std::string& context : list(icons + "/" + theme + "/" + size))
                considerIn(icons + "/" + theme + "/" + size + "/" + context);
        }
    }
}

}  // namespace

bool isSharedName(std::string_view name)
{
    return std::find(sharedNames.begin(), sharedNames.end(), name) != sharedNames.end();
}

std::vector<UninstallItem> search(const AppInfo& app)
{
    LeftoverSearch search;
    search.consider(app.appPath, "Application", true);
    considerMenuEntries(search, app);
    if (usable(app.bundleID)) {
        const std::string& id = *app.bundleID;
        considerBaseFolders(search, id);
        search.consider(Paths::home() + "/.var/app/" + id, "Container");
        considerIcons(search, id);
        search.considerEntriesContaining(XdgFolders::configHome() + "/autostart", id, "Launch agent");
    }
    if (usable(app.name))
        considerBaseFolders(search, app.name);
    return search.items();
}

}  // namespace LinuxLeftovers
