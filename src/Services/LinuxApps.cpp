#include "Services/LinuxApps.h"

#include "Platform/ExecutablePath.h"
#include "Platform/FileSystem.h"
#include "Platform/Ownership.h"
#include "Platform/Paths.h"
#include "Platform/XdgFolders.h"
#include "Services/FlatpakUser.h"
#include "Services/LeftoverSearch.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <tuple>

namespace LinuxApps {
namespace {

bool isInside(const std::string& path, const std::string& folder)
{
    return folder.size() > 1 && path.starts_with(folder + "/");
}

// An absolute path with no "." or ".." among its components. Paths in desktop entries are
// anyone's writing; one that climbs ("~/Applications/../") can't be trusted to mean what its
// text seems to say, so it is never an app.
bool isPlainAbsolute(const std::string& path)
{
    if (!path.starts_with("/"))
        return false;
    std::size_t start = 1;
    while (start <= path.size()) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string_view component(path.data() + start, end - start);
        if (component == "." || component == "..")
            return false;
        start = end + 1;
    }
    return true;
}

// The path with the links of its folders resolved but the item itself kept: an item that is a
// link is removed as the link.
std::string resolvedParent(const std::string& path)
{
    return Paths::resolvingSymlinks(Paths::parentFolder(path)) + "/" + Paths::lastComponent(path);
}

std::string lowercase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return text;
}

std::string nameFromFile(const std::string& path)
{
    std::string name = Paths::lastComponent(path);
    for (const char* suffix : {".AppImage", ".appimage", ".desktop"}) {
        if (name.ends_with(suffix) && name.size() > std::string_view(suffix).size())
            return name.substr(0, name.size() - std::string_view(suffix).size());
    }
    return name;
}

// The program an entry starts: TryExec, else the first word of Exec after an "env" prefix and
// its variable assignments. A bare name is looked up on $PATH.
std::optional<std::string> programOf(const DesktopEntry& entry)
{
    std::optional<std::string> program = entry.string("TryExec");
    if (!program || program->empty()) {
        const std::vector<std::string> words = entry.execArguments();
        auto word = words.begin();
        if (word != words.end() && (*word == "env" || *word == "/usr/bin/env")) {
            ++word;
            while (word != words.end() && word->find('=') != std::string::npos)
                ++word;
        }
        if (word == words.end())
            return std::nullopt;
        program = *word;
    }
    if (!program->starts_with("/"))
        program = ExecutablePath::find(*program);
    if (!program || !isPlainAbsolute(*program))
        return std::nullopt;
    return program;
}

// The folder directly inside an application root that holds `path`, or `path` itself when it
// lies directly in the root.
std::optional<std::string> inApplicationRoot(const std::string& path)
{
    for (const std::string& root : applicationRoots()) {
        if (!isInside(path, root))
            continue;
        const std::string rest = path.substr(root.size() + 1);
        return root + "/" + rest.substr(0, rest.find('/'));
    }
    return std::nullopt;
}

std::optional<std::string> flatpakIdOf(const DesktopEntry& entry)
{
    const auto id = entry.string("X-Flatpak");
    if (id && FlatpakUser::isValidAppId(*id))
        return id;
    return std::nullopt;
}

std::vector<std::string> desktopFilesIn(const std::string& folder)
{
    std::vector<std::string> files;
    for (const std::string& name : FileSystem::contentsOfFolder(folder).value_or(std::vector<std::string>{})) {
        if (name.ends_with(".desktop"))
            files.push_back(folder + "/" + name);
    }
    return files;
}

bool isShownApplication(const DesktopEntry& entry)
{
    return entry.hasMainGroup() && entry.string("Type") == "Application" && entry.boolean("Hidden") != true;
}

std::size_t optionCount(const DesktopEntry& entry)
{
    const std::vector<std::string> words = entry.execArguments();
    return std::size_t(std::count_if(words.begin(), words.end(), [](const std::string& word) { return !word.starts_with("%"); }));
}

// Whether the entry at `path` is more the app's main entry than the one at `otherPath`: an
// app's own entry starts it with the fewest words of its own ("notes %F" over "notes --new"),
// then the shorter file name, then the first in name order, so the choice never depends on the
// order a folder lists its files in.
bool isMainEntry(const std::string& path, const DesktopEntry& entry, const std::string& otherPath,
                 const DesktopEntry& other)
{
    const auto rank = [](const std::string& p, const DesktopEntry& e) { return std::tuple(optionCount(e), p.size(), p); };
    return rank(path, entry) < rank(otherPath, other);
}

}  // namespace

std::string applicationsFolder() { return XdgFolders::dataHome() + "/applications"; }

std::vector<std::string> applicationRoots()
{
    const std::string home = Paths::home();
    return {home + "/Applications", home + "/.local/opt", home + "/opt"};
}

std::string desktopFileStem(const std::string& entryPath, const std::string& root)
{
    std::string id = isInside(entryPath, root) ? entryPath.substr(root.size() + 1) : Paths::lastComponent(entryPath);
    std::replace(id.begin(), id.end(), '/', '-');
    if (id.ends_with(".desktop"))
        id.resize(id.size() - std::string_view(".desktop").size());
    return id;
}

std::optional<std::string> appPathOfEntry(const DesktopEntry& entry)
{
    const auto program = programOf(entry);
    if (!program)
        return std::nullopt;
    if (auto folder = inApplicationRoot(*program))
        return folder;
    // A launcher link in ~/.local/bin that leads into an application folder stands for that folder.
    if (auto folder = inApplicationRoot(Paths::resolvingSymlinks(*program)))
        return folder;
    const auto workingFolder = entry.string("Path");
    if (workingFolder && workingFolder->starts_with("/") && isInside(*program, *workingFolder) &&
        !refusal(*workingFolder))
        return *workingFolder;
    return program;
}

AppInfo appOfEntry(const std::string& entryPath, const DesktopEntry& entry)
{
    AppInfo app;
    const std::string root = isInside(entryPath, FlatpakUser::exportedApplicationsFolder())
                                 ? FlatpakUser::exportedApplicationsFolder()
                                 : applicationsFolder();
    const std::string stem = desktopFileStem(entryPath, root);
    app.name = entry.string("Name").value_or(stem);
    app.desktopEntry = entryPath;
    if (auto icon = entry.string("Icon"); icon && !icon->empty())
        app.icon = icon;
    if (const auto flatpakId = flatpakIdOf(entry)) {
        app.bundleID = flatpakId;
        app.appPath = FlatpakUser::appsFolder() + "/" + *flatpakId;
        return app;
    }
    const auto windowClass = entry.string("StartupWMClass");
    app.bundleID = windowClass && LeftoverSearch::isSingleComponent(*windowClass) ? *windowClass : stem;
    // An entry that starts nothing it can name (a link to a web page, a script on a system path)
    // is all there is of its app.
    app.appPath = appPathOfEntry(entry).value_or(entryPath);
    return app;
}

AppInfo inspect(const std::string& path)
{
    if (path.ends_with(".desktop")) {
        if (const auto entry = DesktopEntry::read(path); entry && entry->hasMainGroup())
            return appOfEntry(path, *entry);
    }
    if (const auto flatpakId = FlatpakUser::appIdOfFolder(path)) {
        // The user's own entry overrides the one the app exports, as on the desktop's menus.
        for (const std::string& folder : {applicationsFolder(), FlatpakUser::exportedApplicationsFolder()}) {
            const std::string entryPath = folder + "/" + *flatpakId + ".desktop";
            if (const auto entry = DesktopEntry::read(entryPath); entry && entry->hasMainGroup()) {
                AppInfo app = appOfEntry(entryPath, *entry);
                app.bundleID = flatpakId;
                app.appPath = path;
                return app;
            }
        }
        return {*flatpakId, flatpakId, path, std::nullopt, flatpakId};
    }
    std::optional<std::pair<std::string, DesktopEntry>> best;
    for (const std::string& entryPath : desktopFilesIn(applicationsFolder())) {
        const auto entry = DesktopEntry::read(entryPath);
        if (entry && isShownApplication(*entry) && appPathOfEntry(*entry) == path &&
            (!best || isMainEntry(entryPath, *entry, best->first, best->second)))
            best.emplace(entryPath, *entry);
    }
    if (best)
        return appOfEntry(best->first, best->second);
    return {nameFromFile(path), std::nullopt, path, std::nullopt, std::nullopt};
}

std::vector<AppInfo> installed()
{
    // Every app path some entry starts, once; the app is then described the way inspect()
    // describes it when the user picks it, so the list and the window always agree.
    std::vector<std::string> appPaths;
    std::set<std::string> seen;
    const auto note = [&](const std::string& appPath) {
        if (seen.insert(appPath).second)
            appPaths.push_back(appPath);
    };
    for (const std::string& folder : {applicationsFolder(), FlatpakUser::exportedApplicationsFolder()}) {
        for (const std::string& entryPath : desktopFilesIn(folder)) {
            // An entry that starts nothing it can name is no app to list.
            const auto entry = DesktopEntry::read(entryPath);
            if (entry && isShownApplication(*entry) && (flatpakIdOf(*entry) || appPathOfEntry(*entry)))
                note(appOfEntry(entryPath, *entry).appPath);
        }
    }
    for (const std::string& id : FlatpakUser::installedAppIds())
        note(FlatpakUser::appsFolder() + "/" + id);

    std::vector<AppInfo> apps;
    for (const std::string& appPath : appPaths) {
        if (FileSystem::exists(appPath) && !refusal(appPath))
            apps.push_back(inspect(appPath));
    }
    std::stable_sort(apps.begin(), apps.end(),
                     [](const AppInfo& a, const AppInfo& b) { return lowercase(a.name) < lowercase(b.name); });
    return apps;
}

std::optional<Refusal> refusal(const std::string& path)
{
    if (!isPlainAbsolute(path))
        return Refusal::systemApp;
    const std::string home = Paths::resolvingSymlinks(Paths::home());
    const std::string resolved = resolvedParent(path);
    if (resolved == home)
        return Refusal::sharedFolder;
    if (!isInside(resolved, home) || !Ownership::isOwnedByCurrentUser(resolved))
        return Refusal::systemApp;
    std::vector<std::string> shared = {XdgFolders::dataHome(), XdgFolders::configHome(), XdgFolders::cacheHome(),
                                       XdgFolders::stateHome(), applicationsFolder(), FlatpakUser::installationFolder(),
                                       FlatpakUser::appsFolder(), Paths::home() + "/.local/bin",
                                       Paths::home() + "/bin", Paths::home() + "/.var/app"};
    for (const char* folder : {"Desktop", "Documents", "Downloads", "Music", "Pictures", "Videos", "Public", "Templates"})
        shared.push_back(Paths::home() + "/" + folder);
    for (const std::string& root : applicationRoots())
        shared.push_back(root);
    // A shared folder, or anything that holds one (~/.local), is never one app's.
    for (const std::string& folder : shared) {
        const std::string resolvedFolder = Paths::resolvingSymlinks(folder);
        if (resolved == resolvedFolder || isInside(resolvedFolder, resolved))
            return Refusal::sharedFolder;
    }
    return std::nullopt;
}

}  // namespace LinuxApps
