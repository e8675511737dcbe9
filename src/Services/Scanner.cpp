#include "Services/Scanner.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Services/Finder.h"

namespace Scanner {
namespace {

class SizeCounter : public DirectoryWalker::Visitor {
public:
    explicit SizeCounter(const Progress& onProgress) : onProgress_(onProgress) {}

    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
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
    const Progress& onProgress_;
};

std::vector<std::string> locationsOf(const CleanupTarget& target)
{
    if (const auto* paths = std::get_if<PathsKind>(&target.kind))
        return paths->paths;
    if (const auto* command = std::get_if<CommandKind>(&target.kind))
        return command->fallbackPaths;  // the command itself is never run to measure anything
    return Finder::discover(target);
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
        total += directorySize(location, partial);
        if (onProgress)
            onProgress(total);
    }
    return total;
}

std::int64_t directorySize(const std::string& path, const Progress& onProgress)
{
    const std::string expanded = Paths::expandingTilde(path);
    const auto followed = FileSystem::infoFollowingLinks(expanded);
    if (!followed)
        return 0;
    if (!followed->isFolder()) {
        const auto own = FileSystem::info(expanded);
        return own ? own->allocatedSize : 0;
    }
    SizeCounter counter(onProgress);
    DirectoryWalker::walk(expanded, counter);
    return counter.total;
}

std::int64_t totalSize(const std::vector<std::string>& paths)
{
    std::int64_t total = 0;
    for (const auto& path : paths)
        total += directorySize(path);
    return total;
}

}  // namespace Scanner
