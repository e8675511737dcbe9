#pragma once

#include "Models/DiskColorMode.h"
#include "Models/DiskNode.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqml.h>

#include <vector>

class DiskMapModel;

// The rows beside the disk map: what the focused folder holds, in the model's order, each with
// its share of the folder and the tile's colour. Rows are updated in place while the same
// entries stay in the same order; a changed set resets the list.
class DiskNodeListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(DiskMapModel* model READ model WRITE setModel NOTIFY modelChanged)
    // "type" or "age".
    Q_PROPERTY(QString colorMode READ colorModeText WRITE setColorModeText NOTIFY colorModeChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        NameRole,
        SizeTextRole,
        FractionRole,       // of the focused folder's size, 0 to 1
        SwatchColorRole,
        CanZoomRole,        // a folder with something in it
        IsSyntheticRole,
        HelpTextRole,       // "name — size"
        AccessibleLabelRole,  // "name, kind"
        AccessibleValueRole,  // "size, N percent"
    };

    using QAbstractListModel::QAbstractListModel;

    DiskMapModel* model() const { return model_; }
    void setModel(DiskMapModel* model);
    QString colorModeText() const;
    void setColorModeText(const QString& mode);
    int count() const { return int(rows_.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void modelChanged();
    void colorModeChanged();
    void countChanged();

private:
    void refresh();
    double fraction(const DiskNode& node) const;

    QPointer<DiskMapModel> model_;
    DiskColorMode colorMode_ = DiskColorMode::type;
    std::vector<DiskNode> rows_;
    std::int64_t parentSize_ = 0;
};
