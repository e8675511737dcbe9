#pragma once

#include "Models/LocalSnapshot.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <cstdint>
#include <functional>
#include <vector>

// The "Free Up Snapshot Space" window's model: the local snapshots, the space they hold, the
// user's choice to spare the newest, and their removal with administrator rights. Main thread
// only; listing and removal run on a background pool and report back here.
class SnapshotsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    // Newest first: [{name, timestamp, displayDate}].
    Q_PROPERTY(QVariantList snapshots READ snapshotList NOTIFY snapshotsChanged)
    Q_PROPERTY(int count READ count NOTIFY snapshotsChanged)
    Q_PROPERTY(bool keepNewest READ keepNewest WRITE setKeepNewest NOTIFY keepNewestChanged)
    Q_PROPERTY(int deletableCount READ deletableCount NOTIFY deletableChanged)
    Q_PROPERTY(QString actionTitle READ actionTitle NOTIFY deletableChanged)
    Q_PROPERTY(bool isWorking READ isWorking NOTIFY workingChanged)
    // The first listing since the window appeared has not come back yet.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY loadingChanged)
    // Empty when there is nothing to say.
    Q_PROPERTY(QString statusMessage READ statusMessage NOTIFY statusMessageChanged)
    Q_PROPERTY(qint64 purgeable READ purgeable NOTIFY purgeableChanged)

public:
    // What the model asks of the system; tests hand in their own.
    struct Backend {
        std::function<std::vector<LocalSnapshot>()> list;
        std::function<std::int64_t(const std::vector<LocalSnapshot>&)> purgeable;
        // Returns the bytes freed; throws SnapshotError.
        std::function<std::int64_t(const std::vector<LocalSnapshot>&)> remove;
    };
    static Backend systemBackend();

    explicit SnapshotsModel(QObject* parent = nullptr);

    void setBackend(Backend backend) { backend_ = std::move(backend); }
    // How long a message stays; 6 seconds unless a test wants it shorter.
    void setMessageLifetime(int milliseconds) { messageLifetime_ = milliseconds; }

    const std::vector<LocalSnapshot>& snapshots() const { return snapshots_; }
    // When the newest is spared, every snapshot but the first; else all of them.
    std::vector<LocalSnapshot> deletable() const;

    QVariantList snapshotList() const;
    int count() const { return static_cast<int>(snapshots_.size()); }
    bool keepNewest() const { return keepNewest_; }
    void setKeepNewest(bool keep);
    int deletableCount() const { return static_cast<int>(deletable().size()); }
    QString actionTitle() const;
    bool isWorking() const { return isWorking_; }
    bool isLoading() const { return isLoading_; }
    QString statusMessage() const { return statusMessage_; }
    qint64 purgeable() const { return purgeable_; }

    // The stamp in the user's own medium date and short time, or as it is when it isn't one.
    static QString displayDate(const QString& timestamp);

    // Reads the snapshots and their space afresh, as the window does when it appears.
    Q_INVOKABLE void refresh();
    // Removes the deletable snapshots; nothing happens when there are none or one is running.
    Q_INVOKABLE void reclaim();

signals:
    void snapshotsChanged();
    void keepNewestChanged();
    void deletableChanged();
    void workingChanged();
    void loadingChanged();
    void statusMessageChanged();
    void purgeableChanged();

private:
    struct Outcome;
    void receiveListing(std::vector<LocalSnapshot> snapshots, std::int64_t purgeable);
    void finishRemoval(const Outcome& outcome, std::vector<LocalSnapshot> snapshots, std::int64_t purgeable);
    void setStatusMessage(const QString& message);
    void setWorking(bool working);

    Backend backend_;
    std::vector<LocalSnapshot> snapshots_;
    bool keepNewest_ = true;
    bool isWorking_ = false;
    bool isLoading_ = false;
    QString statusMessage_;
    // Each message gets a number, so that only its own timer clears it.
    quint64 messageSerial_ = 0;
    int messageLifetime_ = 6000;
    qint64 purgeable_ = 0;
};
