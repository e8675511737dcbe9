#pragma once

#include <string>

// An item moved to the Trash: where it was, and where it is now.
struct TrashedItem {
    std::string original;
    std::string trashPath;

    bool operator==(const TrashedItem&) const = default;
};
