#include "Platform/FileSystem.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/PosixItemInfo.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace FileSystem {
namespace {

// Empties a folder from the inside: files and links as they come, each folder once its
// contents are gone. Every removal is relative to a descriptor of the verified parent.
class TreeRemover : public DirectoryWalker::Visitor {
public:
    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        if (entry.info.isFolder())
            return DirectoryWalker::Action::descend;
        const std::string name(entry.name);
        if (unlinkat(entry.parentDescriptor, name.c_str(), 0) != 0 && errno != ENOENT)
            complete = false;
        return DirectoryWalker::Action::skip;
    }

    void leave(const DirectoryWalker::Entry& folder) override
    {
        const std::string name(folder.name);
        if (unlinkat(folder.parentDescriptor, name.c_str(), AT_REMOVEDIR) != 0 && errno != ENOENT)
            complete = false;
    }

    void unreadable(const DirectoryWalker::Entry& folder) override
    {
        // An empty folder we may not list can still go; one with contents stays.
        const std::string name(folder.name);
        if (unlinkat(folder.parentDescriptor, name.c_str(), AT_REMOVEDIR) != 0)
            complete = false;
    }

    bool complete = true;
};

}  // namespace

std::optional<ItemInfo> info(const std::string& path)
{
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0)
        return std::nullopt;
    return itemInfoFrom(status);
}

std::optional<ItemInfo> infoFollowingLinks(const std::string& path)
{
    struct stat status {};
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return itemInfoFrom(status);
}

bool exists(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

bool isFolderFollowingLinks(const std::string& path)
{
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::optional<std::vector<std::string>> contentsOfFolder(const std::string& path)
{
    return contentsOfFolderAt(AT_FDCWD, path);
}

std::optional<std::vector<std::string>> contentsOfFolderAt(int folderDescriptor, const std::string& name)
{
    // A stream of its own, so a descriptor the caller holds stays usable.
    const int descriptor = openat(folderDescriptor, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* folder = descriptor >= 0 ? fdopendir(descriptor) : nullptr;
    if (!folder) {
        if (descriptor >= 0)
            close(descriptor);
        return std::nullopt;
    }
    std::vector<std::string> names;
    while (const dirent* entry = readdir(folder)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    closedir(folder);
    return names;
}

bool removeItem(const std::string& path)
{
    return removeItemAt(AT_FDCWD, path);
}

bool removeItemAt(int folderDescriptor, const std::string& name)
{
    struct stat status {};
    if (fstatat(folderDescriptor, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT;
    if (!S_ISDIR(status.st_mode))
        return unlinkat(folderDescriptor, name.c_str(), 0) == 0 || errno == ENOENT;
    const int descriptor = openat(folderDescriptor, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor >= 0) {
        TreeRemover remover;
        DirectoryWalker::walkDescriptor(descriptor, remover);
        close(descriptor);
    }
    return unlinkat(folderDescriptor, name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT;
}

bool moveItemWithoutReplacing(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // File systems without the flag: a hard link can't be made over an existing name either.
    // Only files take this way; a folder can't be linked.
    if (link(from.c_str(), to.c_str()) != 0)
        return false;
    if (unlink(from.c_str()) != 0) {
        unlink(to.c_str());
        return false;
    }
    return true;
}

bool createFolders(const std::string& path)
{
    if (isFolderFollowingLinks(path))
        return true;
    const auto slash = path.find_last_of('/');
    if (slash != std::string::npos && slash > 0)
        createFolders(path.substr(0, slash));
    return (mkdir(path.c_str(), 0755) == 0 || errno == EEXIST) && isFolderFollowingLinks(path);
}

}  // namespace FileSystem
