#include "TrashSelectionJob.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
#include "Services/Cleaner.h"
#include "Services/FileDigest.h"
#include "Services/Scanner.h"

#include <unordered_map>

namespace {

// The same item, untouched since it was looked at: a write or a replacement changes one of these.
bool unchanged(const ItemInfo& before, const ItemInfo& now)
{
    return now.isRegularFile() && now.device == before.device && now.inode == before.inode &&
           now.logicalSize == before.logicalSize && now.allocatedSize == before.allocatedSize &&
           now.modified == before.modified;
}

}  // namespace

TrashSelectionJob::TrashSelectionJob(std::vector<std::string> order, std::vector<DuplicateGroup> groups)
    : order_(std::move(order)), leaving_(order_.begin(), order_.end()), groups_(std::move(groups)),
      verified_(groups_.size())
{
}

bool TrashSelectionJob::mayTrash(const std::string& path)
{
    const std::string resolved = Paths::resolvingSymlinks(path);
    if (Cleaner::isSafe(resolved))
        return true;
    return resolved.starts_with(Paths::resolvingSymlinks(Paths::home()) + "/");
}

std::string TrashSelectionJob::historyName(std::size_t count)
{
    return std::to_string(count) + " file" + (count == 1 ? "" : "s") + " (duplicate/large)";
}

bool TrashSelectionJob::hasKeptCopy(std::size_t index)
{
    std::optional<KeptCopy>& kept = verified_[index];
    if (kept) {
        const auto now = FileSystem::info(kept->path);
        if (now && unchanged(kept->info, *now))
            return true;
        kept.reset();
    }
    const DuplicateGroup& group = groups_[index];
    for (const ScannedFile& member : group.files) {
        if (leaving_.contains(member.path))
            continue;
        const auto before = FileSystem::info(member.path);
        if (!before || !before->isRegularFile() || before->allocatedSize != group.size)
            continue;
        // The digest is read between two looks at the file, so a write while it is read is seen.
        const auto digest = FileDigest::sha256(member.path);
        const auto after = FileSystem::info(member.path);
        if (digest == group.id && after && unchanged(*before, *after)) {
            kept = KeptCopy{member.path, *after};
            return true;
        }
    }
    return false;
}

TrashSelectionJob::Outcome TrashSelectionJob::run()
{
    std::unordered_map<std::string, std::size_t> groupOf;
    for (std::size_t i = 0; i < groups_.size(); ++i) {
        for (const ScannedFile& member : groups_[i].files)
            groupOf.emplace(member.path, i);
    }
    Outcome outcome;
    for (const std::string& path : order_) {
        if (!mayTrash(path))
            continue;
        const auto group = groupOf.find(path);
        if (group != groupOf.end() && !hasKeptCopy(group->second)) {
            outcome.keptAsLastCopy.push_back(path);
            continue;
        }
        const std::int64_t size = Scanner::directorySize(path);
        const Trash::Result result = Trash::trashItem(path);
        if (!result.trashed)
            continue;
        outcome.freed += size;
        if (result.trashPath)
            outcome.trashed.push_back({path, *result.trashPath});
    }
    return outcome;
}
