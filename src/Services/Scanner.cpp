#include "Services/Scanner.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Services/Finder.h"

#include <algorithm>
#include <set>

namespace Scanner {
namespace {

// The excluded paths below a root, relative to it ("a/b"), and how deep the deepest lies: below
// that depth no entry can be one of them, and the walk stops spelling out paths.
struct Exclusions {
    Exclusions(std::string root, const std::vector<std::string>& excluded)
    {
        while (root.size() > 1 && root.back() == '/')
            root.pop_back();
        for (const auto& path : excluded) {
            std::string expanded = Paths::expandingTilde(path);
            while (expanded.size() > 1 && expanded.back() == '/')
                expanded.pop_back();
            if (expanded.size() <= root.size() + 1 || !expanded.starts_with(root) || expanded[root.size()] != '/')
                continue;
            std::string relative = expanded.substr(root.size() + 1);
            depth = std::max(depth, 1 + static_cast<int>(std::count(relative.begin(), relative.end(), '/')));
            relative_.insert(std::move(relative));
        }
    }

    bool contains(const std::string& relative) const { return relative_.contains(relative); }

    int depth = 0;  // 0: nothing to leave out

private:
    std::set<std::string> relative_;
};

class SizeCounter : public DirectoryWalker::Visitor {
public:
    explicit SizeCounter(const Progress& onProgress, const Exclusions* exclusions = nullptr)
        : onProgress_(onProgress), exclusions_(exclusions)
    {
    }

    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        if (exclusions_ && entry.depth <= exclusions_->depth && isExcluded(entry))
            return DirectoryWalker::Action::skip;
        if (entry.info.isFolder())
            return DirectoryWalker::Action::descend;
        if (entry.info.isRegularFile()) {
            total += entry.info.allocatedSize;
            if (++files % progressInterval == 0 && onProgress_)
                onProgress_(total);
        }
        return DirectoryWalker::Action::skip;
    }

    std::int64_t total = 0;
    std::int64_t files = 0;

private:
    // Keeps the relative paths of the open folders down to the exclusions' depth: entries arrive
    // depth first, so an entry's parent is always the last folder opened at the depth above it.
    bool isExcluded(const DirectoryWalker::Entry& entry)
    {
        const auto depth = static_cast<std::size_t>(entry.depth);
        openFolders_.resize(depth);
        const std::string& parent = openFolders_[depth - 1];
        std::string relative = parent.empty() ? std::string(entry.name) : parent + "/" + std::string(entry.name);
        if (exclusions_->contains(relative))
            return true;
        if (entry.info.isFolder())
            openFolders_.push_back(std::move(relative));
        return false;
    }

    const Progress& onProgress_;
    const Exclusions* exclusions_;
    std::vector<std::string> openFolders_{std::string()};  // the root, then one per depth
};

std::vector<std::string> locationsOf(const CleanupTarget& target)
{
    if (const auto* paths = std::get_if<PathsKind>(&target.kind))
        return paths->paths;
    if (const auto* command = std::get_if<CommandKind>(&target.kind))
        return command->fallbackPaths;  // the command itself is never run to measure anything
    return Finder::discover(target);
}

const std::vector<std::string>& excludedOf(const CleanupTarget& target)
{
    static const std::vector<std::string> none;
    const auto* paths = std::get_if<PathsKind>(&target.kind);
    return paths ? paths->excluded : none;
}

}  // namespace

std::optional<std::int64_t> size(const CleanupTarget& target, const Progress& onProgress)
{
    const auto locations = locationsOf(target);
    if (locations.empty())
        return std::nullopt;
    std::int64_t total = 0;
    for (const auto& location : locations) {
        Progress partial;
        if (onProgress)
            partial = [&](std::int64_t bytes) { onProgress(total + bytes); };
        total += directorySize(location, excludedOf(target), partial);
        if (onProgress)
            onProgress(total);
    }
    return total;
}

std::int64_t directorySize(const std::string& path, const Progress& onProgress)
{
    return directorySize(path, {}, onProgress);
}

std::int64_t directorySize(const std::string& path, const std::vector<std::string>& excluded,
                           const Progress& onProgress)
{
    const std::string expanded = Paths::expandingTilde(path);
    const auto followed = FileSystem::infoFollowingLinks(expanded);
    if (!followed)
        return 0;
    if (!followed->isFolder()) {
        const auto own = FileSystem::info(expanded);
        return own ? own->allocatedSize : 0;
    }
    const Exclusions exclusions(expanded, excluded);
    SizeCounter counter(onProgress, exclusions.depth > 0 ? &exclusions : nullptr);
    DirectoryWalker::walk(expanded, counter);
    return counter.total;
}

std::int64_t totalSize(const std::vector<std::string>& paths, const std::vector<std::string>& excluded)
{
    std::int64_t total = 0;
    for (const auto& path : paths)
        total += directorySize(path, excluded);
    return total;
}

}  // namespace Scanner
