#include "Services/LeftoverSearch.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Services/Scanner.h"

void LeftoverSearch::consider(const std::string& path, const std::string& label, bool isBundle)
{
    const std::string expanded = Paths::expandingTilde(path);
    if (taken_.contains(expanded) || !FileSystem::exists(expanded))
        return;
    taken_.insert(expanded);
    items_.push_back({Uuid::random(), label, expanded, measure(expanded), isBundle});
}

void LeftoverSearch::considerEntriesContaining(const std::string& folder, std::string_view needle,
                                               const std::string& label)
{
    if (needle.empty())
        return;
    const auto names = FileSystem::contentsOfFolder(folder);
    if (!names)
        return;
    for (const std::string& name : *names) {
        if (name.find(needle) != std::string::npos)
            consider(folder + "/" + name, label);
    }
}

std::int64_t LeftoverSearch::measure(const std::string& path)
{
    const auto own = FileSystem::info(path);
    if (own && own->isSymlink())
        return own->allocatedSize;
    return Scanner::directorySize(path);
}

bool LeftoverSearch::isSingleComponent(std::string_view text)
{
    return !text.empty() && text != "." && text != ".." && text.find('/') == std::string_view::npos &&
           text.find('\0') == std::string_view::npos;
}
