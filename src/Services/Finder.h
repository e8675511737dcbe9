#pragma once

#include "Models/BuildArtifactType.h"
#include "Models/CleanupTarget.h"
#include "Platform/Clock.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

// Finds build folders by name below code folders, with a depth limit, an ignore list, a minimum
// age and a project-marker rule. Every accepted folder has passed the cleaner's safety test.
namespace Finder {

// The folders a build-folder target matches now; empty for any other kind of target.
std::vector<std::string> discover(const CleanupTarget& target);

// Folders named one of `names` at most `maxDepth` + 1 levels below a root, with one of
// `requireMarker` beside them (exact names; none needed when empty), last changed before
// `minAgeDays` days ago (no age limit below 1). Paths come back unresolved, in discovery order.
std::vector<std::string> discover(const std::vector<std::string>& roots, const std::set<std::string>& names,
                                  int maxDepth, const std::vector<std::string>& ignore, int minAgeDays,
                                  const std::vector<std::string>& requireMarker, Clock::TimePoint now);

// The same walk by kind: each kind brings its own names, depth and markers ("*.ext" matches a
// suffix). Returns (path, kind id) pairs in discovery order.
std::vector<std::pair<std::string, std::string>> discoverByType(const std::vector<std::string>& roots,
                                                                const std::vector<BuildArtifactType>& types,
                                                                const std::vector<std::string>& ignore,
                                                                int minAgeDays, Clock::TimePoint now);

}  // namespace Finder
