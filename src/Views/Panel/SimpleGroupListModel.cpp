#include "SimpleGroupListModel.h"

#include "AppModel.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <QCoreApplication>

using namespace QtConversions;

void SimpleGroupListModel::refresh()
{
    replaceRows(rows_, source() ? source()->simpleGroups() : std::vector<SimpleGroup>{},
                [](const SimpleGroup& a, const SimpleGroup& b) { return a.id == b.id; });
}

int SimpleGroupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SimpleGroupListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !source())
        return {};
    const SimpleGroup& group = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole: return toQt(group.id);
    case TitleRole: return QCoreApplication::translate("SimpleGroup", group.title.c_str());
    case SymbolRole: return toQt(group.symbol);
    case SizeTextRole: return toQt(ByteCountFormatter::string(group.size));
    case IsScanningRole: return group.isScanning;
    case EnabledRole: return source()->isGroupEnabled(group);
    default: return {};
    }
}

QHash<int, QByteArray> SimpleGroupListModel::roleNames() const
{
    return {{IdRole, "groupId"},       {TitleRole, "title"},           {SymbolRole, "symbol"},
            {SizeTextRole, "sizeText"}, {IsScanningRole, "isScanning"}, {EnabledRole, "included"}};
}
