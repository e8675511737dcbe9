#include "Platform/Volumes.h"

#include "Platform/Paths.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <sys/statvfs.h>
#include <unordered_map>

namespace Volumes {

std::optional<Capacity> capacity(const std::string& path)
{
    struct statvfs info {};
    if (statvfs(path.c_str(), &info) != 0)
        return std::nullopt;
    const auto blockSize = static_cast<std::int64_t>(info.f_frsize ? info.f_frsize : info.f_bsize);
    // What an ordinary user may still write is the figure that matters; the blocks kept back for
    // the superuser are not space the user can reclaim or fill.
    return Capacity{static_cast<std::int64_t>(info.f_blocks) * blockSize,
                    static_cast<std::int64_t>(info.f_bavail) * blockSize};
}

namespace {

// Kernel and desktop bookkeeping: never something a user stores files on.
constexpr std::array pseudoTypes = {
    "proc",       "sysfs",      "tmpfs",           "devtmpfs",    "devpts",     "cgroup",
    "cgroup2",    "securityfs", "debugfs",         "tracefs",     "configfs",   "fusectl",
    "mqueue",     "hugetlbfs",  "pstore",          "bpf",         "autofs",     "binfmt_misc",
    "efivarfs",   "overlay",    "squashfs",        "nsfs",        "ramfs",      "rpc_pipefs",
    "selinuxfs",  "nfsd",       "fuse.gvfsd-fuse", "fuse.portal", "fuse.lxcfs", "fuse.snapfuse",
};

// File systems whose source is not a local device but which hold the user's files all the same.
constexpr std::array sharedTypes = {
    "nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "afs", "ceph",
    "fuse.sshfs", "fuse.rclone", "fuse.s3fs", "fuse.glusterfs",
};

template <std::size_t N>
bool isOneOf(std::string_view value, const std::array<const char*, N>& names)
{
    return std::any_of(names.begin(), names.end(), [&](const char* name) { return value == name; });
}

// The kernel writes space, tab, newline and backslash in paths as a backslash and three octal
// digits ("\040" for a space).
std::string decoded(std::string_view field)
{
    const auto isOctal = [](char c) { return c >= '0' && c <= '7'; };
    const auto isEscape = [&](std::size_t i) {
        return field[i] == '\\' && i + 3 < field.size() && field[i + 1] >= '0' && field[i + 1] <= '3' &&
               isOctal(field[i + 2]) && isOctal(field[i + 3]);
    };
    std::string text;
    text.reserve(field.size());
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (isEscape(i)) {
            text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 + (field[i + 3] - '0'));
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

std::vector<std::string_view> fieldsOf(std::string_view line)
{
    std::vector<std::string_view> fields;
    std::size_t start = 0;
    while (start < line.size()) {
        const auto end = std::min(line.find(' ', start), line.size());
        if (end > start)
            fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return fields;
}

bool hasOption(std::string_view options, std::string_view option)
{
    std::size_t start = 0;
    while (start <= options.size()) {
        const auto end = std::min(options.find(',', start), options.size());
        if (options.substr(start, end - start) == option)
            return true;
        start = end + 1;
    }
    return false;
}

bool isBelow(const std::string& path, const std::string& folder)
{
    return path.size() > folder.size() + 1 && path.starts_with(folder) && path[folder.size()] == '/';
}

std::string withoutTrailingSlashes(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// Where users find the volumes they plug in or mount themselves. /boot, /var, /snap and a
// separate /home are parts of the system, not places to clean as a drive. /mnt itself counts:
// it is the traditional place for a quick manual mount.
bool isUserLocation(const std::string& mountPoint, const std::vector<std::string>& homes)
{
    if (mountPoint == "/mnt" || isBelow(mountPoint, "/mnt") || isBelow(mountPoint, "/media") ||
        isBelow(mountPoint, "/run/media"))
        return true;
    // A drive mounted inside the home folder; the home folder itself is not a volume to offer.
    return std::any_of(homes.begin(), homes.end(),
                       [&](const std::string& home) { return home != "/" && isBelow(mountPoint, home); });
}

struct Mount {
    std::string mountPoint;
    bool visible = false;
};

}  // namespace

std::vector<MountedVolume> parseMountInfo(std::string_view mountinfo)
{
    // The home as written and as resolved: the table lists real paths, and a home reached
    // through a link (/home → /var/home) appears there under its real name.
    const std::string home = withoutTrailingSlashes(Paths::home());
    std::vector<std::string> homes{home};
    if (const auto resolved = withoutTrailingSlashes(Paths::resolvingSymlinks(home)); resolved != home)
        homes.push_back(resolved);

    std::vector<Mount> mounts;
    // Each point's latest mount; a table with many containers or snaps runs to thousands of lines.
    std::unordered_map<std::string, std::size_t> latest;
    std::size_t start = 0;
    while (start < mountinfo.size()) {
        const auto end = std::min(mountinfo.find('\n', start), mountinfo.size());
        const auto fields = fieldsOf(mountinfo.substr(start, end - start));
        start = end + 1;

        // id parent major:minor root mount-point options [optional fields...] - type source super-options
        if (fields.size() < 9)
            continue;
        const auto separator = std::find(fields.begin() + 6, fields.end(), std::string_view("-"));
        if (fields.end() - separator < 3)
            continue;
        const std::string mountPoint = decoded(fields[4]);
        const std::string_view type = separator[1];
        const std::string_view source = separator[2];
        const std::string_view superOptions = separator + 3 < fields.end() ? separator[3] : std::string_view();

        const bool visible = mountPoint != "/" && !isOneOf(type, pseudoTypes) &&
                             (source.starts_with("/dev/") || isOneOf(type, sharedTypes)) &&
                             isUserLocation(mountPoint, homes) && !hasOption(fields[5], "x-gvfs-hide") &&
                             !hasOption(superOptions, "x-gvfs-hide");

        latest[mountPoint] = mounts.size();
        mounts.push_back({mountPoint, visible});
    }

    std::vector<MountedVolume> volumes;
    for (std::size_t i = 0; i < mounts.size(); ++i) {
        // A later mount on the same point covers this one, whatever either of them is.
        if (mounts[i].visible && latest[mounts[i].mountPoint] == i)
            volumes.push_back({Paths::lastComponent(mounts[i].mountPoint), mounts[i].mountPoint});
    }
    return volumes;
}

std::vector<MountedVolume> mountedVolumes()
{
    std::ifstream file("/proc/self/mountinfo");
    if (!file)
        return {};
    // The file reports no size; read it as a stream.
    std::ostringstream text;
    text << file.rdbuf();
    return parseMountInfo(text.str());
}

}  // namespace Volumes
