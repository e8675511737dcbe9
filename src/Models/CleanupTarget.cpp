#include "Models/CleanupTarget.h"

#include "Platform/Paths.h"
#include "Platform/UserText.h"

namespace {

std::vector<std::string> expandedAll(const std::vector<std::string>& paths)
{
    std::vector<std::string> lines;
    lines.reserve(paths.size());
    for (const auto& path : paths)
        lines.push_back(Paths::expandingTilde(path));
    return lines;
}

std::string joined(const std::vector<std::string>& parts, const std::string& separator)
{
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0)
            text += separator;
        text += parts[i];
    }
    return text;
}

}  // namespace

CleanupTarget CleanupTarget::customFolder(const std::string& path)
{
    std::string name = Paths::lastComponent(path);
    if (name.empty())
        name = path;
    return CleanupTarget{"custom:" + path, name, "folder.fill", path, PathsKind{{path}},
                         CleanupCategory::custom, false};
}

std::vector<std::string> CleanupTarget::displayPaths() const
{
    if (const auto* paths = std::get_if<PathsKind>(&kind))
        return expandedAll(paths->paths);
    if (const auto* command = std::get_if<CommandKind>(&kind))
        return expandedAll(command->fallbackPaths);
    const auto& finder = std::get<FinderKind>(kind);
    std::vector<std::string> lines;
    for (const auto& root : finder.roots)
        lines.push_back(Paths::expandingTilde(root) + " → " + joined(finder.names, ", "));
    return lines;
}

std::string CleanupTarget::whySafe() const
{
    // Sentences that belong to one target come before the ones for its whole category.
    if (id == "trash")
        return QT_TRANSLATE_NOOP("CleanupCatalog", "These are items you already moved to the Trash.");
    if (id == "logs")
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Old diagnostic logs. Apps write fresh ones as needed — nothing you use is lost.");
    if (id == "musiccache")
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Streamed songs re-cache automatically the next time you play them.");
    if (id == "savedstate")
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Apps just won't reopen last session's windows. It doesn't log you out or lose data.");
    if (id == "maildownloads")
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Temp copies of attachments you opened. Re-copied on demand; originals stay on the server.");
    if (id == "docker")
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Docker recreates images, layers and build cache the next time you build or pull.");
    if (id == "node_modules")
        return QT_TRANSLATE_NOOP("CleanupCatalog", "Reinstalled instantly with npm / yarn / pnpm install.");
    if (id == "derived")
        return QT_TRANSLATE_NOOP("CleanupCatalog", "Xcode rebuilds DerivedData on your next build.");
    switch (category) {
    case CleanupCategory::custom:
        return QT_TRANSLATE_NOOP("CleanupCatalog", "A folder you added yourself — only its contents are cleared.");
    case CleanupCategory::buildArtifacts:
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Rebuilt the next time you build the project (npm install, cargo build, …).");
    case CleanupCategory::developer:
        return QT_TRANSLATE_NOOP("CleanupCatalog",
                                 "Re-downloaded or rebuilt automatically the next time you build or install.");
    case CleanupCategory::recommended:
    case CleanupCategory::browsers:
        break;
    }
    return QT_TRANSLATE_NOOP("CleanupCatalog",
                             "Apps and websites recreate these caches automatically when they next need them.");
}
