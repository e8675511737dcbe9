#include "Platform/OpenFolder.h"

#include "Platform/FileSystem.h"
#include "Platform/PosixItemInfo.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

}  // namespace

std::optional<OpenFolder> OpenFolder::open(const std::string& path)
{
    if (!path.starts_with('/'))
        return std::nullopt;
    int descriptor = ::open("/", folderFlags);
    std::size_t start = 1;
    while (descriptor >= 0 && start < path.size()) {
        const auto slash = path.find('/', start);
        const std::string part = path.substr(start, slash == std::string::npos ? std::string::npos : slash - start);
        start = slash == std::string::npos ? path.size() : slash + 1;
        if (part.empty())
            continue;
        // O_NOFOLLOW refuses a link as the last component of each single-step open, so no
        // component of the whole path is ever a link that was followed.
        const int next = part == "." || part == ".." ? -1 : openat(descriptor, part.c_str(), folderFlags);
        close(descriptor);
        descriptor = next;
    }
    if (descriptor < 0)
        return std::nullopt;
    return OpenFolder(descriptor, path);
}

OpenFolder::OpenFolder(OpenFolder&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)), path_(std::move(other.path_))
{
}

OpenFolder& OpenFolder::operator=(OpenFolder&& other) noexcept
{
    std::swap(descriptor_, other.descriptor_);
    std::swap(path_, other.path_);
    return *this;
}

OpenFolder::~OpenFolder()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

std::vector<std::string> OpenFolder::childNames() const
{
    return FileSystem::contentsOfFolderAt(descriptor_, ".").value_or(std::vector<std::string>{});
}

std::optional<ItemInfo> OpenFolder::childInfo(const std::string& name) const
{
    struct stat status {};
    if (fstatat(descriptor_, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return itemInfoFrom(status);
}

bool OpenFolder::removeChild(const std::string& name) const
{
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos)
        return false;
    return FileSystem::removeItemAt(descriptor_, name);
}
