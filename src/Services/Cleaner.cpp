#include "Services/Cleaner.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
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

std::vector<std::string> protectedPaths()
{
    const std::string home = Paths::home();
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

std::vector<std::string> protectedPrefixes()
{
    const std::string home = Paths::home();
    return {home + "/Library/Application Support/MobileSync",
            home + "/Library/Mail",
            home + "/Library/Messages",
            home + "/Pictures",
            home + "/Library/Caches/CloudKit",
            home + "/Library/Caches/com.apple.bird",
            home + "/Library/Containers/com.apple.bird",
            home + "/Music"};
}

std::vector<std::string> allowedRoots()
{
    std::vector<std::string> roots = {"/private/var/folders", "/Library/Caches"};
    // A home folder of "/" (some service accounts have one) would allow the whole disk.
    const std::string home = Paths::home();
    if (home.starts_with("/") && componentCount(home) > 0)
        roots.insert(roots.begin(), home);
    return roots;
}

bool isSafe(const std::string& path)
{
    if (!path.starts_with("/") || hasRelativeComponents(path))
        return false;
    const auto exact = protectedPaths();
    if (std::find(exact.begin(), exact.end(), path) != exact.end())
        return false;
    const auto prefixes = protectedPrefixes();
    if (std::any_of(prefixes.begin(), prefixes.end(), [&](const auto& prefix) { return isInside(path, prefix); }))
        return false;
    const auto roots = allowedRoots();
    if (std::none_of(roots.begin(), roots.end(), [&](const auto& root) { return isInside(path, root); }))
        return false;
    return componentCount(path) > 2;
}

std::optional<std::string> validateCustom(const std::string& path)
{
    const std::string resolved = Paths::resolvingSymlinks(Paths::expandingTilde(path));
    if (!FileSystem::infoFollowingLinks(resolved))
        return "Folder doesn't exist.";
    if (!isSafe(resolved))
        return "That location is protected and can't be cleaned.";
    return std::nullopt;
}

namespace {

constexpr double commandTimeoutSeconds = 180.0;

// Moves one item to the Trash, or deletes it. What can't go to the Trash is deleted instead, so
// a clean never stops half-way over a full or read-only trash.
void remove(const std::string& path, bool moveToTrash, std::vector<TrashedItem>& trashed)
{
    if (moveToTrash) {
        const Trash::Result result = Trash::trashItem(path);
        if (result.trashed) {
            if (result.trashPath)
                trashed.push_back({path, *result.trashPath});
            return;
        }
    }
    FileSystem::removeItem(path);
}

// Clears a folder and leaves the folder itself. The safety test covers the folder named; all its
// children go with it, links among them removed as links.
std::optional<std::string> removeContents(const std::string& path, bool moveToTrash,
                                          std::vector<TrashedItem>& trashed)
{
    const std::string resolved = Paths::resolvingSymlinks(path);
    if (!isSafe(resolved))
        return "Refused (protected): " + resolved;
    const auto info = FileSystem::infoFollowingLinks(resolved);
    if (!info)
        return std::nullopt;
    if (!info->isFolder()) {
        remove(resolved, moveToTrash, trashed);
        return std::nullopt;
    }
    for (const auto& name : FileSystem::contentsOfFolder(resolved).value_or(std::vector<std::string>{}))
        remove(resolved + "/" + name, moveToTrash, trashed);
    return std::nullopt;
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

CleanOutcome cleanPaths(const PathsKind& kind, bool moveToTrash)
{
    CleanOutcome outcome;
    const std::int64_t before = Scanner::totalSize(kind.paths);
    for (const auto& path : kind.paths) {
        auto message = removeContents(Paths::expandingTilde(path), moveToTrash, outcome.trashed);
        if (message && !outcome.error)
            outcome.error = std::move(message);
    }
    outcome.freed = freedBetween(before, Scanner::totalSize(kind.paths));
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
            outcome.error = output.empty() ? "Command exited with status " + std::to_string(result.status) : output;
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
        const std::string resolved = Paths::resolvingSymlinks(path);
        if (isSafe(resolved))
            remove(resolved, moveToTrash, outcome.trashed);
    }
    outcome.freed = freedBetween(before, Scanner::totalSize(Finder::discover(target)));
    return outcome;
}

}  // namespace

CleanOutcome clean(const CleanupTarget& target, bool moveToTrash)
{
    if (const auto* paths = std::get_if<PathsKind>(&target.kind))
        return cleanPaths(*paths, moveToTrash);
    if (const auto* command = std::get_if<CommandKind>(&target.kind))
        return cleanCommand(*command, moveToTrash);
    return cleanFinder(target, moveToTrash);
}

}  // namespace Cleaner
