#pragma once

#include "Models/CleanupSchedule.h"
#include "Models/MenuBarDisplay.h"
#include "Models/TargetListSettings.h"
#include "Platform/Clock.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>

class DefaultsStore;

// Every persisted user choice, read once from the defaults store at creation and written back
// the moment it changes. What must follow a change (rebuilding targets, restarting timers) is the
// caller's business. The key of each value equals its property name.
class AppSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(double refreshInterval READ refreshInterval WRITE setRefreshInterval NOTIFY refreshIntervalChanged)
    Q_PROPERTY(double lowSpaceThresholdGB READ lowSpaceThresholdGB WRITE setLowSpaceThresholdGB NOTIFY lowSpaceThresholdGBChanged)
    Q_PROPERTY(bool lowSpaceAlertsEnabled READ lowSpaceAlertsEnabled WRITE setLowSpaceAlertsEnabled NOTIFY lowSpaceAlertsEnabledChanged)
    Q_PROPERTY(QStringList customFolders READ customFolders WRITE setCustomFolders NOTIFY customFoldersChanged)
    Q_PROPERTY(QStringList disabledTargetIDs READ disabledTargetIDs WRITE setDisabledTargetIDs NOTIFY disabledTargetIDsChanged)
    Q_PROPERTY(bool moveToTrash READ moveToTrash WRITE setMoveToTrash NOTIFY moveToTrashChanged)
    Q_PROPERTY(QStringList projectRoots READ projectRoots WRITE setProjectRoots NOTIFY projectRootsChanged)
    Q_PROPERTY(QStringList ignoredFinderPaths READ ignoredFinderPaths WRITE setIgnoredFinderPaths NOTIFY ignoredFinderPathsChanged)
    Q_PROPERTY(double finderMinAgeDays READ finderMinAgeDays WRITE setFinderMinAgeDays NOTIFY finderMinAgeDaysChanged)
    Q_PROPERTY(bool sortBySize READ sortBySize WRITE setSortBySize NOTIFY sortBySizeChanged)
    Q_PROPERTY(QString cleanupSchedule READ cleanupScheduleRawValue WRITE setCleanupScheduleRawValue NOTIFY cleanupScheduleChanged)
    Q_PROPERTY(QDateTime lastAutoCleanup READ lastAutoCleanupDateTime NOTIFY lastAutoCleanupChanged)
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE setHasCompletedOnboarding NOTIFY hasCompletedOnboardingChanged)
    Q_PROPERTY(QString menuBarDisplay READ menuBarDisplayRawValue WRITE setMenuBarDisplayRawValue NOTIFY menuBarDisplayChanged)
    Q_PROPERTY(bool developerMode READ developerMode WRITE setDeveloperMode NOTIFY developerModeChanged)
    Q_PROPERTY(bool cleanSavedState READ cleanSavedState WRITE setCleanSavedState NOTIFY cleanSavedStateChanged)
    Q_PROPERTY(bool cleanMusicCache READ cleanMusicCache WRITE setCleanMusicCache NOTIFY cleanMusicCacheChanged)
    Q_PROPERTY(bool cleanMailDownloads READ cleanMailDownloads WRITE setCleanMailDownloads NOTIFY cleanMailDownloadsChanged)

public:
    explicit AppSettings(std::shared_ptr<DefaultsStore> defaults, QObject* parent = nullptr);

    const std::shared_ptr<DefaultsStore>& defaults() const { return defaults_; }

    double refreshInterval() const { return refreshInterval_; }
    double lowSpaceThresholdGB() const { return lowSpaceThresholdGB_; }
    bool lowSpaceAlertsEnabled() const { return lowSpaceAlertsEnabled_; }
    QStringList customFolders() const { return customFolders_; }
    QStringList disabledTargetIDs() const { return disabledTargetIDs_; }
    bool moveToTrash() const { return moveToTrash_; }
    QStringList projectRoots() const { return projectRoots_; }
    QStringList ignoredFinderPaths() const { return ignoredFinderPaths_; }
    double finderMinAgeDays() const { return finderMinAgeDays_; }
    bool sortBySize() const { return sortBySize_; }
    CleanupSchedule cleanupSchedule() const { return cleanupSchedule_; }
    QString cleanupScheduleRawValue() const;
    std::optional<Clock::TimePoint> lastAutoCleanup() const { return lastAutoCleanup_; }
    QDateTime lastAutoCleanupDateTime() const;
    bool hasCompletedOnboarding() const { return hasCompletedOnboarding_; }
    MenuBarDisplay menuBarDisplay() const { return menuBarDisplay_; }
    QString menuBarDisplayRawValue() const;
    bool developerMode() const { return developerMode_; }
    bool cleanSavedState() const { return cleanSavedState_; }
    bool cleanMusicCache() const { return cleanMusicCache_; }
    bool cleanMailDownloads() const { return cleanMailDownloads_; }

    void setRefreshInterval(double seconds);
    void setLowSpaceThresholdGB(double gigabytes);
    void setLowSpaceAlertsEnabled(bool enabled);
    void setCustomFolders(const QStringList& folders);
    // Kept as a set: duplicates are dropped and the members are stored sorted.
    void setDisabledTargetIDs(const QStringList& ids);
    void setMoveToTrash(bool enabled);
    void setProjectRoots(const QStringList& roots);
    void setIgnoredFinderPaths(const QStringList& paths);
    void setFinderMinAgeDays(double days);
    void setSortBySize(bool enabled);
    void setCleanupSchedule(CleanupSchedule schedule);
    void setCleanupScheduleRawValue(const QString& raw);
    // None removes the key.
    void setLastAutoCleanup(std::optional<Clock::TimePoint> date);
    void setHasCompletedOnboarding(bool done);
    void setMenuBarDisplay(MenuBarDisplay display);
    void setMenuBarDisplayRawValue(const QString& raw);
    void setDeveloperMode(bool enabled);
    void setCleanSavedState(bool enabled);
    void setCleanMusicCache(bool enabled);
    void setCleanMailDownloads(bool enabled);

    // The values that shape the target list, as the catalog takes them.
    TargetListSettings targetListSettings() const;

    // A target is enabled unless its id was disabled; ids never mentioned are enabled.
    Q_INVOKABLE bool isEnabled(const QString& id) const { return !disabledTargetIDs_.contains(id); }
    Q_INVOKABLE void setEnabled(bool enabled, const QString& id);

    // The threshold in bytes, with decimal gigabytes (10^9 bytes), truncated toward zero.
    std::int64_t lowSpaceThresholdBytes() const;

signals:
    void refreshIntervalChanged();
    void lowSpaceThresholdGBChanged();
    void lowSpaceAlertsEnabledChanged();
    void customFoldersChanged();
    void disabledTargetIDsChanged();
    void moveToTrashChanged();
    void projectRootsChanged();
    void ignoredFinderPathsChanged();
    void finderMinAgeDaysChanged();
    void sortBySizeChanged();
    void cleanupScheduleChanged();
    void lastAutoCleanupChanged();
    void hasCompletedOnboardingChanged();
    void menuBarDisplayChanged();
    void developerModeChanged();
    void cleanSavedStateChanged();
    void cleanMusicCacheChanged();
    void cleanMailDownloadsChanged();

private:
    void readAll();
    // Stores the value in memory, publishes the change, then writes the key.
    template <typename Value>
    void update(Value& field, const Value& value, void (AppSettings::*changed)(), const char* key);

    std::shared_ptr<DefaultsStore> defaults_;
    double refreshInterval_ = 5.0;
    double lowSpaceThresholdGB_ = 10.0;
    bool lowSpaceAlertsEnabled_ = true;
    QStringList customFolders_;
    QStringList disabledTargetIDs_;
    bool moveToTrash_ = true;
    QStringList projectRoots_;
    QStringList ignoredFinderPaths_;
    double finderMinAgeDays_ = 0.0;
    bool sortBySize_ = false;
    CleanupSchedule cleanupSchedule_ = CleanupSchedule::off;
    std::optional<Clock::TimePoint> lastAutoCleanup_;
    bool hasCompletedOnboarding_ = false;
    MenuBarDisplay menuBarDisplay_ = MenuBarDisplay::percent;
    bool developerMode_ = false;
    bool cleanSavedState_ = false;
    bool cleanMusicCache_ = false;
    bool cleanMailDownloads_ = true;
};
