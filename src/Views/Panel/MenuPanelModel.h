#pragma once

#include "Models/DiskInfo.h"
#include "SimpleGroupListModel.h"
#include "TargetListModel.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QtQml/qqml.h>

#include <optional>

#include "AppModel.h"

// What the panel shows, derived from the application model: the freshness line, the disk ring,
// the rows of both list forms and the footer's total. The rules live here, so the view only lays
// things out.
class MenuPanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QString freshnessText READ freshnessText NOTIFY freshnessChanged)
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY diskChanged)
    Q_PROPERTY(QString usedPercentText READ usedPercentText NOTIFY diskChanged)
    Q_PROPERTY(QString ringColor READ ringColor NOTIFY diskChanged)
    Q_PROPERTY(QString availableText READ availableText NOTIFY diskChanged)
    Q_PROPERTY(QString totalLine READ totalLine NOTIFY diskChanged)
    Q_PROPERTY(QString usedLine READ usedLine NOTIFY diskChanged)
    Q_PROPERTY(QString reclaimableText READ reclaimableText NOTIFY contentChanged)
    Q_PROPERTY(bool cleanUpEnabled READ cleanUpEnabled NOTIFY contentChanged)
    Q_PROPERTY(int listHeight READ listHeight NOTIFY contentChanged)
    Q_PROPERTY(SimpleGroupListModel* groups READ groups CONSTANT)
    Q_PROPERTY(TargetListModel* targets READ targets CONSTANT)

public:
    static constexpr int rowHeight = 44;
    static constexpr int headerHeight = 28;
    static constexpr int maximumListHeight = 360;

    explicit MenuPanelModel(QObject* parent = nullptr);

    AppModel* model() const { return model_; }
    void setModel(AppModel* model);

    QString freshnessText() const;
    double usedFraction() const { return usedFractionOf(disk()); }
    QString usedPercentText() const;
    QString ringColor() const { return ringColorFor(disk()); }
    QString availableText() const;
    QString totalLine() const;
    QString usedLine() const;
    QString reclaimableText() const;
    bool cleanUpEnabled() const;
    int listHeight() const;
    SimpleGroupListModel* groups() { return &groups_; }
    TargetListModel* targets() { return &targets_; }

    // The rules, on their own for testing.
    static double usedFractionOf(const DiskInfo& disk);
    static QString ringColorFor(const DiskInfo& disk);  // "green", "orange" or "red"
    static QString freshness(bool scanning, std::optional<long long> secondsSinceScan);
    static int listHeightFor(int targetCount, int sectionCount);

signals:
    void modelChanged();
    void freshnessChanged();
    void diskChanged();
    void contentChanged();

private:
    DiskInfo disk() const;

    QPointer<AppModel> model_;
    TargetListModel targets_;
    SimpleGroupListModel groups_;
    QTimer ticker_;  // freshness is relative to now: "10s ago" must become "11s ago"
};
