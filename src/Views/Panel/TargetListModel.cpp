#include "TargetListModel.h"

#include "AppModel.h"
#include "CatalogWords.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <set>

using namespace QtConversions;

namespace {

QString sectionSymbol(CleanupCategory category)
{
    switch (category) {
    case CleanupCategory::recommended: return QStringLiteral("sparkles");
    case CleanupCategory::browsers: return QStringLiteral("safari.fill");
    case CleanupCategory::developer: return QStringLiteral("hammer.fill");
    case CleanupCategory::buildArtifacts: return QStringLiteral("shippingbox.fill");
    case CleanupCategory::custom: return QStringLiteral("folder.fill");
    }
    return {};
}

std::vector<TargetState> flattened(const AppModel& model)
{
    std::vector<TargetState> rows;
    for (const auto& [category, members] : model.groupedTargets())
        rows.insert(rows.end(), members.begin(), members.end());
    return rows;
}


}  // namespace

void TargetListModel::refresh()
{
    replaceRows(rows_, source() ? flattened(*source()) : std::vector<TargetState>{},
                [](const TargetState& a, const TargetState& b) { return a.id() == b.id(); });
}

int TargetListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QString TargetListModel::symbolForSection(const QString& section) const
{
    const auto category = CleanupCategories::fromRawValue(toStd(section));
    return category ? sectionSymbol(*category) : QString();
}

int TargetListModel::sectionCount() const
{
    std::set<CleanupCategory> sections;
    for (const auto& row : rows_)
        sections.insert(row.target.category);
    return static_cast<int>(sections.size());
}

QVariant TargetListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !source())
        return {};
    const TargetState& row = rows_[static_cast<std::size_t>(index.row())];
    const CleanupTarget& target = row.target;
    switch (role) {
    case IdRole: return toQt(target.id);
    case NameRole: return CatalogWords::name(target);
    case SymbolRole: return toQt(target.symbol);
    case DetailRole: return CatalogWords::detail(target);
    case SizeTextRole: return row.size ? toQt(ByteCountFormatter::string(*row.size)) : QStringLiteral("—");
    case SizeBytesRole: return QVariant::fromValue<qint64>(row.size.value_or(-1));
    case IsScanningRole: return row.isScanning;
    case IsCleaningRole: return row.isCleaning;
    case IncludedRole: return source()->settings()->isEnabled(toQt(target.id));
    case SectionRole: return toQt(std::string(CleanupCategories::rawValue(target.category)));
    case WhySafeRole: return CatalogWords::whySafe(target);
    case DisplayPathsRole: return toQt(target.displayPaths());
    default: return {};
    }
}

QHash<int, QByteArray> TargetListModel::roleNames() const
{
    return {{IdRole, "targetId"},         {NameRole, "name"},
            {SymbolRole, "symbol"},       {DetailRole, "detail"},
            {SizeTextRole, "sizeText"},   {SizeBytesRole, "sizeBytes"},
            {IsScanningRole, "isScanning"}, {IsCleaningRole, "isCleaning"},
            {IncludedRole, "included"},   {SectionRole, "section"},
            {WhySafeRole, "whySafe"},
            {DisplayPathsRole, "displayPaths"}};
}
