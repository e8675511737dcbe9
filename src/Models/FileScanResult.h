#pragma once

#include "Models/DuplicateGroup.h"
#include "Models/ScannedFile.h"

#include <vector>

// One picture of a duplicate scan: the largest files and the groups of copies found so far.
struct FileScanResult {
    std::vector<ScannedFile> largest;
    std::vector<DuplicateGroup> duplicates;

    bool operator==(const FileScanResult&) const = default;
};
