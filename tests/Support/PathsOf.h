#pragma once

#include <functional>
#include <string>
#include <vector>

// One text of every item of a list, in its order: `stringsOf(snapshots, &LocalSnapshot::name)`.
template <typename Items, typename Text>
std::vector<std::string> stringsOf(const Items& items, Text text)
{
    std::vector<std::string> strings;
    for (const auto& item : items)
        strings.push_back(std::invoke(text, item));
    return strings;
}

// The `path` of every item of a list, in its order: files found, folders, groups, volumes.
template <typename Items>
std::vector<std::string> pathsOf(const Items& items)
{
    return stringsOf(items, [](const auto& item) { return item.path; });
}
