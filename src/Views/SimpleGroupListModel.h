#pragma once

#include "Models/SimpleGroup.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqml.h>

#include <vector>

#include "AppModel.h"

// The simple list: the plain-language groups with their sizes. Rows are updated in place so a
// checkbox keeps its focus while sizes change under it.
class SimpleGroupListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the panel model.")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Role { IdRole = Qt::UserRole + 1, TitleRole, SymbolRole, SizeTextRole, IsScanningRole, EnabledRole };

    explicit SimpleGroupListModel(QObject* parent = nullptr);
    void setSource(AppModel* model);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    void refresh();

    QPointer<AppModel> model_;
    std::vector<SimpleGroup> rows_;
};
