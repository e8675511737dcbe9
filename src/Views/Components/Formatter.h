#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QtQml/qqml.h>

// Sizes for the views, worded exactly as the rest of the application words them:
// `Formatter.bytes(1500000)` gives "1.5 MB".
class Formatter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Formatter(QObject* parent = nullptr);

    // A file size: "Zero KB", "1 byte", "12 KB", "1.5 MB", "2.25 GB".
    Q_INVOKABLE QString bytes(qint64 count) const;

    // A moment as lists show it, in the running language: the date with the month abbreviated
    // and no weekday, then the short time ("Jan 5, 2024 9:41 AM", "5. Jan. 2024 09:41").
    static QString mediumDateTime(const QDateTime& moment);
};
