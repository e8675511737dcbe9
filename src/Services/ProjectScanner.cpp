#include "Services/ProjectScanner.h"

#include "Models/BuildArtifactType.h"
#include "Platform/FileSystem.h"
#include "Services/Finder.h"
#include "Services/Scanner.h"

#include <map>

namespace ProjectScanner {
namespace {

// The folder's own date, as the age test reads it; none when it can't be read.
std::optional<Clock::TimePoint> modificationDate(const std::string& path)
{
    if (const auto info = FileSystem::info(path))
        return info->modified;
    return std::nullopt;
}

}  // namespace

void scan(const std::vector<std::string>& roots, const std::vector<std::string>& ignore, int minAgeDays,
          const std::shared_ptr<CancelToken>& token, const std::function<void(int)>& onProgress,
          const std::function<void(const ProjectDir&)>& onFound,
          const std::function<void(const std::vector<ProjectDir>&)>& onDiscovered)
{
    const auto& kinds = BuildArtifactType::all();
    std::map<std::string, const BuildArtifactType*> kindByID;
    for (const auto& kind : kinds)
        kindByID.emplace(kind.id, &kind);

    std::vector<ProjectDir> dirs;
    for (const auto& [path, kindID] : Finder::discoverByType(roots, kinds, ignore, minAgeDays, Clock::now())) {
        const auto kind = kindByID.find(kindID);
        if (kind != kindByID.end())
            dirs.push_back({path, kind->second->id, kind->second->label, kind->second->symbol, 0, modificationDate(path)});
    }
    const auto cancelled = [&token] { return token && token->isCancelled(); };
    if (onDiscovered && !cancelled())
        onDiscovered(dirs);

    int measured = 0;
    for (ProjectDir& dir : dirs) {
        // Measuring is the slow part, so this is where a cancelled scan stops.
        if (cancelled())
            return;
        dir.size = Scanner::directorySize(dir.path);
        ++measured;
        if (onProgress)
            onProgress(measured);
        if (onFound)
            onFound(dir);
    }
}

}  // namespace ProjectScanner
