#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A plain-language bundle of targets, the unit of the panel's simple mode.
struct SimpleGroup {
    std::string id;
    std::string title;
    std::string symbol;
    std::vector<std::string> targetIDs;  // in target-list order
    std::int64_t size = 0;               // unknown member sizes count as 0
    bool isScanning = false;

    bool operator==(const SimpleGroup&) const = default;
};
