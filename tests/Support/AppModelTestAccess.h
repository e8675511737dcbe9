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
    }
    static void setScanning(AppModel& model, const std::string& id)
    {
        for (auto& state : model.targets_) {
            if (state.id() == id)
                state.isScanning = true;
        }
    }
    static void setDisk(AppModel& model, DiskInfo disk) { model.disk_ = disk; }
    static QCoro::Task<> refreshCacheSizes(AppModel& model) { return model.refreshCacheSizes(); }
    static const QTimer* refreshTimer(const AppModel& model) { return model.timer_; }
    static const QTimer* cacheWatchTimer(const AppModel& model) { return model.cacheWatchTimer_; }
};
