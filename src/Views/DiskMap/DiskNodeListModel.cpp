#include "DiskNodeListModel.h"

#include "CategoryColor.h"
#include "DiskMapModel.h"
#include "DiskNodeText.h"

#include "Models/DiskMapPalette.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <algorithm>
#include <cmath>

using QtConversions::toQt;

void DiskNodeListModel::setModel(DiskMapModel* model)
{
    if (model_ == model)
        return;
    if (model_)
        disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    if (model_)
        connect(model_, &DiskMapModel::treeChanged, this, &DiskNodeListModel::refresh);
    refresh();
    emit modelChanged();
}

QString DiskNodeListModel::colorModeText() const
{
    return toQt(std::string(DiskColorModes::rawValue(colorMode_)));
}

void DiskNodeListModel::setColorModeText(const QString& mode)
{
    const DiskColorMode chosen = DiskColorModes::fromRawValueOrType(mode.toStdString());
    if (chosen == colorMode_)
        return;
    colorMode_ = chosen;
    if (!rows_.empty())
        emit dataChanged(index(0), index(count() - 1), {SwatchColorRole});
    emit colorModeChanged();
}

void DiskNodeListModel::refresh()
{
    const std::optional<DiskNode> focused = model_ ? model_->current() : std::nullopt;
    const std::span<const DiskNode> fresh = focused ? focused->children() : std::span<const DiskNode>();
    parentSize_ = focused ? focused->size() : 0;
    const bool sameRows = std::equal(rows_.begin(), rows_.end(), fresh.begin(), fresh.end(),
                                     [](const DiskNode& a, const DiskNode& b) { return a.id() == b.id(); });
    if (sameRows) {
        rows_.assign(fresh.begin(), fresh.end());
        if (!rows_.empty())
            emit dataChanged(index(0), index(count() - 1));
        return;
    }
    beginResetModel();
    rows_.assign(fresh.begin(), fresh.end());
    endResetModel();
    emit countChanged();
}

double DiskNodeListModel::fraction(const DiskNode& node) const
{
    return parentSize_ < 1 ? 0.0 : double(node.size()) / double(parentSize_);
}

int DiskNodeListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant DiskNodeListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const DiskNode& node = rows_[std::size_t(index.row())];
    // Each role is asked for on its own, many per row and frame; only what it needs is made.
    const auto name = [&node] { return DiskNodeText::name(node); };
    const auto size = [&node] { return toQt(ByteCountFormatter::string(node.size())); };
    switch (role) {
    case IdRole: return toQt(node.id());
    case NameRole: return name();
    case SizeTextRole: return size();
    case FractionRole: return fraction(node);
    case SwatchColorRole: return toQColor(DiskMapPalette::color(node, colorMode_, Clock::now()));
    case CanZoomRole: return node.isDirectory() && !node.children().empty();
    case IsSyntheticRole: return node.isSynthetic();
    case HelpTextRole: return name() + QStringLiteral(" — ") + size();
    case AccessibleLabelRole: return name() + QStringLiteral(", ") + DiskNodeText::kind(node);
    case AccessibleValueRole:
        return tr("%1, %2 percent").arg(size()).arg(std::lround(fraction(node) * 100));
    default: return {};
    }
}

QHash<int, QByteArray> DiskNodeListModel::roleNames() const
{
    return {
        {IdRole, "nodeId"},
        {NameRole, "name"},
        {SizeTextRole, "sizeText"},
        {FractionRole, "fraction"},
        {SwatchColorRole, "swatchColor"},
        {CanZoomRole, "canZoom"},
        {IsSyntheticRole, "isSynthetic"},
        {HelpTextRole, "helpText"},
        {AccessibleLabelRole, "accessibleLabel"},
        {AccessibleValueRole, "accessibleValue"},
    };
}
