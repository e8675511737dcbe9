#include "Models/CleanupCatalog.h"

#include "Models/LinuxCatalog.h"
#include "Models/MacOSCatalog.h"
#include "Platform/Paths.h"
#include "Platform/UserText.h"

#include <algorithm>

namespace CleanupCatalog {
namespace {

CleanupTarget finder(std::string id, std::string name, std::string detail,
                     std::vector<std::string> names, int maxDepth, std::vector<std::string> markers,
                     const std::vector<std::string>& roots, const std::vector<std::string>& ignore,
                     int minAgeDays)
{
    return {std::move(id), std::move(name), "shippingbox.fill", std::move(detail),
            FinderKind{roots, std::move(names), maxDepth, ignore, minAgeDays, std::move(markers)},
            CleanupCategory::buildArtifacts, true};
}

bool isDeveloperOnly(CleanupCategory category)
{
    return category == CleanupCategory::developer || category == CleanupCategory::buildArtifacts;
}

bool gatedOff(const std::string& id, const TargetListSettings& settings)
{
    return (id == "savedstate" && !settings.cleanSavedState) || (id == "musiccache" && !settings.cleanMusicCache) ||
           (id == "maildownloads" && !settings.cleanMailDownloads);
}

// The folders a target measures: none for a build-folder rule, whose folders are found later.
const std::vector<std::string>* foldersOf(const CleanupTarget& target)
{
    if (const auto* paths = std::get_if<PathsKind>(&target.kind))
        return &paths->paths;
    if (const auto* command = std::get_if<CommandKind>(&target.kind))
        return &command->fallbackPaths;
    return nullptr;
}

bool isStrictlyInside(const std::string& path, const std::string& folder)
{
    return path.size() > folder.size() + 1 && path.starts_with(folder) && path[folder.size()] == '/';
}

// Gives `outer` every folder of `inner` that lies inside one of its own, as excluded.
void leaveNestedFolders(PathsKind& outer, const CleanupTarget& inner)
{
    const auto* innerFolders = foldersOf(inner);
    if (!innerFolders)
        return;
    for (const auto& folder : *innerFolders) {
        const std::string expanded = Paths::expandingTilde(folder);
        const bool nested = std::any_of(outer.paths.begin(), outer.paths.end(), [&](const std::string& own) {
            return isStrictlyInside(expanded, Paths::expandingTilde(own));
        });
        if (nested && std::find(outer.excluded.begin(), outer.excluded.end(), folder) == outer.excluded.end())
            outer.excluded.push_back(folder);
    }
}

void leaveNestedFoldersToTheirRows(std::vector<CleanupTarget>& live, const std::vector<CleanupTarget>& withheld)
{
    for (std::size_t i = 0; i < live.size(); ++i) {
        auto* outer = std::get_if<PathsKind>(&live[i].kind);
        if (!outer)
            continue;
        for (std::size_t j = 0; j < live.size(); ++j) {
            if (j != i)
                leaveNestedFolders(*outer, live[j]);
        }
        for (const auto& inner : withheld)
            leaveNestedFolders(*outer, inner);
    }
}

}  // namespace

std::vector<CleanupTarget> builtIn(PlatformProfile profile)
{
    return profile == PlatformProfile::macOS ? MacOSCatalog::rows() : LinuxCatalog::rows();
}

std::vector<CleanupTarget> finderTargets(const std::vector<std::string>& roots,
                                         const std::vector<std::string>& ignore, int minAgeDays)
{
    return {
        finder("node_modules", QT_TRANSLATE_NOOP("CleanupCatalog", "node_modules folders"),
               QT_TRANSLATE_NOOP("CleanupCatalog", "Reinstall with npm/yarn/pnpm install"), {"node_modules"}, 5, {},
               roots, ignore, minAgeDays),
        finder("next_build", QT_TRANSLATE_NOOP("CleanupCatalog", "Next.js build output"),
               QT_TRANSLATE_NOOP("CleanupCatalog", ".next folders — rebuilt on next build"), {".next"}, 5, {}, roots,
               ignore, minAgeDays),
        finder("rust_target", QT_TRANSLATE_NOOP("CleanupCatalog", "Rust target folders"),
               QT_TRANSLATE_NOOP("CleanupCatalog", "target/ next to Cargo.toml — rebuilt with cargo build"), {"target"},
               4, {"Cargo.toml"}, roots, ignore, minAgeDays),
        finder("pycache", QT_TRANSLATE_NOOP("CleanupCatalog", "Python __pycache__"),
               QT_TRANSLATE_NOOP("CleanupCatalog", "Bytecode caches — regenerated automatically"), {"__pycache__"}, 6,
               {}, roots, ignore, minAgeDays),
        finder("venv", QT_TRANSLATE_NOOP("CleanupCatalog", "Python virtualenvs"),
               QT_TRANSLATE_NOOP("CleanupCatalog", ".venv next to a manifest — recreate with pip install"),
               {".venv", "venv"}, 4, {"pyproject.toml", "requirements.txt", "Pipfile", "setup.py"}, roots, ignore,
               minAgeDays),
    };
}

std::vector<CleanupTarget> liveTargets(const TargetListSettings& settings, PlatformProfile profile)
{
    std::vector<CleanupTarget> live;
    std::vector<CleanupTarget> withheld;
    for (auto& target : builtIn(profile)) {
        if (!settings.developerMode && isDeveloperOnly(target.category))
            continue;
        if (gatedOff(target.id, settings))
            withheld.push_back(std::move(target));
        else
            live.push_back(std::move(target));
    }
    if (settings.developerMode) {
        auto finders = finderTargets(settings.projectRoots, settings.ignoredFinderPaths,
                                     static_cast<int>(settings.finderMinAgeDays));
        std::move(finders.begin(), finders.end(), std::back_inserter(live));
    }
    for (const auto& folder : settings.customFolders)
        live.push_back(CleanupTarget::customFolder(folder));
    if (profile == PlatformProfile::linuxDesktop)
        leaveNestedFoldersToTheirRows(live, withheld);
    return live;
}

}  // namespace CleanupCatalog
