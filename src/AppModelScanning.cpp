// Measuring targets and the custom folders they come from.

#include "AppModel.h"

#include "Platform/Paths.h"
#include "QtConversions.h"
#include "Services/Cleaner.h"
#include "Services/Scanner.h"
#include "EngineJobs.h"
#include "MainThread.h"

#include <QPointer>
#include <qcoro/qcorofuture.h>

using namespace QtConversions;

// Lambdas with captures are made in plain functions, never inside a coroutine body: this
// compiler destroys such captures twice when they live in a coroutine frame.
namespace {

// Reports arrive on the scanning thread and hop to the main thread; one that lands after the scan
// ended, or after the list was rebuilt, finds the state no longer scanning and is dropped.
Scanner::Progress progressReporter(AppModel* model, const std::string& id)
{
    return [model = QPointer<AppModel>(model), id](std::int64_t bytes) {
        MainThread::post(model, [id, bytes](AppModel& live) { live.reportScanProgress(id, bytes); });
    };
}

}  // namespace

TargetState* AppModel::findState(const std::string& id)
{
    for (auto& state : targets_) {
        if (state.id() == id)
            return &state;
    }
    return nullptr;
}

void AppModel::targetStateChanged()
{
    emit targetsChanged();
    emit changed();
}

void AppModel::reportScanProgress(const std::string& id, std::int64_t bytes)
{
    TargetState* state = findState(id);
    if (!state || !state->isScanning)
        return;
    state->size = bytes;
    targetStateChanged();
}

void AppModel::setLastScan(Clock::TimePoint time)
{
    lastScan_ = time;
    emit lastScanChanged();
    emit changed();
}

QCoro::Task<> AppModel::scanAll()
{
    const QPointer<AppModel> alive(this);
    std::vector<QCoro::Task<>> scans;
    for (const auto& state : targets_)
        scans.push_back(scan(state.id()));
    for (auto& running : scans) {
        co_await std::move(running);
        if (!alive)
            co_return;  // the model went away while we waited
    }
    setLastScan(Clock::now());
}

QCoro::Task<> AppModel::scan(std::string id)
{
    const QPointer<AppModel> alive(this);
    TargetState* state = findState(id);
    if (!state)
        co_return;
    state->isScanning = true;
    state->size.reset();
    targetStateChanged();

    const std::optional<std::int64_t> bytes =
        co_await EngineJobs::measure(state->target, progressReporter(this, id));
    if (!alive)
        co_return;  // the model went away while we waited

    state = findState(id);
    if (!state)
        co_return;
    state->size = bytes;
    state->isScanning = false;
    targetStateChanged();
}

std::optional<QString> AppModel::addCustomFolder(const QString& path)
{
    const std::string expanded = Paths::expandingTilde(toStd(path));
    if (const auto message = Cleaner::validateCustom(expanded))
        return translated("Cleaner", *message);
    QStringList folders = settings_->customFolders();
    if (folders.contains(toQt(expanded)))
        return tr("Already added.");
    folders.append(toQt(expanded));
    settings_->setCustomFolders(folders);
    rebuildTargets();
    scan("custom:" + expanded);  // runs on by itself; its result lands by id
    return std::nullopt;
}

void AppModel::removeCustomFolder(const QString& path)
{
    QStringList folders = settings_->customFolders();
    folders.removeAll(path);
    settings_->setCustomFolders(folders);
    rebuildTargets();
}
