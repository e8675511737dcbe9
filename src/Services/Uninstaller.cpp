#include "Services/Uninstaller.h"

#include "Platform/Bundle.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
#include "Services/Cleaner.h"
#include "Services/FlatpakUser.h"
#include "Services/LeftoverSearch.h"
#include "Services/LinuxApps.h"
#include "Services/LinuxLeftovers.h"

namespace Uninstaller {
namespace {

std::string withoutAppSuffixes(std::string name)
{
    for (auto found = name.find(".app"); found != std::string::npos; found = name.find(".app"))
        name.erase(found, 4);
    return name;
}

AppInfo inspectBundle(const std::string& appPath)
{
    AppInfo app;
    app.appPath = appPath;
    const auto bundle = Bundle::open(appPath);
    if (bundle && bundle->name)
        app.name = *bundle->name;
    else
        app.name = withoutAppSuffixes(Paths::lastComponent(appPath));
    if (bundle)
        app.bundleID = bundle->identifier;
    return app;
}

std::vector<UninstallItem> libraryLeftovers(const AppInfo& app)
{
    const std::string library = Paths::home() + "/Library";
    LeftoverSearch search;
    search.consider(app.appPath, "Application", true);
    // An identifier or name that isn't one path component ("..", "a/../..") could lead out of
    // the library; such a key is not used at all.
    if (app.bundleID && LeftoverSearch::isSingleComponent(*app.bundleID)) {
        const std::string& id = *app.bundleID;
        search.consider(library + "/Preferences/" + id + ".plist", "Preferences");
        search.consider(library + "/Caches/" + id, "App cache");
        search.consider(library + "/Application Support/" + id, "Application support");
        search.consider(library + "/Containers/" + id, "Container");
        search.consider(library + "/Saved Application State/" + id + ".savedState", "Saved state");
        search.consider(library + "/Logs/" + id, "Logs");
        search.consider(library + "/HTTPStorages/" + id, "Web storage");
        search.consider(library + "/WebKit/" + id, "WebKit data");
        search.consider(library + "/Cookies/" + id + ".binarycookies", "Cookies");
        search.consider(library + "/Application Scripts/" + id, "App scripts");
        search.considerEntriesContaining(library + "/Group Containers", id, "Group container");
        search.considerEntriesContaining(library + "/LaunchAgents", id, "Launch agent");
    }
    if (LeftoverSearch::isSingleComponent(app.name)) {
        search.consider(library + "/Application Support/" + app.name, "Application support");
        search.consider(library + "/Caches/" + app.name, "App cache");
        search.consider(library + "/Logs/" + app.name, "Logs");
    }
    return search.items();
}

// Only what lies in the user's own part of the home, passes the cleaner's safety test and isn't
// a shared folder is ever moved on Linux, whatever list the caller passes.
bool mayRemoveOnLinux(const std::string& path)
{
    if (LinuxApps::refusal(path))
        return false;
    const std::string resolved = Paths::resolvingSymlinks(Paths::parentFolder(path)) + "/" + Paths::lastComponent(path);
    return Cleaner::isSafe(resolved);
}

}  // namespace

AppInfo inspect(const std::string& appPath, PlatformProfile profile)
{
    if (profile == PlatformProfile::linuxDesktop)
        return LinuxApps::inspect(appPath);
    return inspectBundle(appPath);
}

std::vector<UninstallItem> leftovers(const AppInfo& app, PlatformProfile profile)
{
    if (profile == PlatformProfile::linuxDesktop)
        return LinuxLeftovers::search(app);
    return libraryLeftovers(app);
}

RemoveResult remove(const std::vector<std::string>& paths, PlatformProfile profile)
{
    RemoveResult result;
    for (const std::string& path : paths) {
        if (profile == PlatformProfile::linuxDesktop && !mayRemoveOnLinux(path))
            continue;
        const std::int64_t size = LeftoverSearch::measure(path);
        if (profile == PlatformProfile::linuxDesktop) {
            if (const auto flatpakId = FlatpakUser::appIdOfFolder(path)) {
                if (FlatpakUser::uninstall(*flatpakId))
                    result.freed += size;
                continue;
            }
        }
        const Trash::Result moved = Trash::trashItem(path);
        if (!moved.trashed)
            continue;
        result.freed += size;
        if (moved.trashPath)
            result.trashed.push_back({path, *moved.trashPath});
    }
    return result;
}

bool isProtectedSystemApp(const std::string& appPath, PlatformProfile profile)
{
    if (profile == PlatformProfile::linuxDesktop)
        return LinuxApps::refusal(appPath) == LinuxApps::Refusal::systemApp;
    return appPath.starts_with("/System/") || appPath == "/Applications/Safari.app";
}

}  // namespace Uninstaller
