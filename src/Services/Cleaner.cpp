#include "Services/Cleaner.h"

#include "Platform/FileSystem.h"
#include "Platform/OpenFolder.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
#include "Platform/UserText.h"
#include "Services/Finder.h"
#include "Services/Scanner.h"
#include "Services/ShellRunner.h"

#include <algorithm>

namespace Cleaner {
namespace {

bool isInside(const std::string& path, const std::string& folder)
{
    return path == folder || path.starts_with(folder + "/");
}

std::size_t componentCount(const std::string& path)
{
    std::size_t count = 0;
    bool inComponent = false;
    for (char c : path) {
        if (c != '/' && !inComponent)
            ++count;
        inComponent = c != '/';
    }
    return count;
}

// Resolved paths never hold "." or ".."; one that does was not resolved, and its text can't be
// trusted to say where it leads.
bool hasRelativeComponents(const std::string& path)
{
    return path.find("/../") != std::string::npos || path.find("/./") != std::string::npos ||
           path.ends_with("/..") || path.ends_with("/.");
}

}  // namespace

namespace {

// Every list is built from the home with its links resolved and no trailing slash: the paths the
// safety test is given are resolved, and a home reached through a link would otherwise match
// none of them.
std::vector<std::string> protectedPathsOf(const std::string& home)
{
    return {home,
            "/",
            "/Users",
            "/System",
            "/Library",
            "/Applications",
            "/private",
            "/var",
            home + "/Documents",
            home + "/Desktop",
            home + "/Downloads",
            home + "/Movies",
            home + "/Music",
            home + "/Pictures",
            home + "/Library"};
}

std::vector<std::string> protectedPrefixesOf(const std::string& home)
{
    return {home + "/Library/Application Support/MobileSync",
            home + "/Library/Mail",
            home + "/Library/Messages",
            home + "/Pictures",
            home + "/Library/Caches/CloudKit",
            home + "/Library/Caches/com.apple.bird",
            home + "/Library/Containers/com.apple.bird",
            home + "/Music"};
}

std::vector<std::string> allowedRootsOf(const std::string& home)
{
    std::vector<std::string> roots = {"/private/var/folders", "/Library/Caches"};
    // A home folder of "/" (some service accounts have one) would allow the whole disk.
    if (home.starts_with("/") && componentCount(home) > 0)
        roots.insert(roots.begin(), home);
    return roots;
}

bool isProtected(const std::string& path, const std::string& home)
{
    const auto exact = protectedPathsOf(home);
    if (std::find(exact.begin(), exact.end(), path) != exact.end())
        return true;
    const auto prefixes = protectedPrefixesOf(home);
    return std::any_of(prefixes.begin(), prefixes.end(), [&](const auto& prefix) { return isInside(path, prefix); });
}

}  // namespace

std::vector<std::string> protectedPaths()
{
    return protectedPathsOf(Paths::resolvedHome());
}

std::vector<std::string> protectedPrefixes()
{
    return protectedPrefixesOf(Paths::resolvedHome());
}

std::vector<std::string> allowedRoots()
{
    return allowedRootsOf(Paths::resolvedHome());
}

bool isSafe(const std::string& path)
{
    if (!path.starts_with("/") || hasRelativeComponents(path))
        return false;
    const std::string home = Paths::resolvedHome();
    if (isProtected(path, home))
        return false;
    const auto roots = allowedRootsOf(home);
    if (std::none_of(roots.begin(), roots.end(), [&](const auto& root) { return isInside(path, root); }))
        return false;
    return componentCount(path) > 2;
}

std::optional<std::string> validateCustom(const std::string& path)
{
    const std::string resolved = Paths::resolvingSymlinks(Paths::expandingTilde(path));
    if (!FileSystem::infoFollowingLinks(resolved))
        return QT_TRANSLATE_NOOP("Cleaner", "Folder doesn't exist.");
    if (!isSafe(resolved))
        return QT_TRANSLATE_NOOP("Cleaner", "That location is protected and can't be cleaned.");
    return std::nullopt;
}

namespace {

constexpr double commandTimeoutSeconds = 180.0;

UserText refused(const std::string& resolved)
{
    return {QT_TRANSLATE_NOOP("Cleaner", "Refused (protected): %1"), {resolved}};
}

// Moves one entry of a checked folder to the Trash, or deletes it. What can't go to the Trash is
// deleted instead, so a clean never stops half-way over a full or read-only trash. Both go
// through the open folder, never through the path again.
void remove(const OpenFolder& folder, const std::string& name, bool moveToTrash, std::vector<TrashedItem>& trashed)
{
    if (moveToTrash) {
        const Trash::Result result = Trash::trashChild(folder, name);
        if (result.trashed) {
            if (result.trashPath)
                trashed.push_back({Paths::joined(folder.path(), name), *result.trashPath});
            return;
        }
    }
    folder.removeChild(name);
}

// The desktop's own Trash may lie outside the home: moved to a bigger disk through a link, or
// under a data home elsewhere. The Trash row may empty it there too, and nothing else is let
// through: the folder must be exactly where the Trash leads, must not be protected or hold the
// home, and only the trash's own entries in it are removed. Any other target naming the same
// folder is refused as before.
bool isOwnTrashOutsideTheRoots(const std::string& resolved)
{
    if (resolved != Paths::resolvingSymlinks(Trash::homeTrashFolder()))
        return false;
    const std::string home = Paths::resolvedHome();
    return componentCount(resolved) > 1 && !isProtected(resolved, home) && !isInside(home, resolved);
}

bool isTrashEntry(const std::string& name)
{
    return name == "files" || name == "info" || name == "expunged" || name == "directorysizes" || name == "metadata";
}

// Removes the entry `name` of an open folder, except what `excluded` (resolved paths) names: an
// excluded entry stays, and a folder holding one is opened and cleared around it. Everything
// still goes through open folders, so the exclusions only ever keep more.
void removeExcept(const OpenFolder& folder, const std::string& name, const std::vector<std::string>& excluded,
                  bool moveToTrash, std::vector<TrashedItem>& trashed)
{
    const std::string path = Paths::joined(folder.path(), name);
    if (std::find(excluded.begin(), excluded.end(), path) != excluded.end())
        return;
    const bool holdsExcluded =
        std::any_of(excluded.begin(), excluded.end(), [&](const std::string& kept) { return isInside(kept, path); });
    const auto inner = holdsExcluded ? OpenFolder::open(path) : std::nullopt;
    if (!inner) {
        remove(folder, name, moveToTrash, trashed);
        return;
    }
    for (const auto& child : inner->childNames())
        removeExcept(*inner, child, excluded, moveToTrash, trashed);
}

// Clears a folder and leaves the folder itself. The safety test covers the folder named; all its
// children go with it, links among them removed as links, apart from the `excluded` paths inside
// it, which another target owns. The folder is opened once, right after the test, and everything
// is removed through that: a component swapped for a link later on can't lead the removal
// anywhere else.
std::optional<UserText> removeContents(const std::string& path, bool moveToTrash,
                                          std::vector<TrashedItem>& trashed,
                                          const std::vector<std::string>& excluded = {}, bool isTrashRow = false)
{
    const std::string resolved = Paths::resolvingSymlinks(path);
    const bool safe = isSafe(resolved);
    const bool ownTrash = !safe && isTrashRow && isOwnTrashOutsideTheRoots(resolved);
    if (!safe && !ownTrash)
        return refused(resolved);
    const auto info = FileSystem::info(resolved);
    if (!info)
        return std::nullopt;
    if (!info->isFolder()) {
        const auto parent = OpenFolder::open(Paths::parentFolder(resolved));
        if (!parent)
            return refused(resolved);
        remove(*parent, Paths::lastComponent(resolved), moveToTrash, trashed);
        return std::nullopt;
    }
    const auto folder = OpenFolder::open(resolved);
    if (!folder)
        return refused(resolved);  // it became a link, or its path did, after the test
    for (const auto& name : folder->childNames()) {
        if (!ownTrash || isTrashEntry(name))
            removeExcept(*folder, name, excluded, moveToTrash, trashed);
    }
    return std::nullopt;
}

// The excluded paths as removals see them: "~" expanded and links resolved, as the folders are.
std::vector<std::string> resolvedAll(const std::vector<std::string>& paths)
{
    std::vector<std::string> resolved;
    for (const auto& path : paths)
        resolved.push_back(Paths::resolvingSymlinks(Paths::expandingTilde(path)));
    return resolved;
}

std::string trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos)
        return {};
    const auto last = text.find_last_not_of(" \t\r\n");
    return text.substr(first, last - first + 1);
}

std::int64_t freedBetween(std::int64_t before, std::int64_t after)
{
    return std::max<std::int64_t>(0, before - after);
}

CleanOutcome cleanPaths(const PathsKind& kind, bool moveToTrash, bool isTrashRow)
{
    CleanOutcome outcome;
    const std::int64_t before = Scanner::totalSize(kind.paths, kind.excluded);
    const auto excluded = resolvedAll(kind.excluded);
    for (const auto& path : kind.paths) {
        auto message = removeContents(Paths::expandingTilde(path), moveToTrash, outcome.trashed, excluded, isTrashRow);
        if (message && !outcome.error)
            outcome.error = std::move(message);
    }
    outcome.freed = freedBetween(before, Scanner::totalSize(kind.paths, kind.excluded));
    return outcome;
}

CleanOutcome cleanCommand(const CommandKind& kind, bool moveToTrash)
{
    CleanOutcome outcome;
    const std::int64_t before = Scanner::totalSize(kind.fallbackPaths);
    const ShellResult result = ShellRunner::runLogin(kind.shell, commandTimeoutSeconds);
    if (result.status != 0) {
        // The command failed or isn't installed: clear what it would have cleared.
        for (const auto& path : kind.fallbackPaths)
            removeContents(Paths::expandingTilde(path), moveToTrash, outcome.trashed);
        if (result.status != 127) {
            const std::string output = trimmed(result.output);
            outcome.error = output.empty()
                ? UserText{QT_TRANSLATE_NOOP("Cleaner", "Command exited with status %1"), {std::to_string(result.status)}}
                : UserText{output};
        }
    }
    outcome.freed = freedBetween(before, Scanner::totalSize(kind.fallbackPaths));
    return outcome;
}

CleanOutcome cleanFinder(const CleanupTarget& target, bool moveToTrash)
{
    CleanOutcome outcome;
    const auto found = Finder::discover(target);
    const std::int64_t before = Scanner::totalSize(found);
    for (const auto& path : found) {
        // The build folder goes whole, through its opened parent; one that has become a link
        // since it was found is no build folder any more.
        const std::string resolved = Paths::resolvingSymlinks(path);
        if (!isSafe(resolved))
            continue;
        const auto parent = OpenFolder::open(Paths::parentFolder(resolved));
        const std::string name = Paths::lastComponent(resolved);
        const auto info = parent ? parent->childInfo(name) : std::nullopt;
        if (info && info->isFolder())
            remove(*parent, name, moveToTrash, outcome.trashed);
    }
    outcome.freed = freedBetween(before, Scanner::totalSize(Finder::discover(target)));
    return outcome;
}

}  // namespace

CleanOutcome clean(const CleanupTarget& target, bool moveToTrash)
{
    if (const auto* paths = std::get_if<PathsKind>(&target.kind))
        return cleanPaths(*paths, moveToTrash, target.id == "trash");
    if (const auto* command = std::get_if<CommandKind>(&target.kind))
        return cleanCommand(*command, moveToTrash);
    return cleanFinder(target, moveToTrash);
}

}  // namespace Cleaner
