#pragma once

#include <string>
#include <vector>

// One kind of regenerable build folder: the names it goes by, how deep below a code folder it is
// looked for, and which files beside it show that it belongs to a project.
struct BuildArtifactType {
    std::string id;      // stable key, also what a found folder and the kinds filter hold
    std::string label;   // what the window shows
    std::string symbol;  // icon name
    std::vector<std::string> names;
    // The deepest listing level at which a folder of this kind is accepted; the folder itself
    // then lies at most maxDepth + 1 levels below a root.
    int maxDepth = 0;
    // At least one must lie beside the folder; none needed when empty. "*.ext" matches any name
    // ending in ".ext", anything else is an exact name.
    std::vector<std::string> markers;

    bool operator==(const BuildArtifactType&) const = default;

    // Every kind the project cleanup looks for, in the order they are offered.
    static const std::vector<BuildArtifactType>& all();
};
