#include "Platform/FileLock.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

FileLock::FileLock(const std::string& lockPath)
{
    FileSystem::createFolders(Paths::parentFolder(lockPath));
    descriptor_ = open(lockPath.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (descriptor_ < 0)
        return;
    while (flock(descriptor_, LOCK_EX) != 0) {
        if (errno != EINTR) {
            close(descriptor_);
            descriptor_ = -1;
            return;
        }
    }
}

FileLock::~FileLock()
{
    if (descriptor_ >= 0)
        close(descriptor_);  // closing the last descriptor releases the lock
}
