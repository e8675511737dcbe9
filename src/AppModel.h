#pragma once

#include "Models/CleanRecord.h"
#include "Models/CleanupCategory.h"
#include "Models/DiskInfo.h"
#include "Models/PendingClean.h"
#include "Models/SimpleGroup.h"
#include "Models/TargetState.h"
#include "Platform/Clock.h"
#include "Platform/PlatformProfile.h"
#include "Services/CleanOutcome.h"

#include <QDateTime>
#include <qcoro/qcorotask.h>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantMap>

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
    // For the confirmation window: {kind: "single"|"all", title, sizeText, whySafe,
    // items: [{label, size (-1 when unknown)}]}, or an empty map when nothing is pending.
    Q_PROPERTY(QVariantMap pendingClean READ pendingCleanMap NOTIFY pendingCleanChanged)
    Q_PROPERTY(bool hasPendingClean READ hasPendingClean NOTIFY pendingCleanChanged)

public:
    using SimpleGroup = ::SimpleGroup;
    using CategoryGroup = std::pair<CleanupCategory, std::vector<TargetState>>;

    // The instance the application runs on, over the user's defaults store.
    static AppModel& shared();

    // A model over the given store, with the catalog of the given desktop; the application uses
    // shared(), tests make their own.
    explicit AppModel(std::shared_ptr<DefaultsStore> defaults, PlatformProfile profile = currentPlatformProfile(),
                      QObject* parent = nullptr);
    ~AppModel() override;

    AppSettings* settings() const { return settings_; }
    PlatformProfile profile() const { return profile_; }

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
    Q_INVOKABLE void rebuildTargets();

    // Measures every live target at once; when all are done, stamps lastScan.
    QCoro::Task<> scanAll();
    // Measures one target, publishing its running total as it grows. An unknown id does nothing.
    QCoro::Task<> scan(std::string id);

    // Adds a folder ("~" allowed) as a custom target and starts measuring it. Returns the message
    // for the user when the folder can't be added.
    std::optional<QString> addCustomFolder(const QString& path);
    // A running scan's total so far; ignored once that target is no longer scanning.
    void reportScanProgress(const std::string& id, std::int64_t bytes);
    void removeCustomFolder(const QString& path);

    // Prepares the confirmation of one target's clean, or of every enabled target. Nothing is
    // removed until confirmPending.
    void requestClean(const std::string& id);
    Q_INVOKABLE void requestCleanAll();
    const std::optional<PendingClean>& pendingClean() const { return pendingClean_; }
    QVariantMap pendingCleanMap() const;
    bool hasPendingClean() const { return pendingClean_.has_value(); }
    // Cancelling the confirmation sets it to none.
    void setPendingClean(std::optional<PendingClean> pending);
    // The user agreed: the pending clean starts, to the Trash unless `permanently` or the setting
    // says otherwise, and runs on after this returns.
    Q_INVOKABLE void confirmPending(bool permanently);
    // Cleans one target, or every enabled one in list order. Without a choice, the Trash setting
    // is read when each target is cleaned.
    QCoro::Task<> clean(std::string id, std::optional<bool> moveToTrash = std::nullopt);
    QCoro::Task<> cleanAll(std::optional<bool> moveToTrash = std::nullopt);

    // History, newest first, and the lifetime total freed.
    const std::vector<CleanRecord>& history() const { return history_; }
    // For windows that delete by themselves: keeps history, total and disk figures in step.
    void recordExternalDeletion(const std::string& name, std::int64_t freed, const std::vector<TrashedItem>& trashed);
    // Puts a record's trashed items back where they were.
    void restore(const CleanRecord& record);
    // Empties the history list; the lifetime total stays.
    void clearHistory();

    // Restarts the refresh timer with the current interval (at least 2 seconds).
    void restartTimer();
    // Starts an automatic clean when the schedule says one is due.
    void runScheduledCleanupIfDue();

    // The same operations for the views, by id.
    Q_INVOKABLE void requestCleanOf(const QString& id) { requestClean(id.toStdString()); }
    Q_INVOKABLE void cancelPending() { setPendingClean(std::nullopt); }
    Q_INVOKABLE void rescan() { scanAll(); }
    Q_INVOKABLE void setGroupEnabledById(bool enabled, const QString& groupId);
    Q_INVOKABLE bool isGroupEnabledById(const QString& groupId) const;

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
    void pendingCleanChanged();
    void historyChanged();
    void largeFilesTabChanged();
    void totalFreedAllTimeChanged();
    void lastScanChanged();

private:
    friend struct AppModelTestAccess;

    void refreshDisk();
    void publishTargets(std::vector<TargetState> targets);
    // The live state with this id, looked up afresh: the list may change across any wait.
    TargetState* findState(const std::string& id);
    void targetStateChanged();
    void setLastScan(Clock::TimePoint time);
    void setStatusMessage(std::optional<QString> message);
    void setIsCleaningAll(bool cleaning);
    // Stores a measured size for a target that may have left the list meanwhile.
    void storeSize(const std::string& id, std::optional<std::int64_t> size);
    // Remembers a clean that freed something, for the history and the lifetime total.
    void record(const CleanupTarget& target, const CleanOutcome& outcome);
    // After anything that changes free space: new disk figures, then the low-space check.
    void refreshDiskAndCheckSpace();
    void addRecord(CleanRecord record);
    void saveHistory();
    void setTotalFreedAllTime(std::int64_t total);
    // One alert per dip of the free space below the threshold.
    void checkLowSpace();
    void startCacheWatcher();
    void refreshTick();
    QCoro::Task<> refreshCacheSizes();
    QCoro::Task<> autoClean();

    // Published state.
    DiskInfo disk_;
    std::vector<TargetState> targets_;
    bool isCleaningAll_ = false;
    std::optional<QString> statusMessage_;
    int largeFilesTab_ = 0;
    std::optional<PendingClean> pendingClean_;
    std::vector<CleanRecord> history_;
    std::int64_t totalFreedAllTime_ = 0;
    std::optional<Clock::TimePoint> lastScan_;

    AppSettings* settings_ = nullptr;
    std::shared_ptr<DefaultsStore> defaults_;
    PlatformProfile profile_;
    QTimer* timer_ = nullptr;
    QTimer* cacheWatchTimer_ = nullptr;
    bool lowSpaceNotified_ = false;
    bool didStart_ = false;
};
