#pragma once

#include "Models/ScannedFile.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

// Files of one size whose contents hash to the same SHA-256 digest: byte-identical copies.
struct DuplicateGroup {
    std::string id;  // the digest, 64 lowercase hexadecimal digits
    std::int64_t size = 0;
    std::vector<ScannedFile> files;  // at least two, in the order the walk met them

    // What removing every copy but one gives back.
    std::int64_t reclaimable() const
    {
        return size * std::max<std::int64_t>(static_cast<std::int64_t>(files.size()) - 1, 0);
    }

    bool operator==(const DuplicateGroup&) const = default;
};
