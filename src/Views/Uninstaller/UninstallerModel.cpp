#include "UninstallerModel.h"

#include "MainThread.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/Paths.h"
#include "Platform/ThemeIcon.h"
#include "QtConversions.h"
#include "Services/LinuxApps.h"
#include "WorkQueues.h"

#include <QTimer>
#include <QUrl>
#include <QVariantMap>

using QtConversions::toQt;

namespace {

QString iconSource(const AppInfo& app)
{
    if (!app.icon)
        return {};
    const auto file = ThemeIcon::find(*app.icon);
    return file ? QUrl::fromLocalFile(toQt(*file)).toString() : QString();
}

// The kinds of item the engine names, for the translators.
[[maybe_unused]] constexpr const char* itemLabels[] = {
    QT_TRANSLATE_NOOP("UninstallerModel", "Application"),     QT_TRANSLATE_NOOP("UninstallerModel", "Preferences"),
    QT_TRANSLATE_NOOP("UninstallerModel", "App cache"),       QT_TRANSLATE_NOOP("UninstallerModel", "Application support"),
    QT_TRANSLATE_NOOP("UninstallerModel", "Container"),       QT_TRANSLATE_NOOP("UninstallerModel", "Saved state"),
    QT_TRANSLATE_NOOP("UninstallerModel", "Logs"),            QT_TRANSLATE_NOOP("UninstallerModel", "Web storage"),
    QT_TRANSLATE_NOOP("UninstallerModel", "WebKit data"),     QT_TRANSLATE_NOOP("UninstallerModel", "Cookies"),
    QT_TRANSLATE_NOOP("UninstallerModel", "App scripts"),     QT_TRANSLATE_NOOP("UninstallerModel", "Group container"),
    QT_TRANSLATE_NOOP("UninstallerModel", "Launch agent"),    QT_TRANSLATE_NOOP("UninstallerModel", "Menu entry"),
    QT_TRANSLATE_NOOP("UninstallerModel", "Icon"),
};

}  // namespace

UninstallerModel::UninstallerModel(QObject* parent) : UninstallerModel(currentPlatformProfile(), parent) {}

UninstallerModel::UninstallerModel(PlatformProfile profile, QObject* parent) : QObject(parent), profile_(profile) {}

void UninstallerModel::setModel(AppModel* model)
{
    if (model_ == model)
        return;
    model_ = model;
    emit modelChanged();
}

QString UninstallerModel::appName() const { return app_ ? toQt(app_->name) : QString(); }

QString UninstallerModel::appIdentifier() const
{
    return app_ && app_->bundleID ? toQt(*app_->bundleID) : QString();
}

QString UninstallerModel::appIconSource() const { return app_ ? iconSource(*app_) : QString(); }

QVariantList UninstallerModel::itemList() const
{
    QVariantList list;
    list.reserve(qsizetype(items_.size()));
    for (const UninstallItem& item : items_) {
        list.append(QVariantMap{{QStringLiteral("id"), toQt(item.id.string())},
                                {QStringLiteral("label"), tr(item.label.c_str())},
                                {QStringLiteral("path"), toQt(Paths::abbreviatingWithTilde(item.path))},
                                {QStringLiteral("size"), qint64(item.size)},
                                {QStringLiteral("isBundle"), item.isBundle},
                                {QStringLiteral("selected"), selected_.contains(item.id)}});
    }
    return list;
}

qint64 UninstallerModel::totalSelectedSize() const
{
    qint64 total = 0;
    for (const UninstallItem& item : items_) {
        if (selected_.contains(item.id))
            total += item.size;
    }
    return total;
}

QVariantList UninstallerModel::installedApps() const
{
    QVariantList list;
    for (const AppInfo& app : installedApps_) {
        list.append(QVariantMap{{QStringLiteral("name"), toQt(app.name)},
                                {QStringLiteral("identifier"), app.bundleID ? toQt(*app.bundleID) : QString()},
                                {QStringLiteral("iconSource"), iconSource(app)}});
    }
    return list;
}

void UninstallerModel::setMessageLifetime(int milliseconds)
{
    if (messageLifetime_ == milliseconds)
        return;
    messageLifetime_ = milliseconds;
    emit messageLifetimeChanged();
}

void UninstallerModel::chooseApp()
{
    if (!listsApps()) {
        emit filePickRequested(QStringLiteral("/Applications"));
        return;
    }
    installedApps_ = LinuxApps::installed();
    emit installedAppsChanged();
    emit appListRequested();
}

void UninstallerModel::chooseOtherFile() { emit filePickRequested(toQt(Paths::home())); }

void UninstallerModel::loadListed(int index)
{
    if (index < 0 || std::size_t(index) >= installedApps_.size())
        return;
    const std::string path = installedApps_[std::size_t(index)].appPath;
    load(path);
}

std::optional<QString> UninstallerModel::refusal(const std::string& appPath) const
{
    if (profile_ == PlatformProfile::macOS) {
        if (Uninstaller::isProtectedSystemApp(appPath, profile_))
            return tr("That's a protected system app and can't be removed.");
        return std::nullopt;
    }
    const auto reason = LinuxApps::refusal(appPath);
    if (!reason)
        return std::nullopt;
    switch (*reason) {
    case LinuxApps::Refusal::systemApp:
        return tr("That app came with your system, not your home folder. Remove it with your software centre.");
    case LinuxApps::Refusal::sharedFolder:
        return tr("That's a shared folder of your home, not an app, so it can't be removed.");
    }
    return std::nullopt;
}

void UninstallerModel::load(const std::string& appPath)
{
    if (auto refused = refusal(appPath)) {
        setResultMessage(std::move(refused));
        return;
    }
    AppInfo app = Uninstaller::inspect(appPath, profile_);
    // A desktop entry may start something that lies outside the home.
    if (app.appPath != appPath) {
        if (auto refused = refusal(app.appPath)) {
            setResultMessage(std::move(refused));
            return;
        }
    }
    setResultMessage(std::nullopt);
    app_ = app;
    items_.clear();
    selected_.clear();
    emit appChanged();
    emit itemsChanged();
    setScanning(true);

    if (scanToken_)
        scanToken_->cancel();
    auto token = std::make_shared<CancelToken>();
    scanToken_ = token;
    // The job owns copies; its result finds the model through a guard, or is dropped.
    const QPointer<UninstallerModel> guard = this;
    WorkQueues::userInitiated().start([app = std::move(app), profile = profile_, token, guard] {
        std::vector<UninstallItem> found = Uninstaller::leftovers(app, profile);
        MainThread::post(guard, [token, found = std::move(found)](UninstallerModel& model) {
            model.receiveLeftovers(token, found);
        });
    });
}

void UninstallerModel::receiveLeftovers(const std::shared_ptr<CancelToken>& token, std::vector<UninstallItem> items)
{
    // A search for an app that has since been replaced or put away.
    if (token != scanToken_ || token->isCancelled())
        return;
    items_ = std::move(items);
    selected_.clear();
    for (const UninstallItem& item : items_)
        selected_.insert(item.id);
    emit itemsChanged();
    setScanning(false);
}

void UninstallerModel::toggle(const Uuid& id)
{
    if (selected_.erase(id) == 0) {
        const bool known = std::any_of(items_.begin(), items_.end(), [&id](const UninstallItem& item) { return item.id == id; });
        if (!known)
            return;
        selected_.insert(id);
    }
    emit itemsChanged();
}

void UninstallerModel::toggleItem(const QString& id)
{
    if (const auto uuid = Uuid::parse(id.toStdString()))
        toggle(*uuid);
}

void UninstallerModel::toggleSelectAll()
{
    if (allSelected()) {
        selected_.clear();
    } else {
        for (const UninstallItem& item : items_)
            selected_.insert(item.id);
    }
    emit itemsChanged();
}

void UninstallerModel::reset()
{
    if (scanToken_)
        scanToken_->cancel();
    scanToken_.reset();
    const bool hadApp = app_.has_value();
    app_.reset();
    items_.clear();
    selected_.clear();
    setScanning(false);
    setResultMessage(std::nullopt);
    if (hadApp)
        emit appChanged();
    emit itemsChanged();
}

void UninstallerModel::uninstall()
{
    std::vector<std::string> paths;
    for (const UninstallItem& item : items_) {
        if (selected_.contains(item.id))
            paths.push_back(item.path);
    }
    if (paths.empty() || !app_ || isRemoving_)
        return;
    setRemoving(true);
    const QString name = toQt(app_->name);
    const PlatformProfile profile = profile_;
    // The history is the application model's: it learns of the removal even when this window
    // has been closed meanwhile.
    const QPointer<AppModel> appModel = model_;
    const QPointer<UninstallerModel> guard = this;
    WorkQueues::userInitiated().start([paths = std::move(paths), profile, name, appModel, guard] {
        const Uninstaller::RemoveResult result = Uninstaller::remove(paths, profile);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [result, name, appModel, guard] {
                if (appModel)
                    appModel->recordExternalDeletion(tr("Uninstalled %1").arg(name).toStdString(), result.freed,
                                                     result.trashed);
                if (guard)
                    guard->finishRemoval(name, result);
            },
            Qt::QueuedConnection);
    });
}

void UninstallerModel::finishRemoval(const QString& name, const Uninstaller::RemoveResult& result)
{
    setRemoving(false);
    reset();
    if (result.freed >= 1)
        showResultForAWhile(tr("Removed %1 — freed %2. Items are in the Trash.")
                                .arg(name, toQt(ByteCountFormatter::string(result.freed))));
    else
        showResultForAWhile(tr("Couldn't remove %1.").arg(name));
}

void UninstallerModel::setResultMessage(std::optional<QString> message)
{
    ++messageGeneration_;
    if (resultMessage_ == message)
        return;
    resultMessage_ = std::move(message);
    emit resultMessageChanged();
}

void UninstallerModel::showResultForAWhile(const QString& message)
{
    setResultMessage(message);
    const std::uint64_t generation = messageGeneration_;
    QTimer::singleShot(messageLifetime_, this, [this, generation] {
        if (messageGeneration_ == generation)
            setResultMessage(std::nullopt);
    });
}

void UninstallerModel::setScanning(bool scanning)
{
    if (isScanning_ == scanning)
        return;
    isScanning_ = scanning;
    emit isScanningChanged();
}

void UninstallerModel::setRemoving(bool removing)
{
    if (isRemoving_ == removing)
        return;
    isRemoving_ = removing;
    emit isRemovingChanged();
}
