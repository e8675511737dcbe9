#include "SnapshotsModel.h"

#include "DesktopWords.h"
#include "Formatter.h"
#include "MainThread.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"
#include "Services/SnapshotManager.h"
#include "WorkQueues.h"

#include <QDateTime>
#include <QPointer>
#include <QTimer>

struct SnapshotsModel::Outcome {
    enum class Kind { removed, failed, cancelled, unknownError };
    Kind kind = Kind::removed;
    std::int64_t freed = 0;
    std::string message;
};

SnapshotsModel::Backend SnapshotsModel::systemBackend()
{
    return {
        [] { return SnapshotManager::list(); },
        [](const std::vector<LocalSnapshot>& snapshots) { return SnapshotManager::purgeableBytes(snapshots); },
        [](const std::vector<LocalSnapshot>& snapshots) { return SnapshotManager::deleteSnapshots(snapshots); },
    };
}

SnapshotsModel::SnapshotsModel(QObject* parent) : QObject(parent), backend_(systemBackend()) {}

std::vector<LocalSnapshot> SnapshotsModel::deletable() const
{
    if (!keepNewest_ || snapshots_.empty())
        return snapshots_;
    return {snapshots_.begin() + 1, snapshots_.end()};
}

QVariantList SnapshotsModel::snapshotList() const
{
    QVariantList rows;
    for (const LocalSnapshot& snapshot : snapshots_) {
        const QString timestamp = QString::fromStdString(snapshot.timestamp);
        rows.append(QVariantMap{
            {QStringLiteral("name"), QString::fromStdString(snapshot.name)},
            {QStringLiteral("timestamp"), timestamp},
            {QStringLiteral("displayDate"), displayDate(timestamp)},
        });
    }
    return rows;
}

void SnapshotsModel::setKeepNewest(bool keep)
{
    if (keepNewest_ == keep)
        return;
    keepNewest_ = keep;
    emit keepNewestChanged();
    emit deletableChanged();
}

QString SnapshotsModel::actionTitle() const
{
    const int count = deletableCount();
    return count > 0 ? tr("Free Up Space (%1)").arg(count) : tr("Free Up Space");
}

QString SnapshotsModel::displayDate(const QString& timestamp)
{
    const QDateTime date = QDateTime::fromString(timestamp, QStringLiteral("yyyy-MM-dd-HHmmss"));
    if (!date.isValid())
        return timestamp;
    return Formatter::mediumDateTime(date);
}

void SnapshotsModel::refresh()
{
    if (!isLoading_) {
        isLoading_ = true;
        emit loadingChanged();
    }
    QPointer<SnapshotsModel> guard(this);
    WorkQueues::userInitiated().start([backend = backend_, guard] {
        auto snapshots = backend.list();
        const std::int64_t purgeable = backend.purgeable(snapshots);
        MainThread::post(guard, [snapshots = std::move(snapshots), purgeable](SnapshotsModel& model) {
            model.receiveListing(snapshots, purgeable);
        });
    });
}

void SnapshotsModel::receiveListing(std::vector<LocalSnapshot> snapshots, std::int64_t purgeable)
{
    snapshots_ = std::move(snapshots);
    purgeable_ = purgeable;
    isLoading_ = false;
    emit snapshotsChanged();
    emit deletableChanged();
    emit purgeableChanged();
    emit loadingChanged();
}

void SnapshotsModel::reclaim()
{
    std::vector<LocalSnapshot> chosen = deletable();
    if (chosen.empty() || isWorking_)
        return;
    setWorking(true);
    setStatusMessage({});

    QPointer<SnapshotsModel> guard(this);
    WorkQueues::userInitiated().start([backend = backend_, chosen = std::move(chosen), guard] {
        Outcome outcome;
        try {
            outcome.freed = backend.remove(chosen);
        } catch (const SnapshotError& error) {
            outcome.kind = error.kind() == SnapshotError::Kind::cancelled ? Outcome::Kind::cancelled : Outcome::Kind::failed;
            outcome.message = error.message();
        } catch (...) {
            outcome.kind = Outcome::Kind::unknownError;
        }
        // Read again whatever happened: a partly failed removal shows what is truly left.
        auto snapshots = backend.list();
        const std::int64_t purgeable = backend.purgeable(snapshots);
        MainThread::post(guard, [outcome, snapshots = std::move(snapshots), purgeable](SnapshotsModel& model) {
            model.finishRemoval(outcome, snapshots, purgeable);
        });
    });
}

void SnapshotsModel::finishRemoval(const Outcome& outcome, std::vector<LocalSnapshot> snapshots, std::int64_t purgeable)
{
    QString message;
    switch (outcome.kind) {
    case Outcome::Kind::removed:
        message = outcome.freed >= 1
            ? tr("Reclaimed %1.").arg(QString::fromStdString(ByteCountFormatter::string(outcome.freed)))
            : DesktopWords::current().snapshotsRemovedLater;
        break;
    case Outcome::Kind::failed:
        message = tr("Couldn't remove snapshots: %1").arg(QtConversions::translated("AdminShell", outcome.message));
        break;
    case Outcome::Kind::cancelled:
        message = tr("Cancelled — nothing was removed.");
        break;
    case Outcome::Kind::unknownError:
        message = tr("Couldn't remove snapshots.");
        break;
    }
    snapshots_ = std::move(snapshots);
    emit snapshotsChanged();
    emit deletableChanged();
    purgeable_ = purgeable;
    emit purgeableChanged();
    setStatusMessage(message);
    setWorking(false);

    const quint64 serial = messageSerial_;
    QTimer::singleShot(messageLifetime_, this, [this, serial] {
        if (messageSerial_ == serial)
            setStatusMessage({});
    });
}

void SnapshotsModel::setStatusMessage(const QString& message)
{
    ++messageSerial_;
    if (statusMessage_ == message)
        return;
    statusMessage_ = message;
    emit statusMessageChanged();
}

void SnapshotsModel::setWorking(bool working)
{
    if (isWorking_ == working)
        return;
    isWorking_ = working;
    emit workingChanged();
}
