#include "Services/Finder.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Services/Cleaner.h"

#include <algorithm>
#include <climits>
#include <functional>
#include <map>
#include <optional>
#include <variant>

namespace Finder {
namespace {

// A looked-for folder met during a walk. The walk never enters it, whether it is taken or not.
struct Candidate {
    const std::string& parent;
    const std::vector<std::string>& siblings;  // the parent's listing, the candidate among them
    const std::string& name;
    const std::string& path;
    int depth;  // the listing level of the parent
};

std::string joined(const std::string& folder, const std::string& name)
{
    // A root written with a trailing slash must not give "//" paths, which no ignore entry matches.
    return folder.ends_with('/') ? folder + name : folder + "/" + name;
}

std::optional<Clock::TimePoint> cutOff(int minAgeDays, Clock::TimePoint now)
{
    if (minAgeDays < 1)
        return std::nullopt;
    // The clock counts nanoseconds and reaches back only about 290 years; a longer age than it can
    // express means that nothing on disk is old enough.
    constexpr int longestExpressibleAge = 100000;
    if (minAgeDays > longestExpressibleAge)
        return Clock::TimePoint::min();
    return now - std::chrono::seconds(std::int64_t{86400} * minAgeDays);
}

// What both walks apply to every path: the ignore list, and the age and safety tests a candidate
// must pass once its marker test has.
class Rules {
public:
    Rules(const std::vector<std::string>& ignore, int minAgeDays, Clock::TimePoint now)
        : cutOff_(cutOff(minAgeDays, now))
    {
        ignore_.reserve(ignore.size());
        for (const auto& entry : ignore)
            ignore_.push_back(Paths::expandingTilde(entry));
    }

    // By text alone, so "~/Code/old" keeps out "~/Code/old/x" but not "~/Code/older".
    bool isIgnored(const std::string& path) const
    {
        return std::any_of(ignore_.begin(), ignore_.end(), [&](const std::string& entry) {
            return path.starts_with(entry) && (path.size() == entry.size() || path[entry.size()] == '/');
        });
    }

    // Runs after the marker test, the cheapest one. The safety test sees where the path really
    // leads: a link inside a code folder may point anywhere.
    bool passesAgeAndSafety(const std::string& path) const
    {
        return isOldEnough(path) && Cleaner::isSafe(Paths::resolvingSymlinks(path));
    }

private:
    // The folder's own date counts: tools touch files inside long after the last build. A date
    // that can't be read doesn't protect the folder.
    bool isOldEnough(const std::string& path) const
    {
        if (!cutOff_)
            return true;
        const auto info = FileSystem::info(path);
        return !info || info->modified < *cutOff_;
    }

    std::vector<std::string> ignore_;
    std::optional<Clock::TimePoint> cutOff_;
};

bool isLink(const std::string& path)
{
    const auto info = FileSystem::info(path);
    return info && info->isSymlink();
}

// The walk both searches share: roots, the depth limit, hidden entries and the ignore list. Which
// names are looked for, and what becomes of a candidate, belong to the caller.
struct Walk {
    const Rules& rules;
    int maxDepth;
    std::function<bool(const std::string& name)> looksFor;
    std::function<void(const Candidate&)> onCandidate;

    void run(const std::vector<std::string>& roots) const
    {
        for (const auto& written : roots) {
            const std::string root = Paths::expandingTilde(written);
            if (!rules.isIgnored(root) && FileSystem::infoFollowingLinks(root))
                walk(root, 0);
        }
    }

    void walk(const std::string& folder, int depth) const
    {
        // Links to folders are followed, so this limit is also what ends a link cycle.
        if (depth > maxDepth)
            return;
        const auto entries = FileSystem::contentsOfFolder(folder);
        if (!entries)
            return;
        for (const auto& name : *entries) {
            const bool lookedFor = looksFor(name);
            // Hidden folders hold tool state, not projects; only the ones looked for are of interest.
            if (name.starts_with('.') && !lookedFor)
                continue;
            const std::string child = joined(folder, name);
            if (!FileSystem::isFolderFollowingLinks(child) || rules.isIgnored(child))
                continue;
            if (!lookedFor)
                walk(child, depth + 1);
            else if (!isLink(child))  // a link to a shared store is someone's set-up, not build output
                onCandidate(Candidate{folder, *entries, name, child, depth});
        }
    }
};

bool hasExactMarker(const std::string& parent, const std::vector<std::string>& markers)
{
    if (markers.empty())
        return true;
    return std::any_of(markers.begin(), markers.end(), [&](const std::string& marker) {
        return FileSystem::infoFollowingLinks(joined(parent, marker)).has_value();
    });
}

bool markerMatches(const std::string& marker, const std::vector<std::string>& names)
{
    if (marker.starts_with("*.")) {
        const std::string_view suffix = std::string_view(marker).substr(1);
        return std::any_of(names.begin(), names.end(), [&](const std::string& name) { return name.ends_with(suffix); });
    }
    return std::find(names.begin(), names.end(), marker) != names.end();
}

// `names` is the listing the walk already made of the parent, so a kind's markers cost no second
// listing however many candidates the folder holds.
bool hasMarkerAmong(const std::vector<std::string>& markers, const std::vector<std::string>& names)
{
    return markers.empty() || std::any_of(markers.begin(), markers.end(),
                                          [&](const std::string& marker) { return markerMatches(marker, names); });
}

}  // namespace

std::vector<std::string> discover(const CleanupTarget& target)
{
    const auto* finder = std::get_if<FinderKind>(&target.kind);
    if (!finder)
        return {};
    const std::set<std::string> names(finder->names.begin(), finder->names.end());
    return discover(finder->roots, names, finder->maxDepth, finder->ignore, finder->minAgeDays,
                    finder->requireMarker, Clock::now());
}

std::vector<std::string> discover(const std::vector<std::string>& roots, const std::set<std::string>& names,
                                  int maxDepth, const std::vector<std::string>& ignore, int minAgeDays,
                                  const std::vector<std::string>& requireMarker, Clock::TimePoint now)
{
    const Rules rules(ignore, minAgeDays, now);
    std::vector<std::string> found;
    const Walk walk{rules, maxDepth, [&](const std::string& name) { return names.contains(name); },
                    [&](const Candidate& candidate) {
                        if (hasExactMarker(candidate.parent, requireMarker) &&
                            rules.passesAgeAndSafety(candidate.path))
                            found.push_back(candidate.path);
                    }};
    walk.run(roots);
    return found;
}

std::vector<std::pair<std::string, std::string>> discoverByType(const std::vector<std::string>& roots,
                                                                const std::vector<BuildArtifactType>& types,
                                                                const std::vector<std::string>& ignore,
                                                                int minAgeDays, Clock::TimePoint now)
{
    // A later kind wins a name that two kinds claim.
    std::map<std::string, const BuildArtifactType*> kindByName;
    int deepest = types.empty() ? 0 : INT_MIN;
    for (const auto& type : types) {
        deepest = std::max(deepest, type.maxDepth);
        for (const auto& name : type.names)
            kindByName[name] = &type;
    }

    const Rules rules(ignore, minAgeDays, now);
    std::vector<std::pair<std::string, std::string>> found;
    const Walk walk{rules, deepest, [&](const std::string& name) { return kindByName.contains(name); },
                    [&](const Candidate& candidate) {
                        // The walk goes as deep as the deepest kind needs; each kind stops at its own
                        // depth, and a folder passed over there is not searched either.
                        const BuildArtifactType& kind = *kindByName.at(candidate.name);
                        if (candidate.depth <= kind.maxDepth && hasMarkerAmong(kind.markers, candidate.siblings) &&
                            rules.passesAgeAndSafety(candidate.path))
                            found.emplace_back(candidate.path, kind.id);
                    }};
    walk.run(roots);
    return found;
}

}  // namespace Finder
