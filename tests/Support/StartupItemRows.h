#pragma once

#include "Models/StartupItem.h"

#include <string>
#include <vector>

// A list of startup items as its window would show it, one "label | program | on" per row.
inline std::vector<std::string> startupItemRows(const std::vector<StartupItem>& items)
{
    std::vector<std::string> rows;
    for (const auto& item : items)
        rows.push_back(item.label + " | " + item.program + (item.enabled ? " | on" : " | off"));
    return rows;
}
