#pragma once

#include "Platform/Clock.h"

#include <QAbstractListModel>
#include <QtQml/qqml.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The rows of the project cleanup list: one per build folder, and in the grouped form a header
// before each project's folders. Sizes arrive one folder at a time while the list is on screen,
// so the list is never reset: rows that stay are updated in place, and rows that come, go or
// change places are inserted, removed and moved one by one, so each keeps its delegate.
//
// While `holdOrder` is set (the pointer is over the list) no row changes place at all: sizes and
// ticks still update, rows that go are removed, new ones are added at the end, and the order
// catches up as soon as the hold ends. A row never slides away under the pointer that is about
// to tick it.
class ProjectListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the project cleanup model.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(bool holdOrder READ holdOrder WRITE setHoldOrder NOTIFY holdOrderChanged)

public:
    struct Row {
        std::string key;          // unique in the list; a header and a folder never share one
        bool isHeader = false;
        std::string path;         // the build folder, or the project folder for a header
        std::string kindLabel;    // folder rows
        std::int64_t size = 0;    // the folder's bytes, or the sum of the group's
        bool measured = false;    // the size is known; for a header, every member's is
        std::optional<Clock::TimePoint> modified;  // folder rows
        bool selected = false;    // for a header: every member that can be ticked is ticked
        bool selectable = false;  // can be ticked now: measured (a header: any member is)
        int count = 0;            // a header's number of folders

        bool operator==(const Row&) const = default;
    };

    enum Role {
        IsHeaderRole = Qt::UserRole + 1,
        NameRole,         // the project's name
        KindRole,         // the kind's label, folder rows
        PathRole,         // the path as written, for tests and tools
        DisplayPathRole,  // with "~" for the home folder
        SizeTextRole,
        MeasuredRole,
        AgeTextRole,
        SelectedRole,
        SelectableRole,
        CountRole,
    };

    using QAbstractListModel::QAbstractListModel;

    int count() const { return static_cast<int>(rows_.size()); }
    bool holdOrder() const { return holdOrder_; }
    void setHoldOrder(bool hold);

    // Takes the rows in the order they belong in. `reordered` says that the user asked for a
    // new order (sort, grouping, filter): that is applied even under a hold.
    void update(std::vector<Row> fresh, bool reordered = false);
    const std::vector<Row>& rows() const { return rows_; }
    // The row at `index`, or none when out of range.
    const Row* row(int index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();
    void holdOrderChanged();

private:
    // What stays keeps its place; what is new follows at the end, in its own order.
    std::vector<Row> inHeldOrder(const std::vector<Row>& fresh) const;
    void apply(const std::vector<Row>& target);
    void removeRowsMissingFrom(const std::vector<Row>& target);

    std::vector<Row> rows_;
    std::vector<Row> latest_;  // the last rows given, in their own order
    bool holdOrder_ = false;
};
