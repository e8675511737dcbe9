#include "Platform/ExecutablePath.h"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace ExecutablePath {

std::optional<std::string> find(const std::string& name)
{
    if (name.empty() || name.find('/') != std::string::npos)
        return std::nullopt;
    const char* value = std::getenv("PATH");
    const std::string list = value ? value : "/usr/local/bin:/usr/bin:/bin";
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        const std::string folder = list.substr(start, end - start);
        start = end + 1;
        if (!folder.starts_with("/"))
            continue;
        const std::string candidate = folder + "/" + name;
        struct stat info {};
        if (::stat(candidate.c_str(), &info) == 0 && S_ISREG(info.st_mode) && ::access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return std::nullopt;
}

}  // namespace ExecutablePath
