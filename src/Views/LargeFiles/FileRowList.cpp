#include "FileRowList.h"

#include <algorithm>

int FileRowList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant FileRowList::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IsHeaderRole:
        return row.isHeader;
    case FileIndexRole:
        return row.fileIndex;
    case TitleRole:
        return row.title;
    case SubtitleRole:
        return row.subtitle;
    case SizeRole:
        return row.size;
    case CopiesRole:
        return row.copies;
    case SavingRole:
        return row.size * std::max(row.copies - 1, 0);
    case IsOnRole:
        return row.isOn;
    case CanTrashRole:
        return row.canTrash;
    default:
        return {};
    }
}

QHash<int, QByteArray> FileRowList::roleNames() const
{
    return {{IsHeaderRole, "isHeader"}, {FileIndexRole, "fileIndex"}, {TitleRole, "title"},
            {SubtitleRole, "subtitle"}, {SizeRole, "size"},           {CopiesRole, "copies"},
            {SavingRole, "saving"},     {IsOnRole, "isOn"},           {CanTrashRole, "canTrash"}};
}

void FileRowList::replace(std::vector<Row> fresh)
{
    const auto sameKey = [](const Row& a, const Row& b) { return a.key == b.key; };
    const std::size_t shared = std::min(rows_.size(), fresh.size());
    const std::size_t head = std::size_t(
        std::mismatch(rows_.begin(), rows_.begin() + std::ptrdiff_t(shared), fresh.begin(), sameKey).first -
        rows_.begin());
    std::size_t tail = 0;
    while (tail < shared - head && sameKey(rows_[rows_.size() - 1 - tail], fresh[fresh.size() - 1 - tail]))
        ++tail;
    const int first = static_cast<int>(head);
    const int oldLast = static_cast<int>(rows_.size() - tail) - 1;
    const int newLast = static_cast<int>(fresh.size() - tail) - 1;
    if (oldLast >= first) {
        beginRemoveRows({}, first, oldLast);
        rows_.erase(rows_.begin() + first, rows_.begin() + oldLast + 1);
        endRemoveRows();
    }
    if (newLast >= first) {
        beginInsertRows({}, first, newLast);
        rows_.insert(rows_.begin() + first, fresh.begin() + first, fresh.begin() + newLast + 1);
        endInsertRows();
    }
    // The rows kept may still show other figures: a group that gained a copy keeps its header.
    rows_ = std::move(fresh);
    if (!rows_.empty())
        emit dataChanged(index(0), index(count() - 1));
    if (oldLast >= first || newLast >= first)
        emit countChanged();
}
