#pragma once

#include "Models/CleanupCategory.h"
#include "Models/DiskInfo.h"
#include "Models/SimpleGroup.h"
#include "Models/TargetState.h"
#include "Platform/Clock.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "Services/AppSettings.h"
class DefaultsStore;

// The one observable object at the centre of the application: it owns the settings, knows which
// targets are live and what is known of each, and answers the questions the panel and the status
// item ask. Main thread only; background work reports back by hopping to the main thread.
class AppModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(qint64 diskTotal READ diskTotal NOTIFY diskChanged)
    Q_PROPERTY(qint64 diskAvailableImportant READ diskAvailableImportant NOTIFY diskChanged)
    Q_PROPERTY(bool isCleaningAll READ isCleaningAll NOTIFY isCleaningAllChanged)
    Q_PROPERTY(QString statusMessage READ statusMessage NOTIFY statusMessageChanged)
    Q_PROPERTY(int largeFilesTab READ largeFilesTab WRITE setLargeFilesTab NOTIFY largeFilesTabChanged)
    Q_PROPERTY(qint64 totalFreedAllTime READ totalFreedAllTime NOTIFY totalFreedAllTimeChanged)
    Q_PROPERTY(QDateTime lastScan READ lastScanDateTime NOTIFY lastScanChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY targetsChanged)
    Q_PROPERTY(qint64 totalReclaimable READ totalReclaimable NOTIFY changed)
    Q_PROPERTY(QString menuBarText READ menuBarText NOTIFY changed)
    Q_PROPERTY(AppSettings* settings READ settings CONSTANT)

public:
    using SimpleGroup = ::SimpleGroup;
    using CategoryGroup = std::pair<CleanupCategory, std::vector<TargetState>>;

    // The instance the application runs on, over the user's defaults store.
    static AppModel& shared();

    // A model over the given store; the application uses shared(), tests make their own.
    explicit AppModel(std::shared_ptr<DefaultsStore> defaults, QObject* parent = nullptr);
    ~AppModel() override;

    AppSettings* settings() const { return settings_; }

    const DiskInfo& disk() const { return disk_; }
    qint64 diskTotal() const { return disk_.total; }
    qint64 diskAvailableImportant() const { return disk_.availableImportant; }
    const std::vector<TargetState>& targets() const { return targets_; }
    bool isCleaningAll() const { return isCleaningAll_; }
    QString statusMessage() const { return statusMessage_.value_or(QString()); }
    const std::optional<QString>& optionalStatusMessage() const { return statusMessage_; }
    int largeFilesTab() const { return largeFilesTab_; }
    void setLargeFilesTab(int tab);
    std::int64_t totalFreedAllTime() const { return totalFreedAllTime_; }
    std::optional<Clock::TimePoint> lastScan() const { return lastScan_; }
    QDateTime lastScanDateTime() const;
    bool didStart() const { return didStart_; }
    bool lowSpaceNotified() const { return lowSpaceNotified_; }

    static constexpr double cacheWatchInterval = 180.0;

    // Builds the live target list from the catalog and the settings, keeping known sizes of ids
    // that stay. Doesn't scan.
    void rebuildTargets();

    // Safe to call repeatedly: the first call sets the application going, later ones only
    // refresh the disk figures.
    Q_INVOKABLE void start();

    // Sum of known sizes over enabled targets.
    std::int64_t totalReclaimable() const;
    // Live targets by category, in category order; empty categories left out.
    std::vector<CategoryGroup> groupedTargets() const;
    std::vector<SimpleGroup> simpleGroups() const;
    void setGroupEnabled(bool enabled, const SimpleGroup& group);
    bool isGroupEnabled(const SimpleGroup& group) const;
    bool isScanning() const;
    QString menuBarText() const;

signals:
    // Sent with every published change, and when a derived value may have changed.
    void changed();
    void diskChanged();
    void targetsChanged();
    void isCleaningAllChanged();
    void statusMessageChanged();
    void largeFilesTabChanged();
    void totalFreedAllTimeChanged();
    void lastScanChanged();

private:
    friend struct AppModelTestAccess;

    void refreshDisk();
    void publishTargets(std::vector<TargetState> targets);

    // Published state.
    DiskInfo disk_;
    std::vector<TargetState> targets_;
    bool isCleaningAll_ = false;
    std::optional<QString> statusMessage_;
    int largeFilesTab_ = 0;
    std::int64_t totalFreedAllTime_ = 0;
    std::optional<Clock::TimePoint> lastScan_;

    AppSettings* settings_ = nullptr;
    bool lowSpaceNotified_ = false;
    bool didStart_ = false;
};
