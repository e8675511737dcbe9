#include "ProjectListModel.h"

#include "ProjectDirText.h"

#include "Platform/ByteCountFormatter.h"
#include "Platform/Paths.h"
#include "QtConversions.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

using QtConversions::toQt;

void ProjectListModel::setHoldOrder(bool hold)
{
    if (holdOrder_ == hold)
        return;
    holdOrder_ = hold;
    emit holdOrderChanged();
    if (!holdOrder_)
        apply(latest_);
}

void ProjectListModel::update(std::vector<Row> fresh, bool reordered)
{
    // Keys name rows; a second row with the same key could never be told apart from the first.
    std::unordered_set<std::string> seen;
    std::erase_if(fresh, [&seen](const Row& row) { return !seen.insert(row.key).second; });
    latest_ = std::move(fresh);
    apply(holdOrder_ && !reordered ? inHeldOrder(latest_) : latest_);
}

const ProjectListModel::Row* ProjectListModel::row(int index) const
{
    if (index < 0 || index >= count())
        return nullptr;
    return &rows_[static_cast<std::size_t>(index)];
}

std::vector<ProjectListModel::Row> ProjectListModel::inHeldOrder(const std::vector<Row>& fresh) const
{
    std::unordered_map<std::string_view, const Row*> freshByKey;
    for (const Row& row : fresh)
        freshByKey.emplace(row.key, &row);
    std::vector<Row> order;
    order.reserve(fresh.size());
    std::unordered_set<std::string_view> kept;
    for (const Row& row : rows_) {
        if (const auto found = freshByKey.find(row.key); found != freshByKey.end()) {
            order.push_back(*found->second);
            kept.insert(found->second->key);
        }
    }
    for (const Row& row : fresh) {
        if (!kept.contains(row.key))
            order.push_back(row);
    }
    return order;
}

void ProjectListModel::removeRowsMissingFrom(const std::vector<Row>& target)
{
    std::unordered_set<std::string> wanted;
    for (const Row& row : target)
        wanted.insert(row.key);
    // From the end, one run of neighbouring rows at a time.
    int last = count() - 1;
    while (last >= 0) {
        if (wanted.contains(rows_[static_cast<std::size_t>(last)].key)) {
            --last;
            continue;
        }
        int first = last;
        while (first > 0 && !wanted.contains(rows_[static_cast<std::size_t>(first - 1)].key))
            --first;
        beginRemoveRows({}, first, last);
        rows_.erase(rows_.begin() + first, rows_.begin() + last + 1);
        endRemoveRows();
        last = first - 1;
    }
}

void ProjectListModel::apply(const std::vector<Row>& target)
{
    const int before = count();
    removeRowsMissingFrom(target);
    // Copies, not views: the rows move about below.
    std::unordered_set<std::string> present;
    for (const Row& row : rows_)
        present.insert(row.key);

    int firstChanged = -1;
    int lastChanged = -1;
    const auto changed = [&](int index) {
        firstChanged = firstChanged < 0 ? index : std::min(firstChanged, index);
        lastChanged = std::max(lastChanged, index);
    };
    const int size = static_cast<int>(target.size());
    for (int i = 0; i < size;) {
        const Row& wanted = target[static_cast<std::size_t>(i)];
        if (!present.contains(wanted.key)) {
            // A run of new rows goes in at once.
            int end = i + 1;
            while (end < size && !present.contains(target[static_cast<std::size_t>(end)].key))
                ++end;
            beginInsertRows({}, i, end - 1);
            rows_.insert(rows_.begin() + i, target.begin() + i, target.begin() + end);
            endInsertRows();
            i = end;
            continue;
        }
        auto& current = rows_[static_cast<std::size_t>(i)];
        if (current.key != wanted.key) {
            // It is further down (everything above is in place already): bring it up here.
            const auto from = std::find_if(rows_.begin() + i + 1, rows_.end(),
                                           [&](const Row& row) { return row.key == wanted.key; });
            const int source = static_cast<int>(from - rows_.begin());
            beginMoveRows({}, source, source, {}, i);
            Row moved = std::move(*from);
            rows_.erase(from);
            rows_.insert(rows_.begin() + i, std::move(moved));
            endMoveRows();
        }
        if (rows_[static_cast<std::size_t>(i)] != wanted) {
            rows_[static_cast<std::size_t>(i)] = wanted;
            changed(i);
        }
        ++i;
    }
    if (firstChanged >= 0)
        emit dataChanged(index(firstChanged), index(lastChanged));
    if (count() != before)
        emit countChanged();
}

int ProjectListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ProjectListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IsHeaderRole: return row.isHeader;
    case NameRole:
        return toQt(row.isHeader ? Paths::lastComponent(row.path) : ProjectDirText::projectName(row.path));
    case KindRole: return QtConversions::translated("BuildArtifactType", row.kindLabel);
    case PathRole: return toQt(row.path);
    case DisplayPathRole: return toQt(Paths::abbreviatingWithTilde(row.path));
    case SizeTextRole: return toQt(ByteCountFormatter::string(row.size));
    case MeasuredRole: return row.measured;
    case AgeTextRole: return ProjectDirText::ageText(row.modified, Clock::now());
    case SelectedRole: return row.selected;
    case SelectableRole: return row.selectable;
    case CountRole: return row.count;
    default: return {};
    }
}

QHash<int, QByteArray> ProjectListModel::roleNames() const
{
    return {{IsHeaderRole, "isHeader"},     {NameRole, "name"},
            {KindRole, "kind"},             {PathRole, "path"},
            {DisplayPathRole, "displayPath"}, {SizeTextRole, "sizeText"},
            {MeasuredRole, "measured"},     {AgeTextRole, "ageText"},
            {SelectedRole, "selected"},     {SelectableRole, "selectable"},
            {CountRole, "count"}};
}
