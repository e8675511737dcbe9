#include "AppUpdatesModel.h"

#include "MainThread.h"
#include "Platform/PlatformProfile.h"
#include "Services/FlatpakUpdater.h"
#include "Services/HomebrewUpdater.h"
#include "Services/NameOrder.h"
#include "WorkQueues.h"

#include <QPointer>

#include <algorithm>

namespace {

using Sources = AppUpdatesModel::Sources;

Sources lookForSources(Sources tried)
{
    return {tried.homebrew && HomebrewUpdater::isInstalled(), tried.flatpak && FlatpakUpdater::isInstalled()};
}

std::vector<OutdatedPackage> outdatedPackages(Sources sources)
{
    std::vector<OutdatedPackage> packages;
    if (sources.homebrew)
        packages = HomebrewUpdater::outdated();
    if (sources.flatpak) {
        auto apps = FlatpakUpdater::outdated();
        std::move(apps.begin(), apps.end(), std::back_inserter(packages));
    }
    std::stable_sort(packages.begin(), packages.end(), [](const OutdatedPackage& a, const OutdatedPackage& b) {
        return NameOrder::caseInsensitiveLess(a.displayName(), b.displayName());
    });
    return packages;
}

ShellResult upgradeOne(const OutdatedPackage& package)
{
    return package.kind == OutdatedPackage::Kind::flatpakApp ? FlatpakUpdater::upgrade(package)
                                                            : HomebrewUpdater::upgrade(package);
}

const char* symbolFor(OutdatedPackage::Kind kind)
{
    return kind == OutdatedPackage::Kind::formula ? "terminal" : "app.dashed";
}

}  // namespace

AppUpdatesModel::AppUpdatesModel(QObject* parent) : QObject(parent)
{
    // Homebrew runs wherever it is installed; Flatpak is a Linux desktop's own.
    tried_ = {true, currentPlatformProfile() == PlatformProfile::linuxDesktop};
}

QVariantList AppUpdatesModel::packageList() const
{
    QVariantList rows;
    for (const OutdatedPackage& package : packages_) {
        rows.append(QVariantMap{
            {QStringLiteral("id"), QString::fromStdString(package.id())},
            {QStringLiteral("name"), QString::fromStdString(package.displayName())},
            {QStringLiteral("installed"), QString::fromStdString(package.installed)},
            {QStringLiteral("current"), QString::fromStdString(package.current)},
            {QStringLiteral("isCask"), package.isCask()},
            {QStringLiteral("isApp"), package.isApp()},
            {QStringLiteral("symbol"), QString::fromLatin1(symbolFor(package.kind))},
        });
    }
    return rows;
}

QString AppUpdatesModel::stateName() const
{
    switch (state_) {
    case State::idle:
        return QStringLiteral("idle");
    case State::checking:
        return QStringLiteral("checking");
    case State::ready:
        return QStringLiteral("ready");
    case State::unavailable:
        break;
    }
    return QStringLiteral("unavailable");
}

AppUpdatesModel::Sources AppUpdatesModel::shownSources() const
{
    return checked_ && found_.any() ? found_ : tried_;
}

QString AppUpdatesModel::headerText() const
{
    const Sources sources = shownSources();
    if (sources.homebrew && sources.flatpak)
        return tr("Outdated apps and tools you installed with Homebrew or Flatpak. Mopwell never bundles installers "
                  "or updates silently — it just runs your own `brew upgrade` or `flatpak update` when you ask.");
    if (sources.flatpak)
        return tr("Outdated apps you installed with Flatpak. Mopwell never bundles installers or updates silently — "
                  "it just runs your own `flatpak update` when you ask.");
    return tr("Outdated apps and tools you installed with Homebrew. Mopwell never bundles installers or updates "
              "silently — it just runs your own `brew upgrade` when you ask.");
}

QString AppUpdatesModel::checkingText() const
{
    return tried_.flatpak ? tr("Checking with Homebrew and Flatpak…") : tr("Checking with Homebrew…");
}

QString AppUpdatesModel::unavailableTitle() const
{
    return tried_.flatpak ? tr("Neither Homebrew nor Flatpak is installed") : tr("Homebrew isn't installed");
}

QVariantList AppUpdatesModel::installLinks() const
{
    QVariantList links{QVariantMap{{QStringLiteral("text"), tr("Get Homebrew at brew.sh")},
                                   {QStringLiteral("url"), QStringLiteral("https://brew.sh")}}};
    if (tried_.flatpak) {
        links.append(QVariantMap{{QStringLiteral("text"), tr("Get Flatpak at flatpak.org")},
                                 {QStringLiteral("url"), QStringLiteral("https://flatpak.org/setup/")}});
    }
    return links;
}

void AppUpdatesModel::checkIfIdle()
{
    if (state_ == State::idle)
        check();
}

void AppUpdatesModel::check()
{
    setState(State::checking);
    QPointer<AppUpdatesModel> guard(this);
    WorkQueues::userInitiated().start([tried = tried_, guard] {
        const Sources found = lookForSources(tried);
        auto packages = found.any() ? outdatedPackages(found) : std::vector<OutdatedPackage>{};
        MainThread::post(guard, [found, packages = std::move(packages)](AppUpdatesModel& model) {
            model.receiveCheck(found, packages);
        });
    });
}

void AppUpdatesModel::receiveCheck(Sources found, std::vector<OutdatedPackage> packages)
{
    found_ = found;
    checked_ = true;
    emit sourcesChanged();
    // With no package manager the list keeps what it had: it is not shown in that state.
    if (!found.any()) {
        setState(State::unavailable);
        return;
    }
    setPackages(std::move(packages));
    setState(State::ready);
}

void AppUpdatesModel::upgrade(const QString& id)
{
    const auto found = std::find_if(packages_.begin(), packages_.end(),
                                    [&](const OutdatedPackage& p) { return QString::fromStdString(p.id()) == id; });
    if (found == packages_.end() || busy_)
        return;
    const OutdatedPackage package = *found;
    const QString name = QString::fromStdString(package.displayName());
    setBusy(true);
    setStatus(tr("Updating %1…").arg(name));
    QPointer<AppUpdatesModel> guard(this);
    WorkQueues::userInitiated().start([package, sources = found_, name, guard] {
        const bool succeeded = upgradeOne(package).status == 0;
        auto packages = outdatedPackages(sources);
        MainThread::post(guard, [succeeded, name, packages = std::move(packages)](AppUpdatesModel& model) {
            model.setPackages(packages);
            model.setStatus(succeeded ? tr("Updated %1.").arg(name) : tr("Couldn't update %1.").arg(name));
            model.setBusy(false);
        });
    });
}

void AppUpdatesModel::upgradeAll()
{
    if (!canUpgradeAll())
        return;
    setBusy(true);
    setStatus(tr("Updating everything…"));
    QPointer<AppUpdatesModel> guard(this);
    WorkQueues::userInitiated().start([sources = found_, guard] {
        if (sources.homebrew)
            HomebrewUpdater::upgradeAll();
        if (sources.flatpak)
            FlatpakUpdater::upgradeAll();
        auto packages = outdatedPackages(sources);
        MainThread::post(guard, [packages = std::move(packages)](AppUpdatesModel& model) {
            model.setPackages(packages);
            // Whatever the commands said: the list now shows what is still out of date.
            model.setStatus(tr("Done."));
            model.setBusy(false);
        });
    });
}

void AppUpdatesModel::setState(State state)
{
    if (state_ == state)
        return;
    state_ = state;
    emit stateChanged();
    emit canUpgradeAllChanged();
}

void AppUpdatesModel::setBusy(bool busy)
{
    if (busy_ == busy)
        return;
    busy_ = busy;
    emit busyChanged();
    emit canUpgradeAllChanged();
}

void AppUpdatesModel::setStatus(const QString& status)
{
    if (status_ == status)
        return;
    status_ = status;
    emit statusChanged();
}

void AppUpdatesModel::setPackages(std::vector<OutdatedPackage> packages)
{
    packages_ = std::move(packages);
    emit packagesChanged();
    emit canUpgradeAllChanged();
}
