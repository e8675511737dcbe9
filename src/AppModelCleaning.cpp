// Cleans the user asks for: the request, the confirmation, the clean and what it reports.

#include "AppModel.h"

#include <QPointer>

#include "CatalogWords.h"
#include "EngineJobs.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <qcoro/qcorofuture.h>

#include <algorithm>

using namespace QtConversions;

namespace {

QString formatted(std::int64_t bytes)
{
    return toQt(ByteCountFormatter::string(bytes));
}

}  // namespace

void AppModel::setPendingClean(std::optional<PendingClean> pending)
{
    pendingClean_ = std::move(pending);
    emit pendingCleanChanged();
    emit changed();
}

void AppModel::setStatusMessage(std::optional<QString> message)
{
    statusMessage_ = std::move(message);
    emit statusMessageChanged();
    emit changed();
}

void AppModel::setIsCleaningAll(bool cleaning)
{
    isCleaningAll_ = cleaning;
    emit isCleaningAllChanged();
    emit changed();
}

void AppModel::storeSize(const std::string& id, std::optional<std::int64_t> size)
{
    if (TargetState* state = findState(id)) {
        state->size = size;
        targetStateChanged();
    }
}

QVariantMap AppModel::pendingCleanMap() const
{
    if (!pendingClean_)
        return {};
    const PendingClean& pending = *pendingClean_;
    QVariantList items;
    for (const auto& item : pending.items)
        items.append(QVariantMap{{"label", toQt(item.label)}, {"size", QVariant::fromValue<qint64>(item.size.value_or(-1))}});
    const bool single = std::holds_alternative<PendingClean::Single>(pending.kind);
    return {{"kind", single ? "single" : "all"},
            {"title", toQt(pending.title)},
            {"sizeText", pending.sizeText ? toQt(*pending.sizeText) : QString()},
            {"whySafe", pending.whySafe ? toQt(*pending.whySafe) : QString()},
            {"items", items}};
}

void AppModel::requestClean(const std::string& id)
{
    const TargetState* state = findState(id);
    if (!state)
        return;
    PendingClean pending{PendingClean::Single{id}, toStd(CatalogWords::name(state->target)), std::nullopt, {},
                         toStd(CatalogWords::whySafe(state->target))};
    if (state->size)
        pending.sizeText = ByteCountFormatter::string(*state->size);
    for (const auto& line : state->target.displayPaths())
        pending.items.push_back({line, std::nullopt});
    setPendingClean(std::move(pending));
}

void AppModel::requestCleanAll()
{
    std::vector<const TargetState*> enabled;
    for (const auto& state : targets_) {
        if (settings_->isEnabled(toQt(state.id())))
            enabled.push_back(&state);
    }
    std::stable_sort(enabled.begin(), enabled.end(), [](const TargetState* a, const TargetState* b) {
        return a->size.value_or(0) > b->size.value_or(0);
    });
    PendingClean pending{PendingClean::All{}, toStd(tr("all enabled items")),
                         ByteCountFormatter::string(totalReclaimable()), {},
                         toStd(tr("Everything here is a cache, log or rebuildable file that comes back "
                                  "automatically when it's needed."))};
    for (const TargetState* state : enabled)
        pending.items.push_back({toStd(CatalogWords::name(state->target)), state->size});
    setPendingClean(std::move(pending));
}

void AppModel::confirmPending(bool permanently)
{
    if (!pendingClean_)
        return;
    const PendingClean confirmed = *pendingClean_;
    setPendingClean(std::nullopt);
    const bool useTrash = settings_->moveToTrash() && !permanently;
    // Runs on by itself; every step finds its target again by id.
    if (const auto* single = std::get_if<PendingClean::Single>(&confirmed.kind))
        clean(single->id, useTrash);
    else
        cleanAll(useTrash);
}

QCoro::Task<> AppModel::clean(std::string id, std::optional<bool> moveToTrash)
{
    const QPointer<AppModel> alive(this);
    TargetState* state = findState(id);
    if (!state)
        co_return;
    state->isCleaning = true;
    targetStateChanged();
    const CleanupTarget target = state->target;

    const CleanOutcome outcome = co_await EngineJobs::clean(target, moveToTrash.value_or(settings_->moveToTrash()));
    if (!alive)
        co_return;  // the model went away while we waited
    const std::optional<std::int64_t> newSize = co_await EngineJobs::measure(target);
    if (!alive)
        co_return;  // the model went away while we waited

    if ((state = findState(id))) {
        state->size = newSize;
        state->isCleaning = false;
        targetStateChanged();
    }
    refreshDiskAndCheckSpace();
    record(target, outcome);
    const QString name = CatalogWords::name(target);
    if (outcome.error)
        setStatusMessage(
            tr("%1: %2", "a target's name and what went wrong").arg(name, translated("Cleaner", *outcome.error)));
    else
        setStatusMessage(tr("Freed %1 from %2").arg(formatted(outcome.freed), name));
}

QCoro::Task<> AppModel::cleanAll(std::optional<bool> moveToTrash)
{
    const QPointer<AppModel> alive(this);
    setIsCleaningAll(true);
    const std::vector<TargetState> snapshot = targets_;
    std::int64_t total = 0;
    for (const TargetState& state : snapshot) {
        // Read at each step: the user may switch targets off while the clean runs.
        if (!settings_->isEnabled(toQt(state.id())))
            continue;
        const CleanOutcome outcome =
            co_await EngineJobs::clean(state.target, moveToTrash.value_or(settings_->moveToTrash()));
        if (!alive)
            co_return;  // the model went away while we waited
        total += outcome.freed;
        record(state.target, outcome);
        const std::optional<std::int64_t> newSize = co_await EngineJobs::measure(state.target);
        if (!alive)
            co_return;  // the model went away while we waited
        storeSize(state.id(), newSize);
        refreshDiskAndCheckSpace();
    }
    setIsCleaningAll(false);
    setStatusMessage(tr("Freed %1 total").arg(formatted(total)));
}
