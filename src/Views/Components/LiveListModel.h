#pragma once

#include "AppModel.h"

#include <QAbstractListModel>
#include <QPointer>

#include <algorithm>
#include <vector>

// A list the panel shows from the application model, rebuilt at every change of the model. When
// the same rows come back in the same order they are updated in place, so a row keeps its
// delegate (and a checkbox its focus) while sizes stream in; otherwise the list is reset.
class LiveListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    void setSource(AppModel* model);
    AppModel* source() const { return model_; }
    int count() const { return rowCount(); }

signals:
    void countChanged();

protected:
    // Reads the rows afresh from source(), which may be null.
    virtual void refresh() = 0;

    template <typename Row, typename SameRow>
    void replaceRows(std::vector<Row>& rows, std::vector<Row> fresh, SameRow sameRow)
    {
        if (std::equal(rows.begin(), rows.end(), fresh.begin(), fresh.end(), sameRow)) {
            rows = std::move(fresh);
            if (!rows.empty())
                emit dataChanged(index(0), index(static_cast<int>(rows.size()) - 1));
            return;
        }
        beginResetModel();
        rows = std::move(fresh);
        endResetModel();
        emit countChanged();
    }

private:
    QPointer<AppModel> model_;
};
