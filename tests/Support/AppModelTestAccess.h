#pragma once

#include "AppModel.h"

#include <QTimer>

// Reaches the model's state so derived values can be checked against chosen sizes and disk figures.
struct AppModelTestAccess {
    static void setSize(AppModel& model, const std::string& id, std::optional<std::int64_t> size)
    {
        for (auto& state : model.targets_) {
            if (state.id() == id)
                state.size = size;
        }
        emit model.targetsChanged();
        emit model.changed();
    }
    static void setScanning(AppModel& model, const std::string& id)
    {
        for (auto& state : model.targets_) {
            if (state.id() == id)
                state.isScanning = true;
        }
        emit model.targetsChanged();
        emit model.changed();
    }
    static void setDisk(AppModel& model, DiskInfo disk)
    {
        model.disk_ = disk;
        emit model.diskChanged();
        emit model.changed();
    }
    static void setLastScan(AppModel& model, std::optional<Clock::TimePoint> time)
    {
        model.lastScan_ = time;
        emit model.lastScanChanged();
        emit model.changed();
    }
    static QCoro::Task<> refreshCacheSizes(AppModel& model) { return model.refreshCacheSizes(); }
    static const QTimer* refreshTimer(const AppModel& model) { return model.timer_; }
    static const QTimer* cacheWatchTimer(const AppModel& model) { return model.cacheWatchTimer_; }
};
