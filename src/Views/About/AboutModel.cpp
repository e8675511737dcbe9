#include "AboutModel.h"

#include "AppModel.h"
#include "CatalogWords.h"
#include "Formatter.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/Workspace.h"
#include "QtConversions.h"
#include "Services/Updater.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include <algorithm>

using namespace QtConversions;

AboutModel::AboutModel(QObject* parent) : QObject(parent) {}

void AboutModel::setModel(AppModel* model)
{
    if (model_ == model)
        return;
    if (model_)
        disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    if (model_) {
        connect(model_, &AppModel::historyChanged, this, &AboutModel::historyChanged);
        connect(model_, &AppModel::totalFreedAllTimeChanged, this, &AboutModel::totalChanged);
    }
    emit modelChanged();
    emit historyChanged();
    emit totalChanged();
}

QString AboutModel::versionText()
{
    const Updater::Build build = Updater::compiledBuild();
    return tr("Version %1 (%2)").arg(build.shortVersion, build.version);
}

QString AboutModel::totalText() const
{
    return toQt(ByteCountFormatter::string(model_ ? model_->totalFreedAllTime() : 0));
}

int AboutModel::count() const
{
    return model_ ? static_cast<int>(model_->history().size()) : 0;
}

QVariantList AboutModel::history() const
{
    QVariantList rows;
    if (!model_)
        return rows;
    for (const CleanRecord& record : model_->history()) {
        const bool restored = record.restored.value_or(false);
        const QString name = CatalogWords::recordedName(record.targetName);
        rows.append(QVariantMap{
            {"id", QString::fromStdString(record.id.string())},
            {"name", name},
            {"dateText", Formatter::mediumDateTime(toQt(std::optional(record.date)).toLocalTime())},
            {"freedText", toQt(ByteCountFormatter::string(record.freed))},
            {"trashed", record.trashed},
            {"restored", restored},
            {"restorable", !restored && record.trashed && record.items && !record.items->empty()},
        });
    }
    return rows;
}

void AboutModel::restore(const QString& id)
{
    if (!model_)
        return;
    const auto& history = model_->history();
    const auto record = std::find_if(history.begin(), history.end(), [&](const CleanRecord& candidate) {
        return QString::fromStdString(candidate.id.string()) == id;
    });
    if (record == history.end())
        return;
    const CleanRecord chosen = *record;  // restore() changes the list it lies in
    model_->restore(chosen);
}

void AboutModel::clear()
{
    if (model_)
        model_->clearHistory();
}

bool AboutModel::openTrash() const
{
    return Workspace::openTrash();
}

bool AboutModel::openWebsite() const
{
    return QDesktopServices::openUrl(QUrl(QString::fromLatin1(website)));
}
