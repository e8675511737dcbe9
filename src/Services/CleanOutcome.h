#pragma once

#include "Models/TrashedItem.h"
#include "Platform/UserText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What one clean achieved.
struct CleanOutcome {
    std::int64_t freed = 0;              // measured drop of the target's size, never below 0
    std::optional<UserText> error;       // for the user; none when all went well
    std::vector<TrashedItem> trashed;
};
