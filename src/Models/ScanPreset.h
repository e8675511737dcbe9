#pragma once

#include "Models/Uuid.h"

#include <string>
#include <vector>

// A folder the disk map offers to scan with one click.
struct ScanPreset {
    Uuid id;
    std::string label;
    std::string symbol;
    std::string path;

    // Home, Documents, Downloads, Desktop, Applications and the whole disk, in that order. Built
    // once, on first use, from the home folder of that moment.
    static const std::vector<ScanPreset>& all();
};
