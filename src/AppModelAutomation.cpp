// What runs without the user: the two timers, the low-space alert and the scheduled clean.

#include "AppModel.h"

#include <QPointer>

#include "EngineJobs.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/Paths.h"
#include "QtConversions.h"
#include "Services/Notifier.h"

#include <qcoro/qcorofuture.h>

#include <algorithm>
#include <chrono>

using namespace QtConversions;

namespace {

constexpr double minimumRefreshInterval = 2.0;

// Caches apps recreate by themselves: what the watcher remeasures and the schedule may clean.
bool isEverydayCache(const CleanupTarget& target)
{
    return (target.category == CleanupCategory::recommended || target.category == CleanupCategory::browsers) &&
           std::holds_alternative<PathsKind>(target.kind);
}

std::chrono::seconds schedulePeriod(CleanupSchedule schedule)
{
    return std::chrono::seconds{schedule == CleanupSchedule::weekly ? 604'800 : 86'400};
}

std::chrono::milliseconds secondsToMilliseconds(double seconds)
{
    return std::chrono::milliseconds{static_cast<std::int64_t>(seconds * 1000.0)};
}

}  // namespace

void AppModel::refreshDiskAndCheckSpace()
{
    refreshDisk();
    checkLowSpace();
}

void AppModel::checkLowSpace()
{
    if (!settings_->lowSpaceAlertsEnabled() || disk_.availableImportant >= settings_->lowSpaceThresholdBytes()) {
        lowSpaceNotified_ = false;
        return;
    }
    if (lowSpaceNotified_)
        return;
    Notifier::notifyLowSpace(disk_.availableImportant);
    lowSpaceNotified_ = true;
}

void AppModel::restartTimer()
{
    delete timer_;
    timer_ = new QTimer(this);
    timer_->setInterval(secondsToMilliseconds(std::max(minimumRefreshInterval, settings_->refreshInterval())));
    connect(timer_, &QTimer::timeout, this, &AppModel::refreshTick);
    timer_->start();
}

void AppModel::startCacheWatcher()
{
    delete cacheWatchTimer_;
    cacheWatchTimer_ = new QTimer(this);
    cacheWatchTimer_->setInterval(secondsToMilliseconds(cacheWatchInterval));
    connect(cacheWatchTimer_, &QTimer::timeout, this, [this] { refreshCacheSizes(); });
    cacheWatchTimer_->start();
}

void AppModel::refreshTick()
{
    refreshDiskAndCheckSpace();
    runScheduledCleanupIfDue();
}

QCoro::Task<> AppModel::refreshCacheSizes()
{
    const QPointer<AppModel> alive(this);
    std::vector<QCoro::Task<>> scans;
    for (const auto& state : targets_) {
        if (isEverydayCache(state.target))
            scans.push_back(scan(state.id()));
    }
    for (auto& running : scans) {
        co_await std::move(running);
        if (!alive)
            co_return;  // the model went away while we waited
    }
}

void AppModel::runScheduledCleanupIfDue()
{
    const CleanupSchedule schedule = settings_->cleanupSchedule();
    if (schedule == CleanupSchedule::off || isCleaningAll_)
        return;
    const auto last = settings_->lastAutoCleanup();
    if (!last) {
        // The first clean comes one full period after the schedule is first seen switched on.
        settings_->setLastAutoCleanup(Clock::now());
        return;
    }
    if (Clock::now() - *last >= schedulePeriod(schedule))
        autoClean();  // runs on by itself
}

QCoro::Task<> AppModel::autoClean()
{
    const QPointer<AppModel> alive(this);
    setIsCleaningAll(true);
    settings_->setLastAutoCleanup(Clock::now());
    std::vector<CleanupTarget> eligible;
    for (const auto& state : targets_) {
        if (settings_->isEnabled(toQt(state.id())) && state.id() != "trash" && isEverydayCache(state.target))
            eligible.push_back(state.target);
    }
    std::int64_t total = 0;
    for (const CleanupTarget& target : eligible) {
        // Unattended, so always to the Trash whatever the setting: nothing is lost for good.
        const CleanOutcome outcome = co_await EngineJobs::clean(target, true);
        if (!alive)
            co_return;  // the model went away while we waited
        total += outcome.freed;
        record(target, outcome);
        const std::optional<std::int64_t> newSize = co_await EngineJobs::measure(target);
        if (!alive)
            co_return;  // the model went away while we waited
        storeSize(target.id, newSize);
    }
    setIsCleaningAll(false);
    refreshDiskAndCheckSpace();
    Notifier::notifyAutoCleanup(total);
    if (total >= 1)
        setStatusMessage(tr("Auto-cleanup freed %1").arg(toQt(ByteCountFormatter::string(total))));
}
