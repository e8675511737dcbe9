#pragma once

#include "Models/SimpleGroup.h"

#include "Views/Components/LiveListModel.h"

#include <QtQml/qqml.h>

#include <vector>


// The simple list: the plain-language groups with their sizes. Rows are updated in place so a
// checkbox keeps its focus while sizes change under it.
class SimpleGroupListModel : public LiveListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the panel model.")

public:
    enum Role { IdRole = Qt::UserRole + 1, TitleRole, SymbolRole, SizeTextRole, IsScanningRole, EnabledRole };

    using LiveListModel::LiveListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void refresh() override;

    std::vector<SimpleGroup> rows_;
};
