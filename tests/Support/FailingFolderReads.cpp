#include "Support/FailingFolderReads.h"

#include <atomic>
#include <cerrno>
#include <dirent.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<bool> armed{false};
std::atomic<int> readsOfFolder{0};
dev_t failingDevice = 0;
ino_t failingInode = 0;

bool isFailingFolder(int descriptor)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && status.st_dev == failingDevice && status.st_ino == failingInode;
}

}  // namespace

FailingFolderReads::FailingFolderReads(const std::string& folder)
{
    struct stat status {};
    if (stat(folder.c_str(), &status) != 0)
        return;
    failingDevice = status.st_dev;
    failingInode = status.st_ino;
    readsOfFolder = 0;
    armed = true;
}

FailingFolderReads::~FailingFolderReads()
{
    armed = false;
}

// Takes the place of the C library's function for this program, and hands every read to the
// kernel itself, except a second read of the failing folder.
extern "C" ssize_t getdents64(int descriptor, void* buffer, size_t length) noexcept
{
    if (armed && isFailingFolder(descriptor) && readsOfFolder++ > 0) {
        errno = EIO;
        return -1;
    }
    return syscall(SYS_getdents64, descriptor, buffer, length);
}
