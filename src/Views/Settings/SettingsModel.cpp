#include "SettingsModel.h"

#include "AppModel.h"
#include "Platform/Clock.h"
#include "QtConversions.h"
#include "Services/AppLanguage.h"
#include "Services/LoginItem.h"


namespace {

// Appends `path` once; true when the list changed.
bool appendOnce(QStringList& list, const QString& path)
{
    if (path.isEmpty() || list.contains(path))
        return false;
    list.append(path);
    return true;
}

}  // namespace

SettingsModel::SettingsModel(QObject* parent) : QObject(parent), loginAtStart_(LoginItem::isEnabled()) {}

void SettingsModel::setModel(AppModel* model)
{
    if (model_ == model)
        return;
    model_ = model;
    emit modelChanged();
    emit languageChanged();
}

bool SettingsModel::loginAvailable() const
{
    return LoginItem::isAvailable();
}

void SettingsModel::setLoginAtStart(bool enabled)
{
    loginAtStart_ = enabled;
    emit loginAtStartChanged();
    try {
        LoginItem::setEnabled(enabled);
        setLoginError(QString());
    } catch (const LoginItem::Error& error) {
        setLoginError(error.localizedDescription());
        loginAtStart_ = LoginItem::isEnabled();
        emit loginAtStartChanged();
    }
}

void SettingsModel::setLoginError(const QString& error)
{
    if (loginError_ == error)
        return;
    loginError_ = error;
    emit loginErrorChanged();
}

void SettingsModel::setFolderError(const QString& error)
{
    if (folderError_ == error)
        return;
    folderError_ = error;
    emit folderErrorChanged();
}

QVariantList SettingsModel::languages() const
{
    QVariantList languages{QVariantMap{{"code", QString()}, {"name", tr("System default")}}};
    for (const QString& code : AppLanguage::available())
        languages.append(QVariantMap{{"code", code}, {"name", AppLanguage::displayName(code)}});
    return languages;
}

QString SettingsModel::language() const
{
    return model_ ? AppLanguage::current(*model_->settings()->defaults()) : QString();
}

void SettingsModel::setLanguage(const QString& code)
{
    if (!model_)
        return;
    relaunchNeeded_ = AppLanguage::set(*model_->settings()->defaults(), code);
    emit languageChanged();
}

void SettingsModel::relaunch()
{
    AppLanguage::relaunch();
}

void SettingsModel::setRefreshInterval(int seconds)
{
    if (!model_)
        return;
    model_->settings()->setRefreshInterval(seconds);
    model_->restartTimer();
}

void SettingsModel::setCleanupSchedule(const QString& schedule)
{
    if (!model_)
        return;
    model_->settings()->setCleanupScheduleRawValue(schedule);
    model_->settings()->setLastAutoCleanup(Clock::now());
}

void SettingsModel::setFinderMinAgeDays(int days)
{
    if (!model_)
        return;
    model_->settings()->setFinderMinAgeDays(days);
    model_->rebuildTargets();
}

QString SettingsModel::minimumAgeText(int days)
{
    if (days == 0)
        return tr("Any age");
    return days == 1 ? tr("%1 day").arg(days) : tr("%1 days").arg(days);
}

QString SettingsModel::pathOf(const QUrl& folder)
{
    if (!folder.isLocalFile())
        return folder.toString();
    // Decoded from the URL's bytes, so a name that isn't UTF-8 still names its folder.
    const QByteArray bytes = QByteArray::fromPercentEncoding(folder.path(QUrl::FullyEncoded).toLatin1());
    return QtConversions::toQt(bytes.toStdString());
}

void SettingsModel::addCustomFolder(const QUrl& folder)
{
    if (!model_)
        return;
    const auto refusal = model_->addCustomFolder(pathOf(folder));
    setFolderError(refusal.value_or(QString()));
}

void SettingsModel::removeCustomFolder(const QString& path)
{
    if (model_)
        model_->removeCustomFolder(path);
}

void SettingsModel::editList(QStringList (AppSettings::*read)() const, void (AppSettings::*write)(const QStringList&),
                             const std::function<bool(QStringList&)>& edit)
{
    if (!model_)
        return;
    AppSettings* settings = model_->settings();
    QStringList list = (settings->*read)();
    if (!edit(list))
        return;
    (settings->*write)(list);
    model_->rebuildTargets();
}

void SettingsModel::addPinnedFolder(const QUrl& folder)
{
    const QString path = pathOf(folder);
    editList(&AppSettings::ignoredFinderPaths, &AppSettings::setIgnoredFinderPaths,
             [&](QStringList& list) { return appendOnce(list, path); });
}

void SettingsModel::removePinnedFolder(const QString& path)
{
    editList(&AppSettings::ignoredFinderPaths, &AppSettings::setIgnoredFinderPaths,
             [&](QStringList& list) { return list.removeAll(path) > 0; });
}

void SettingsModel::addProjectFolder(const QUrl& folder)
{
    const QString path = pathOf(folder);
    editList(&AppSettings::projectRoots, &AppSettings::setProjectRoots,
             [&](QStringList& list) { return appendOnce(list, path); });
}

void SettingsModel::removeProjectFolder(const QString& path)
{
    editList(&AppSettings::projectRoots, &AppSettings::setProjectRoots,
             [&](QStringList& list) { return list.removeAll(path) > 0; });
}
