// What cleans leave behind: the history, the lifetime total and putting things back.

#include "AppModel.h"

#include "CatalogWords.h"
#include "Platform/Trash.h"
#include "QtConversions.h"
#include "Services/CleanHistoryStore.h"

#include <algorithm>

using namespace QtConversions;

void AppModel::setTotalFreedAllTime(std::int64_t total)
{
    totalFreedAllTime_ = total;
    emit totalFreedAllTimeChanged();
    emit changed();
}

void AppModel::saveHistory()
{
    CleanHistoryStore::save(*defaults_, history_, totalFreedAllTime_);
}

void AppModel::addRecord(CleanRecord record)
{
    const std::int64_t freed = record.freed;
    history_.insert(history_.begin(), std::move(record));
    emit historyChanged();
    setTotalFreedAllTime(totalFreedAllTime_ + freed);
    saveHistory();
}

void AppModel::record(const CleanupTarget& target, const CleanOutcome& outcome)
{
    if (outcome.freed < 1)
        return;  // a clean that freed nothing leaves no trace, also when it failed
    // The flag follows the setting, not this clean: the row says where such cleans go.
    const bool trashed = settings_->moveToTrash() && !std::holds_alternative<CommandKind>(target.kind);
    addRecord(CleanRecord::make(target.name, outcome.freed, trashed, outcome.trashed));
}

void AppModel::recordExternalDeletion(const std::string& name, std::int64_t freed,
                                      const std::vector<TrashedItem>& trashed)
{
    if (freed < 1)
        return;
    addRecord(CleanRecord::make(name, freed, true, trashed));
    refreshDiskAndCheckSpace();
}

void AppModel::restore(const CleanRecord& record)
{
    if (record.restored.value_or(false) || !record.items || record.items->empty())
        return;
    bool movedAny = false;
    for (const TrashedItem& item : *record.items) {
        // Missing parent folders are made again. An item emptied from the Trash, or a new file at
        // the old place, skips only that item.
        movedAny = Trash::putBack(item.trashPath, item.original) || movedAny;
    }
    if (!movedAny)
        return;
    const auto stored = std::find_if(history_.begin(), history_.end(),
                                     [&](const CleanRecord& candidate) { return candidate.id == record.id; });
    if (stored == history_.end())
        return;
    stored->restored = true;
    emit historyChanged();
    // The whole amount comes off, also after a partial restore.
    setTotalFreedAllTime(std::max<std::int64_t>(0, totalFreedAllTime_ - record.freed));
    saveHistory();
    setStatusMessage(tr("Restored %1").arg(CatalogWords::recordedName(record.targetName)));
    refreshDiskAndCheckSpace();
    scanAll();  // runs on by itself
}

void AppModel::clearHistory()
{
    history_.clear();
    emit historyChanged();
    saveHistory();
}
