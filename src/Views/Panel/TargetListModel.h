#pragma once

#include "Views/Components/LiveListModel.h"

#include <QtQml/qqml.h>

#include <string>
#include <vector>

#include "AppModel.h"


// The developer list: every live target in the order of its section (category), each row with
// what the panel shows. Sizes change many times a second while scanning, so rows are updated in
// place; the model is reset only when the set or order of targets changes.
class TargetListModel : public LiveListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the panel model.")

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        NameRole,
        SymbolRole,
        DetailRole,
        SizeTextRole,
        SizeBytesRole,  // -1 when unknown
        IsScanningRole,
        IsCleaningRole,
        IncludedRole,
        SectionRole,
        WhySafeRole,
        DisplayPathsRole,
    };

    using LiveListModel::LiveListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int sectionCount() const;
    // The icon beside a section's title, by the section's name.
    Q_INVOKABLE QString symbolForSection(const QString& section) const;

private:
    void refresh() override;

    std::vector<TargetState> rows_;
};
