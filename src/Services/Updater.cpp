#include "Services/Updater.h"

#include "Platform/DefaultsStore.h"
#include "Services/AppcastFeed.h"

#include <QDesktopServices>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <chrono>

#ifndef MOPWELL_FEED_URL
#define MOPWELL_FEED_URL ""
#endif
#ifndef MOPWELL_VERSION
#define MOPWELL_VERSION "1.0"
#endif
#ifndef MOPWELL_BUILD_VERSION
#define MOPWELL_BUILD_VERSION "1"
#endif

namespace {

constexpr char automaticKey[] = "SUEnableAutomaticChecks";
constexpr char lastCheckKey[] = "SULastCheckTime";
// A feed is a few kilobytes; anything far larger is not one.
constexpr qint64 largestFeed = 2 * 1024 * 1024;
constexpr int transferTimeoutMs = 20000;
// How often the application asks itself whether a day has passed since the last check.
constexpr int automaticTimerMs = 60 * 60 * 1000;
// The first automatic check waits until the start-up work is done.
constexpr int firstAutomaticCheckMs = 60 * 1000;

}  // namespace

Updater::Updater(std::shared_ptr<DefaultsStore> defaults, QString feedAddress, Build build, QObject* parent)
    : QObject(parent), defaults_(std::move(defaults)), feedAddress_(std::move(feedAddress)), build_(std::move(build))
{
    network_.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    if (!isConfigured())
        return;
    connect(&automaticTimer_, &QTimer::timeout, this, &Updater::checkIfDue);
    automaticTimer_.start(automaticTimerMs);
    QTimer::singleShot(firstAutomaticCheckMs, this, &Updater::checkIfDue);
}

Updater::~Updater()
{
    if (reply_)
        reply_->abort();
}

QString Updater::compiledFeedAddress()
{
    return QStringLiteral(MOPWELL_FEED_URL);
}

Updater::Build Updater::compiledBuild()
{
    return {QStringLiteral(MOPWELL_VERSION), QStringLiteral(MOPWELL_BUILD_VERSION)};
}

QString Updater::statusText() const
{
    return isConfigured() ? QString() : tr("Dev build");
}

bool Updater::automaticallyChecksForUpdates() const
{
    return defaults_->boolean(automaticKey).value_or(true);
}

void Updater::setAutomaticallyChecksForUpdates(bool enabled)
{
    if (enabled == automaticallyChecksForUpdates() && defaults_->contains(automaticKey))
        return;
    defaults_->set(automaticKey, enabled);
    emit automaticallyChecksForUpdatesChanged();
}

QString Updater::stateName() const
{
    switch (state_) {
    case State::idle: return QStringLiteral("idle");
    case State::checking: return QStringLiteral("checking");
    case State::available: return QStringLiteral("available");
    case State::upToDate: return QStringLiteral("upToDate");
    case State::failed: return QStringLiteral("failed");
    }
    return {};
}

void Updater::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    startCheck(true);
    emit presentationRequested();
}

void Updater::checkIfDue()
{
    if (!canCheckForUpdates() || !automaticallyChecksForUpdates())
        return;
    if (const auto last = defaults_->date(lastCheckKey)) {
        const auto age = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - *last);
        if (age.count() < secondsBetweenAutomaticChecks)
            return;
    }
    startCheck(false);
}

void Updater::startCheck(bool byUser)
{
    defaults_->set(lastCheckKey, Clock::now());
    state_ = State::checking;
    emit stateChanged();
    const QUrl address(feedAddress_);
    if (!address.isValid() || !AppcastFeed::isTrustedAddress(address)) {
        settle(State::failed, tr("The update feed isn't at a secure (HTTPS) address."));
        return;
    }
    QNetworkRequest request(address);
    request.setTransferTimeout(transferTimeoutMs);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Mopwell/%1").arg(build_.shortVersion));
    QNetworkReply* reply = network_.get(request);
    reply_ = reply;
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > largestFeed)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, byUser] { finish(reply, byUser); });
}

void Updater::finish(QNetworkReply* reply, bool byUser)
{
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        settle(State::failed, tr("Couldn't reach the update server: %1").arg(reply->errorString()));
        return;
    }
    const auto items = AppcastFeed::parse(reply->readAll());
    const auto newest = items ? AppcastFeed::newest(*items) : std::nullopt;
    if (!newest) {
        settle(State::failed, tr("The update information couldn't be read."));
        return;
    }
    latestVersion_ = newest->shortVersion;
    releaseNotesUrl_ = newest->releaseNotes;
    downloadUrl_ = newest->download;
    // A build whose own version can't be compared takes any release as newer.
    const std::string own = build_.version.toStdString();
    const bool newer = !AppcastFeed::isWellFormedVersion(own) ||
                       AppcastFeed::compareVersions(newest->version.toStdString(), own) > 0;
    settle(newer ? State::available : State::upToDate);
    if (newer && !byUser)
        emit presentationRequested();
}

void Updater::settle(State state, QString error)
{
    state_ = state;
    errorText_ = std::move(error);
    if (state != State::available && state != State::upToDate) {
        releaseNotesUrl_ = QUrl();
        downloadUrl_ = QUrl();
    }
    emit stateChanged();
}

bool Updater::openDownload() const
{
    return state_ == State::available && QDesktopServices::openUrl(downloadUrl_);
}

bool Updater::openReleaseNotes() const
{
    return state_ == State::available && !releaseNotesUrl_.isEmpty() && QDesktopServices::openUrl(releaseNotesUrl_);
}
