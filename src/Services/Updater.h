#pragma once

#include <QObject>
#include <QString>

// The application's own updates. A build knows where to look for new versions only when a feed
// address was given at packaging; a build without one is a development build and checks
// nothing. Fetching and installing updates comes with the settings window that offers them.
class Updater : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isConfigured READ isConfigured CONSTANT)
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY canCheckForUpdatesChanged)
    Q_PROPERTY(QString statusText READ statusText CONSTANT)

public:
    explicit Updater(QString feedAddress = compiledFeedAddress(), QObject* parent = nullptr);

    // The address given at packaging (MOPWELL_FEED_URL), empty in development builds.
    static QString compiledFeedAddress();

    bool isConfigured() const { return !feedAddress_.isEmpty(); }
    // No check can run until an update source is wired in.
    bool canCheckForUpdates() const { return false; }
    // What the settings window shows about updates.
    QString statusText() const;

signals:
    void canCheckForUpdatesChanged();

private:
    QString feedAddress_;
};
