#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>

#include <memory>

class DefaultsStore;
class QNetworkReply;

// The application's own updates. A build knows where to look for new versions only when a feed
// address was given at packaging; a build without one is a development build and checks
// nothing. A check reads the feed, compares the newest release with this build and keeps the
// answer for the update window; it never downloads or installs anything itself: "Download"
// opens the release's link in the browser.
class Updater : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isConfigured READ isConfigured CONSTANT)
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY stateChanged)
    Q_PROPERTY(bool automaticallyChecksForUpdates READ automaticallyChecksForUpdates WRITE
                   setAutomaticallyChecksForUpdates NOTIFY automaticallyChecksForUpdatesChanged)
    Q_PROPERTY(QString statusText READ statusText CONSTANT)
    Q_PROPERTY(QString shortVersion READ shortVersion CONSTANT)
    Q_PROPERTY(QString buildVersion READ buildVersion CONSTANT)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    // The state for the views: "idle", "checking", "available", "upToDate" or "failed".
    Q_PROPERTY(QString stateName READ stateName NOTIFY stateChanged)
    Q_PROPERTY(QString latestVersion READ latestVersion NOTIFY stateChanged)
    Q_PROPERTY(QUrl releaseNotesUrl READ releaseNotesUrl NOTIFY stateChanged)
    Q_PROPERTY(QUrl downloadUrl READ downloadUrl NOTIFY stateChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY stateChanged)

public:
    enum class State { idle, checking, available, upToDate, failed };
    Q_ENUM(State)

    // This build's versions: the one people read, and the one releases are compared by.
    struct Build {
        QString shortVersion;
        QString version;
    };

    // The automatic-check choice and the time of the last check live in `defaults`.
    explicit Updater(std::shared_ptr<DefaultsStore> defaults, QString feedAddress = compiledFeedAddress(),
                     Build build = compiledBuild(), QObject* parent = nullptr);
    ~Updater() override;

    // The address given at packaging (MOPWELL_FEED_URL), empty in development builds.
    static QString compiledFeedAddress();
    // The versions given at build time (the project's version and MOPWELL_BUILD_VERSION).
    static Build compiledBuild();

    static constexpr int secondsBetweenAutomaticChecks = 24 * 60 * 60;

    bool isConfigured() const { return !feedAddress_.isEmpty(); }
    bool canCheckForUpdates() const { return isConfigured() && state_ != State::checking; }
    bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool enabled);
    // What the settings window shows about updates: "Dev build" without a feed.
    QString statusText() const;
    QString shortVersion() const { return build_.shortVersion; }
    QString buildVersion() const { return build_.version; }

    State state() const { return state_; }
    QString stateName() const;
    QString latestVersion() const { return latestVersion_; }
    QUrl releaseNotesUrl() const { return releaseNotesUrl_; }
    QUrl downloadUrl() const { return downloadUrl_; }
    QString errorText() const { return errorText_; }

    // Asked for by the user: whatever the answer, it is shown.
    Q_INVOKABLE void checkForUpdates();
    // The automatic check: only when it is switched on and the last check is a day old, and the
    // answer is only shown when it is a newer release.
    void checkIfDue();
    // Opens the release's download or notes in the browser.
    Q_INVOKABLE bool openDownload() const;
    Q_INVOKABLE bool openReleaseNotes() const;

signals:
    void stateChanged();
    void automaticallyChecksForUpdatesChanged();
    // There is something for the update window to show.
    void presentationRequested();

private:
    void startCheck(bool byUser);
    void finish(QNetworkReply* reply, bool byUser);
    void settle(State state, QString error = {});

    std::shared_ptr<DefaultsStore> defaults_;
    QString feedAddress_;
    Build build_;
    QNetworkAccessManager network_;
    QPointer<QNetworkReply> reply_;
    QTimer automaticTimer_;
    State state_ = State::idle;
    QString latestVersion_;
    QUrl releaseNotesUrl_;
    QUrl downloadUrl_;
    QString errorText_;
};
