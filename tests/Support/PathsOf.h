#pragma once

#include <string>
#include <vector>

// The `path` of every item of a list, in its order: files found, folders, groups, volumes.
template <typename Items>
std::vector<std::string> pathsOf(const Items& items)
{
    std::vector<std::string> paths;
    for (const auto& item : items)
        paths.push_back(item.path);
    return paths;
}
