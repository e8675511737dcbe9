#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqml.h>

#include <cstdint>
#include <string>
#include <vector>

// One list of the large-file finder: file rows, and for the copies a header row before each
// group. When a new picture of the scan arrives, the rows it shares with the last one at the
// start and at the end stay where they are and only the rest is replaced, so a list the user is
// scrolling through doesn't jump back to the top each time a group is found.
class FileRowList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the finder model.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    struct Row {
        bool isHeader = false;
        std::string key;       // unique in the list: what makes a row "the same" between pictures
        int fileIndex = -1;    // the finder's number for the file; -1 on a header
        QString title;         // the file's name
        QString subtitle;      // its path, the home folder shown as "~"
        qint64 size = 0;       // the file's size, or on a header each copy's
        int copies = 0;        // on a header
        bool isOn = false;
        bool canTrash = false;
    };

    enum Role {
        IsHeaderRole = Qt::UserRole + 1,
        FileIndexRole,
        TitleRole,
        SubtitleRole,
        SizeRole,
        CopiesRole,
        SavingRole,
        IsOnRole,
        CanTrashRole,
    };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return static_cast<int>(rows_.size()); }
    const std::vector<Row>& rows() const { return rows_; }

    void replace(std::vector<Row> rows);
    // Ticks each file row whose number `isOn` answers true for.
    template <typename Predicate>
    void updateTicks(Predicate isOn)
    {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            Row& row = rows_[i];
            if (row.isHeader || row.isOn == isOn(row.fileIndex))
                continue;
            row.isOn = !row.isOn;
            const QModelIndex changed = index(static_cast<int>(i));
            emit dataChanged(changed, changed, {IsOnRole});
        }
    }

signals:
    void countChanged();

private:
    std::vector<Row> rows_;
};
