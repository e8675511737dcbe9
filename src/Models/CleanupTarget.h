#pragma once

#include "Models/CleanupCategory.h"
#include "Models/CleanupKind.h"

#include <string>
#include <vector>

// One cleanable thing: how it is called and shown, and how it is measured and removed.
struct CleanupTarget {
    std::string id;
    std::string name;
    std::string symbol;
    std::string detail;
    CleanupKind kind;
    CleanupCategory category = CleanupCategory::recommended;
    bool isBuiltIn = true;

    bool operator==(const CleanupTarget&) const = default;

    // A folder the user added: "custom:" + path, named after its last component.
    static CleanupTarget customFolder(const std::string& path);

    // The lines that tell the user what this target touches, with "~" expanded.
    std::vector<std::string> displayPaths() const;

    // The sentence of reassurance shown before the clean.
    std::string whySafe() const;
};
