#include "Platform/XdgFolders.h"

#include "Platform/Paths.h"

#include <cstdlib>

namespace XdgFolders {
namespace {

std::string folder(const char* variable, const char* fallbackBelowHome)
{
    if (const char* value = std::getenv(variable); value && value[0] == '/')
        return value;
    return Paths::home() + "/" + fallbackBelowHome;
}

}  // namespace

std::string dataHome() { return folder("XDG_DATA_HOME", ".local/share"); }
std::string configHome() { return folder("XDG_CONFIG_HOME", ".config"); }
std::string cacheHome() { return folder("XDG_CACHE_HOME", ".cache"); }
std::string stateHome() { return folder("XDG_STATE_HOME", ".local/state"); }

std::vector<std::string> dataDirs()
{
    std::vector<std::string> dirs;
    const char* value = std::getenv("XDG_DATA_DIRS");
    std::string list = value ? value : "";
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        const std::string entry = list.substr(start, end - start);
        if (entry.starts_with("/"))
            dirs.push_back(entry);
        start = end + 1;
    }
    if (dirs.empty())
        dirs = {"/usr/local/share", "/usr/share"};
    return dirs;
}

}  // namespace XdgFolders
