#include "Platform/Trash.h"

#include "Platform/Clock.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/TrashInfo.h"
#include "Platform/TrashLocation.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Trash {
namespace {

// Enough for any crowd of same-named items; a bound keeps a misbehaving file system from
// turning the search into an endless loop.
constexpr unsigned maximumAttempts = 100000;

// The item's path with its parent's links resolved, so the trash is chosen for where the item
// really lies and Path= records a location that stays valid. The item itself is kept as named:
// a link is trashed as the link.
std::optional<std::string> locatedItem(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    if (!path.starts_with('/'))
        return std::nullopt;
    const std::string name = Paths::lastComponent(path);
    if (name.empty() || name == "." || name == "..")
        return std::nullopt;
    const std::string parent = Paths::resolvingSymlinks(Paths::parentFolder(path));
    return (parent == "/" ? "" : parent) + "/" + name;
}

// Cuts to at most `size` bytes without splitting a UTF-8 sequence.
std::string truncated(std::string text, std::size_t size)
{
    if (text.size() <= size)
        return text;
    while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
        --size;
    text.resize(size);
    return text;
}

// The name to try at the given attempt: the item's own, then "name.2.ext", "name.3.ext", … so the
// extension still tells file managers what the trashed file is. Shortened where needed so that
// the info file's name, the longest of the two, fits a folder entry.
std::string trashName(const std::string& name, unsigned attempt)
{
    const std::string suffix = attempt == 1 ? std::string() : "." + std::to_string(attempt);
    const std::size_t room = NAME_MAX - TrashInfo::extension.size() - suffix.size();
    const auto dot = name.rfind('.');
    std::string stem = name;
    std::string extension;
    if (dot != std::string::npos && dot > 0 && name.size() - dot <= room / 2) {
        stem = name.substr(0, dot);
        extension = name.substr(dot);
    }
    return truncated(stem, room - extension.size()) + suffix + extension;
}

enum class Outcome { done, taken, failed };

Outcome writeAll(int fd, std::string_view contents)
{
    while (!contents.empty()) {
        const ssize_t written = ::write(fd, contents.data(), contents.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return Outcome::failed;
        contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return Outcome::done;
}

// Creating the .trashinfo exclusively is what claims a name in the trash, against other
// programs trashing at the same moment as much as against what is already there.
Outcome claim(const std::string& infoPath, std::string_view contents)
{
    const int fd = open(infoPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0)
        return errno == EEXIST ? Outcome::taken : Outcome::failed;
    const bool written = writeAll(fd, contents) == Outcome::done;
    if (close(fd) != 0 || !written) {
        unlink(infoPath.c_str());
        return Outcome::failed;
    }
    return Outcome::done;
}

// The item to move: `name` inside the open folder `folder`, or a whole path with AT_FDCWD.
// `path` is where it lies, for the record and the choice of trash.
struct Source {
    int folder;
    std::string name;
    std::string path;
};

// A rename that never replaces what stands at `to`. File systems without that guarantee get a
// check before a plain rename.
Outcome moveWithoutReplacing(const Source& from, const std::string& to)
{
    if (renameat2(from.folder, from.name.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return Outcome::done;
    if (errno == EEXIST || errno == ENOTEMPTY)
        return Outcome::taken;
    if (errno != EINVAL && errno != ENOSYS)
        return Outcome::failed;
    if (FileSystem::exists(to))
        return Outcome::taken;
    return renameat(from.folder, from.name.c_str(), AT_FDCWD, to.c_str()) == 0 ? Outcome::done : Outcome::failed;
}

Result moveIntoTrash(const Source& item, const TrashLocation& trash, const std::string& contents)
{
    const std::string name = Paths::lastComponent(item.path);
    for (unsigned attempt = 1; attempt <= maximumAttempts; ++attempt) {
        const std::string candidate = trashName(name, attempt);
        const std::string infoPath = trash.folder + "/info/" + candidate + std::string(TrashInfo::extension);
        const Outcome claimed = claim(infoPath, contents);
        if (claimed == Outcome::taken)
            continue;
        if (claimed == Outcome::failed)
            return {};
        const std::string trashPath = trash.folder + "/files/" + candidate;
        const Outcome moved = moveWithoutReplacing(item, trashPath);
        if (moved == Outcome::done)
            return {true, trashPath};
        unlink(infoPath.c_str());
        // A file left in files/ without its record (a crash between the two steps) keeps its
        // name; anything else means this trash can't take the item.
        if (moved == Outcome::failed)
            return {};
    }
    return {};
}

std::string recordedPath(const std::string& item, const TrashLocation& trash)
{
    if (trash.topFolder.empty())
        return item;
    return item.substr(trash.topFolder == "/" ? 1 : trash.topFolder.size() + 1);
}

Result trashSource(const Source& item)
{
    if (TrashLocation::holds(item.path))
        return {};
    const auto trash = TrashLocation::forItem(item.path);
    if (!trash)
        return {};
    return moveIntoTrash(item, *trash, TrashInfo::contents(recordedPath(item.path, *trash), Clock::now()));
}

}  // namespace

Result trashItem(const std::string& path)
{
    const auto item = locatedItem(path);
    if (!item || !FileSystem::exists(*item))
        return {};
    return trashSource({AT_FDCWD, *item, *item});
}

Result trashChild(const OpenFolder& folder, const std::string& name)
{
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos || !folder.childInfo(name))
        return {};
    return trashSource({folder.descriptor(), name, Paths::joined(folder.path(), name)});
}

bool putBack(const std::string& trashedPath, const std::string& originalPath)
{
    std::string trashPath = trashedPath;
    while (trashPath.size() > 1 && trashPath.back() == '/')
        trashPath.pop_back();
    if (!FileSystem::exists(trashPath) || FileSystem::exists(originalPath))
        return false;
    FileSystem::createFolders(Paths::parentFolder(originalPath));
    if (moveWithoutReplacing({AT_FDCWD, trashPath, trashPath}, originalPath) != Outcome::done)
        return false;
    // The record goes with the item, or file managers would list a ghost of it.
    const std::string filesFolder = Paths::parentFolder(trashPath);
    if (Paths::lastComponent(filesFolder) == "files") {
        const std::string info = Paths::parentFolder(filesFolder) + "/info/" + Paths::lastComponent(trashPath) + std::string(TrashInfo::extension);
        unlink(info.c_str());
    }
    return true;
}

std::string homeTrashFolder()
{
    return TrashLocation::homeFolder();
}

}  // namespace Trash
