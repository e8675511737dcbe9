#include "Platform/TrashLocation.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

std::string childOf(const std::string& folder, const std::string& name)
{
    return (folder == "/" ? "" : folder) + "/" + name;
}

bool isWithin(const std::string& path, const std::string& folder)
{
    return path == folder || path.starts_with(folder == "/" ? folder : folder + "/");
}

// A rename only works within one mount, so that is what an item and its trash must share. The
// mount id tells apart bind mounts of one file system, which the device number alone would not.
struct MountIdentity {
    std::uint64_t device = 0;
    std::uint64_t mountId = 0;  // 0 where the kernel does not report one
    bool operator==(const MountIdentity&) const = default;
};

std::optional<MountIdentity> mountOf(const std::string& path)
{
    struct statx status {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_MNT_ID, &status) != 0)
        return std::nullopt;
    MountIdentity identity;
    identity.device = makedev(status.stx_dev_major, status.stx_dev_minor);
    if (status.stx_mask & STATX_MNT_ID)
        identity.mountId = status.stx_mnt_id;
    return identity;
}

// The home trash may not exist yet; the folder it will be created in decides its volume.
std::optional<MountIdentity> mountOfNearestExisting(std::string path)
{
    for (;;) {
        if (auto identity = mountOf(path))
            return identity;
        if (path == "/")
            return std::nullopt;
        path = Paths::parentFolder(path);
    }
}

// The volume's top folder: climb while the parent is still on the same mount.
std::string topFolderOf(std::string folder, const MountIdentity& mount)
{
    while (folder != "/") {
        const std::string parent = Paths::parentFolder(folder);
        if (mountOf(parent) != mount)
            break;
        folder = parent;
    }
    return folder;
}

// A trash folder of our own, created private when missing. On a shared volume another user
// could plant a link or a folder of theirs under this name to catch what we trash, so either
// is refused.
bool isOwnFolder(const std::string& path)
{
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        if (errno != ENOENT || (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) ||
            lstat(path.c_str(), &status) != 0)
            return false;
    }
    return S_ISDIR(status.st_mode) && status.st_uid == getuid();
}

bool hasFilesAndInfo(const std::string& trashFolder)
{
    return isOwnFolder(childOf(trashFolder, "files")) && isOwnFolder(childOf(trashFolder, "info"));
}

std::optional<TrashLocation> homeTrash(const std::string& folder)
{
    // The data home is an ordinary folder of the user's; only the trash inside it is private.
    // The trash itself may be a link: users move it to a bigger disk that way.
    FileSystem::createFolders(Paths::parentFolder(folder));
    if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
        return std::nullopt;
    if (!FileSystem::isFolderFollowingLinks(folder) || !hasFilesAndInfo(folder))
        return std::nullopt;
    return TrashLocation{folder, {}};
}

bool isStickyRealFolder(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
}

std::optional<TrashLocation> volumeTrash(const std::string& top)
{
    const std::string uid = std::to_string(getuid());
    // The administrator's shared .Trash is trusted only when sticky and no link; otherwise other
    // users could remove or redirect what we put there.
    const std::string shared = childOf(top, ".Trash");
    if (isStickyRealFolder(shared)) {
        const std::string folder = childOf(shared, uid);
        if (isOwnFolder(folder) && hasFilesAndInfo(folder))
            return TrashLocation{folder, top};
    }
    const std::string folder = childOf(top, ".Trash-" + uid);
    if (isOwnFolder(folder) && hasFilesAndInfo(folder))
        return TrashLocation{folder, top};
    return std::nullopt;
}

bool isPrivateTrashName(const std::string& name)
{
    constexpr std::string_view prefix = ".Trash-";
    return name.size() > prefix.size() && name.starts_with(prefix) &&
           std::all_of(name.begin() + prefix.size(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

std::string TrashLocation::homeFolder()
{
    // A relative XDG_DATA_HOME is invalid and ignored, as the base directory rules ask.
    std::string dataHome;
    if (const char* value = std::getenv("XDG_DATA_HOME"); value && value[0] == '/')
        dataHome = value;
    else
        dataHome = childOf(Paths::home(), ".local/share");
    while (dataHome.size() > 1 && dataHome.back() == '/')
        dataHome.pop_back();
    return childOf(dataHome, "Trash");
}

std::optional<TrashLocation> TrashLocation::forItem(const std::string& itemPath)
{
    // The entry being renamed lives in the parent folder, so the parent's mount decides which
    // trash a rename can reach; an item that is a mount point itself can't be renamed anyway.
    const std::string parent = Paths::parentFolder(itemPath);
    const auto itemMount = mountOf(parent);
    if (!itemMount)
        return std::nullopt;
    const std::string home = homeFolder();
    if (mountOfNearestExisting(home) == itemMount)
        return homeTrash(home);
    return volumeTrash(topFolderOf(parent, *itemMount));
}

bool TrashLocation::holds(const std::string& itemPath)
{
    if (isWithin(itemPath, Paths::resolvingSymlinks(homeFolder())))
        return true;
    // Volume trashes sit right under the volume's top folder; most paths can't be in one, and
    // those need no climb to the top.
    if (itemPath.find("/.Trash") == std::string::npos)
        return false;
    const std::string parent = Paths::parentFolder(itemPath);
    const auto mount = mountOf(parent);
    if (!mount)
        return false;
    const std::string top = topFolderOf(parent, *mount);
    const std::string below = itemPath.substr(top == "/" ? 1 : top.size() + 1);
    const std::string first = below.substr(0, below.find('/'));
    return first == ".Trash" || isPrivateTrashName(first);
}
