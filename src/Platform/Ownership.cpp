#include "Platform/Ownership.h"

#include <sys/stat.h>
#include <unistd.h>

namespace Ownership {

bool isOwnedByCurrentUser(const std::string& path)
{
    struct stat info {};
    return ::lstat(path.c_str(), &info) == 0 && info.st_uid == ::geteuid();
}

}  // namespace Ownership
