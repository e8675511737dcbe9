#include "Platform/AtomicFile.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace AtomicFile {
namespace {

bool writeAll(int fd, std::string_view contents)
{
    while (!contents.empty()) {
        const ssize_t written = ::write(fd, contents.data(), contents.size());
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

void syncFolder(const std::string& folder)
{
    const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        fsync(fd);
        close(fd);
    }
}

}  // namespace

ReadResult read(const std::string& path)
{
    ReadResult result;
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        result.exists = errno != ENOENT && errno != ENOTDIR;
        return result;
    }
    result.exists = true;
    std::vector<char> buffer(64 * 1024);
    for (;;) {
        const ssize_t got = ::read(fd, buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            close(fd);
            result.contents.clear();
            return result;
        }
        if (got == 0)
            break;
        result.contents.append(buffer.data(), static_cast<std::size_t>(got));
    }
    close(fd);
    result.readable = true;
    return result;
}

bool replace(const std::string& path, std::string_view contents)
{
    const std::string folder = Paths::parentFolder(path);
    FileSystem::createFolders(folder);
    std::string temporary = path + ".XXXXXX";
    const int fd = mkostemp(temporary.data(), O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool written = writeAll(fd, contents) && fsync(fd) == 0;
    const bool closed = close(fd) == 0;
    if (!written || !closed || rename(temporary.c_str(), path.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    syncFolder(folder);
    return true;
}

}  // namespace AtomicFile
