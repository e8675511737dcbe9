#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

// How a target is measured and removed. Paths may begin with "~"; they are expanded when used.

// Folders whose contents are cleared. Folders listed in `excluded` lie inside them and belong to
// another target: they are neither measured nor cleared with these, so every byte counts once.
struct PathsKind {
    PathsKind() = default;
    PathsKind(std::vector<std::string> paths, std::vector<std::string> excluded = {})
        : paths(std::move(paths)), excluded(std::move(excluded))
    {
    }

    std::vector<std::string> paths;
    std::vector<std::string> excluded;
    bool operator==(const PathsKind&) const = default;
};

// A command line run in a login shell. The fallback folders stand for the command's effect when
// measuring, and are cleared when the command fails.
struct CommandKind {
    std::string shell;
    std::vector<std::string> fallbackPaths;
    bool operator==(const CommandKind&) const = default;
};

// A discovery rule: the folders to remove are found when the target is measured or cleaned.
struct FinderKind {
    std::vector<std::string> roots;
    std::vector<std::string> names;
    int maxDepth = 0;
    std::vector<std::string> ignore;
    int minAgeDays = 0;
    std::vector<std::string> requireMarker;  // empty: no marker needed beside a match
    bool operator==(const FinderKind&) const = default;
};

using CleanupKind = std::variant<PathsKind, CommandKind, FinderKind>;
