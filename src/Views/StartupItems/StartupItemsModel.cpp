#include "StartupItemsModel.h"

#include "MainThread.h"
#include "Platform/DesktopStartupSettings.h"
#include "Platform/FileSystem.h"
#include "Platform/PlatformProfile.h"
#include "Platform/Workspace.h"
#include "QtConversions.h"
#include "Services/AutostartEntries.h"
#include "WorkQueues.h"

#include <QDesktopServices>
#include <QPointer>
#include <QProcess>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace {

std::vector<StartupItem> allItems()
{
    std::vector<StartupItem> items = LaunchAgentManager::list();
    auto entries = AutostartEntries::list();
    std::move(entries.begin(), entries.end(), std::back_inserter(items));
    return items;
}

bool openLinuxStartupSettings()
{
    if (const auto command = DesktopStartupSettings::command()) {
        QStringList arguments;
        for (auto word = command->begin() + 1; word != command->end(); ++word)
            arguments.append(QString::fromStdString(*word));
        if (QProcess::startDetached(QString::fromStdString(command->front()), arguments))
            return true;
    }
    // A desktop without such settings still reads the folder: show it.
    const std::string folder = AutostartEntries::liveFolder();
    FileSystem::createFolders(folder);
    return Workspace::open(folder);
}

}  // namespace

StartupItemsModel::StartupItemsModel(QObject* parent) : QObject(parent) {}

QVariantList StartupItemsModel::itemList() const
{
    QVariantList rows;
    for (const StartupItem& item : items_) {
        rows.append(QVariantMap{
            {QStringLiteral("id"), QtConversions::toQt(item.id)},
            {QStringLiteral("label"), QtConversions::toQt(item.label)},
            {QStringLiteral("program"), QtConversions::toQt(item.program)},
            {QStringLiteral("enabled"), item.enabled},
            {QStringLiteral("fileName"), QtConversions::toQt(item.fileName)},
            {QStringLiteral("isAutostart"), item.kind == StartupItem::Kind::autostartEntry},
        });
    }
    return rows;
}

void StartupItemsModel::refresh()
{
    items_ = allItems();
    emit itemsChanged();
}

void StartupItemsModel::toggle(const QString& id)
{
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const StartupItem& item) { return QtConversions::toQt(item.id) == id; });
    if (found == items_.end())
        return;
    busyID_ = id;
    emit busyIDChanged();

    QPointer<StartupItemsModel> guard(this);
    WorkQueues::userInitiated().start([item = *found, tools = tools_, guard] {
        // The outcome shows in the list read afterwards.
        if (item.kind == StartupItem::Kind::autostartEntry)
            AutostartEntries::setEnabled(!item.enabled, item);
        else
            LaunchAgentManager::setEnabled(!item.enabled, item, tools);
        MainThread::post(guard, [](StartupItemsModel& model) { model.finishToggle(); });
    });
}

void StartupItemsModel::finishToggle()
{
    refresh();
    busyID_.clear();
    emit busyIDChanged();
}

bool StartupItemsModel::openStartupSettings()
{
    if (currentPlatformProfile() == PlatformProfile::macOS)
        return QDesktopServices::openUrl(QUrl(QStringLiteral("x-apple.systempreferences:com.apple.LoginItems-Settings.extension")));
    return openLinuxStartupSettings();
}
