#include "SimpleGroupListModel.h"

#include "AppModel.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <QCoreApplication>

using namespace QtConversions;

SimpleGroupListModel::SimpleGroupListModel(QObject* parent) : QAbstractListModel(parent) {}

void SimpleGroupListModel::setSource(AppModel* model)
{
    if (model_)
        disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    if (model_)
        connect(model_, &AppModel::changed, this, &SimpleGroupListModel::refresh);
    refresh();
}

void SimpleGroupListModel::refresh()
{
    std::vector<SimpleGroup> rows = model_ ? model_->simpleGroups() : std::vector<SimpleGroup>{};
    const bool sameGroups = std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(),
                                       [](const SimpleGroup& a, const SimpleGroup& b) { return a.id == b.id; });
    if (sameGroups) {
        rows_ = std::move(rows);
        if (!rows_.empty())
            emit dataChanged(index(0), index(static_cast<int>(rows_.size()) - 1));
        return;
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
    emit countChanged();
}

int SimpleGroupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SimpleGroupListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !model_)
        return {};
    const SimpleGroup& group = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole: return toQt(group.id);
    case TitleRole: return QCoreApplication::translate("SimpleGroup", group.title.c_str());
    case SymbolRole: return toQt(group.symbol);
    case SizeTextRole: return toQt(ByteCountFormatter::string(group.size));
    case IsScanningRole: return group.isScanning;
    case EnabledRole: return model_->isGroupEnabled(group);
    default: return {};
    }
}

QHash<int, QByteArray> SimpleGroupListModel::roleNames() const
{
    return {{IdRole, "groupId"},       {TitleRole, "title"},           {SymbolRole, "symbol"},
            {SizeTextRole, "sizeText"}, {IsScanningRole, "isScanning"}, {EnabledRole, "included"}};
}
