#include "Services/AppSettings.h"

#include "Platform/DefaultsStore.h"
#include "QtConversions.h"
#include "Services/StoredTargetSettings.h"

using namespace QtConversions;

namespace {

QStringList asSet(QStringList ids)
{
    ids.sort();
    ids.removeDuplicates();
    return ids;
}

}  // namespace

AppSettings::AppSettings(std::shared_ptr<DefaultsStore> defaults, QObject* parent)
    : QObject(parent), defaults_(std::move(defaults))
{
    readAll();
    // Written straight back so that a stored value of the wrong type doesn't linger.
    setLastAutoCleanup(lastAutoCleanup_);
}

void AppSettings::readAll()
{
    const DefaultsStore& store = *defaults_;
    refreshInterval_ = store.number("refreshInterval").value_or(5.0);
    lowSpaceThresholdGB_ = store.number("lowSpaceThresholdGB").value_or(10.0);
    lowSpaceAlertsEnabled_ = store.boolean("lowSpaceAlertsEnabled").value_or(true);
    moveToTrash_ = store.boolean("moveToTrash").value_or(true);
    const TargetListSettings list = StoredTargetSettings::read(store);
    customFolders_ = toQt(list.customFolders);
    disabledTargetIDs_ = asSet(toQt(list.disabledTargetIDs));
    projectRoots_ = toQt(list.projectRoots);
    ignoredFinderPaths_ = toQt(list.ignoredFinderPaths);
    finderMinAgeDays_ = list.finderMinAgeDays;
    developerMode_ = list.developerMode;
    cleanSavedState_ = list.cleanSavedState;
    cleanMusicCache_ = list.cleanMusicCache;
    cleanMailDownloads_ = list.cleanMailDownloads;
    sortBySize_ = store.boolValue("sortBySize");
    cleanupSchedule_ = CleanupSchedules::fromRawValue(store.string("cleanupSchedule").value_or(""));
    lastAutoCleanup_ = store.date("lastAutoCleanup");
    hasCompletedOnboarding_ = store.boolValue("hasCompletedOnboarding");
    menuBarDisplay_ = MenuBarDisplays::fromRawValue(store.string("menuBarDisplay").value_or(""));
}

TargetListSettings AppSettings::targetListSettings() const
{
    return {.developerMode = developerMode_,
            .cleanSavedState = cleanSavedState_,
            .cleanMusicCache = cleanMusicCache_,
            .cleanMailDownloads = cleanMailDownloads_,
            .projectRoots = toStd(projectRoots_),
            .ignoredFinderPaths = toStd(ignoredFinderPaths_),
            .finderMinAgeDays = finderMinAgeDays_,
            .customFolders = toStd(customFolders_),
            .disabledTargetIDs = toStd(disabledTargetIDs_)};
}

template <typename Value>
void AppSettings::update(Value& field, const Value& value, void (AppSettings::*changed)(), const char* key)
{
    field = value;
    emit (this->*changed)();
    if constexpr (std::is_same_v<Value, QStringList>)
        defaults_->set(key, toStd(field));
    else
        defaults_->set(key, field);
}

QString AppSettings::cleanupScheduleRawValue() const
{
    return toQt(std::string(CleanupSchedules::rawValue(cleanupSchedule_)));
}

QDateTime AppSettings::lastAutoCleanupDateTime() const
{
    return toQt(lastAutoCleanup_);
}

QString AppSettings::menuBarDisplayRawValue() const
{
    return toQt(std::string(MenuBarDisplays::rawValue(menuBarDisplay_)));
}

void AppSettings::setRefreshInterval(double seconds)
{
    update(refreshInterval_, seconds, &AppSettings::refreshIntervalChanged, "refreshInterval");
}

void AppSettings::setLowSpaceThresholdGB(double gigabytes)
{
    update(lowSpaceThresholdGB_, gigabytes, &AppSettings::lowSpaceThresholdGBChanged, "lowSpaceThresholdGB");
}

void AppSettings::setLowSpaceAlertsEnabled(bool enabled)
{
    update(lowSpaceAlertsEnabled_, enabled, &AppSettings::lowSpaceAlertsEnabledChanged, "lowSpaceAlertsEnabled");
}

void AppSettings::setCustomFolders(const QStringList& folders)
{
    update(customFolders_, folders, &AppSettings::customFoldersChanged, "customFolders");
}

void AppSettings::setDisabledTargetIDs(const QStringList& ids)
{
    update(disabledTargetIDs_, asSet(ids), &AppSettings::disabledTargetIDsChanged, "disabledTargetIDs");
}

void AppSettings::setMoveToTrash(bool enabled)
{
    update(moveToTrash_, enabled, &AppSettings::moveToTrashChanged, "moveToTrash");
}

void AppSettings::setProjectRoots(const QStringList& roots)
{
    update(projectRoots_, roots, &AppSettings::projectRootsChanged, "projectRoots");
}

void AppSettings::setIgnoredFinderPaths(const QStringList& paths)
{
    update(ignoredFinderPaths_, paths, &AppSettings::ignoredFinderPathsChanged, "ignoredFinderPaths");
}

void AppSettings::setFinderMinAgeDays(double days)
{
    update(finderMinAgeDays_, days, &AppSettings::finderMinAgeDaysChanged, "finderMinAgeDays");
}

void AppSettings::setSortBySize(bool enabled)
{
    update(sortBySize_, enabled, &AppSettings::sortBySizeChanged, "sortBySize");
}

void AppSettings::setCleanupSchedule(CleanupSchedule schedule)
{
    cleanupSchedule_ = schedule;
    emit cleanupScheduleChanged();
    defaults_->set("cleanupSchedule", std::string(CleanupSchedules::rawValue(schedule)));
}

void AppSettings::setCleanupScheduleRawValue(const QString& raw)
{
    setCleanupSchedule(CleanupSchedules::fromRawValue(toStd(raw)));
}

void AppSettings::setLastAutoCleanup(std::optional<Clock::TimePoint> date)
{
    lastAutoCleanup_ = date;
    emit lastAutoCleanupChanged();
    if (date)
        defaults_->set("lastAutoCleanup", *date);
    else
        defaults_->remove("lastAutoCleanup");
}

void AppSettings::setHasCompletedOnboarding(bool done)
{
    update(hasCompletedOnboarding_, done, &AppSettings::hasCompletedOnboardingChanged, "hasCompletedOnboarding");
}

void AppSettings::setMenuBarDisplay(MenuBarDisplay display)
{
    menuBarDisplay_ = display;
    emit menuBarDisplayChanged();
    defaults_->set("menuBarDisplay", std::string(MenuBarDisplays::rawValue(display)));
}

void AppSettings::setMenuBarDisplayRawValue(const QString& raw)
{
    setMenuBarDisplay(MenuBarDisplays::fromRawValue(toStd(raw)));
}

void AppSettings::setDeveloperMode(bool enabled)
{
    update(developerMode_, enabled, &AppSettings::developerModeChanged, "developerMode");
}

void AppSettings::setCleanSavedState(bool enabled)
{
    update(cleanSavedState_, enabled, &AppSettings::cleanSavedStateChanged, "cleanSavedState");
}

void AppSettings::setCleanMusicCache(bool enabled)
{
    update(cleanMusicCache_, enabled, &AppSettings::cleanMusicCacheChanged, "cleanMusicCache");
}

void AppSettings::setCleanMailDownloads(bool enabled)
{
    update(cleanMailDownloads_, enabled, &AppSettings::cleanMailDownloadsChanged, "cleanMailDownloads");
}

void AppSettings::setEnabled(bool enabled, const QString& id)
{
    QStringList ids = disabledTargetIDs_;
    if (enabled)
        ids.removeAll(id);
    else
        ids.append(id);
    setDisabledTargetIDs(ids);
}

std::int64_t AppSettings::lowSpaceThresholdBytes() const
{
    return static_cast<std::int64_t>(lowSpaceThresholdGB_ * 1'000'000'000.0);
}
