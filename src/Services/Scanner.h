#pragma once

#include "Models/CleanupTarget.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

// How many bytes a target occupies on disk now. Sizes are allocated sizes, not lengths.
namespace Scanner {

using Progress = std::function<void(std::int64_t)>;

// How often a walk reports its running total: once per this many regular files.
inline constexpr std::int64_t progressInterval = 1500;

// The target's bytes, or none when it has nothing to measure (no locations, or a build-folder
// rule that finds nothing). Blocks; `onProgress`, when given, is called on the calling thread
// with this target's running total.
std::optional<std::int64_t> size(const CleanupTarget& target, const Progress& onProgress = {});

// The bytes under one path ("~" allowed): 0 when nothing is there, the item's own size when it
// isn't a folder, else the sum over every regular file below it, hidden ones included, links not
// followed, unreadable folders skipped. Never fails.
std::int64_t directorySize(const std::string& path, const Progress& onProgress = {});
// The same, leaving out the items at the `excluded` paths ("~" allowed) that lie inside `path`.
std::int64_t directorySize(const std::string& path, const std::vector<std::string>& excluded,
                           const Progress& onProgress = {});

// The sum of directorySize over `paths`, without progress, each leaving out `excluded`.
std::int64_t totalSize(const std::vector<std::string>& paths, const std::vector<std::string>& excluded = {});

}  // namespace Scanner
