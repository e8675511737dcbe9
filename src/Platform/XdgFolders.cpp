#include "Platform/XdgFolders.h"

#include "Platform/Paths.h"

#include <cstdlib>
#include <fstream>

namespace XdgFolders {
namespace {

std::string folder(const char* variable, const char* fallbackBelowHome)
{
    if (const char* value = std::getenv(variable); value && value[0] == '/')
        return value;
    return Paths::home() + "/" + fallbackBelowHome;
}

// The value of one line, `XDG_KIND_DIR="$HOME/Name"` or `XDG_KIND_DIR="/absolute/path"`, the only
// two forms the file takes; a backslash keeps the character after it.
std::optional<std::string> userDirValue(std::string_view quoted)
{
    if (quoted.size() < 2 || quoted.front() != '"')
        return std::nullopt;
    std::string value;
    for (std::size_t at = 1; at < quoted.size(); ++at) {
        const char next = quoted[at];
        if (next == '"')
            break;
        if (next == '\\' && at + 1 < quoted.size())
            ++at;
        value += quoted[at];
    }
    if (value == "$HOME" || value.starts_with("$HOME/"))
        return Paths::home() + value.substr(5);
    if (value.starts_with("/"))
        return value;
    return std::nullopt;
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

std::optional<std::string> userDir(std::string_view kind)
{
    std::ifstream file(configHome() + "/user-dirs.dirs");
    const std::string key = "XDG_" + std::string(kind) + "_DIR=";
    std::string line;
    while (std::getline(file, line)) {
        const std::size_t start = line.find_first_not_of(" \t");
        if (start != std::string::npos && line.compare(start, key.size(), key) == 0)
            return userDirValue(std::string_view(line).substr(start + key.size()));
    }
    return std::nullopt;
}

}  // namespace XdgFolders
