#include "AppModel.h"

#include "Models/CleanupCatalog.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/DefaultsStore.h"
#include "Platform/Paths.h"
#include "QtConversions.h"
#include "Services/AppSettings.h"
#include "Services/CleanHistoryStore.h"
#include "Services/Notifier.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

using namespace QtConversions;

namespace {

std::int64_t knownSize(const TargetState& state) { return state.size.value_or(0); }

SimpleGroup makeGroup(std::string id, std::string title, std::string symbol,
                      const std::vector<const TargetState*>& members)
{
    SimpleGroup group{std::move(id), std::move(title), std::move(symbol), {}, 0, false};
    for (const TargetState* member : members) {
        group.targetIDs.push_back(member->id());
        group.size += knownSize(*member);
        group.isScanning = group.isScanning || member->isScanning;
    }
    return group;
}

}  // namespace

AppModel& AppModel::shared()
{
    // Lives for the whole process: windows and background flows may reach it until exit.
    static AppModel* const instance = new AppModel(DefaultsStore::standard());
    return *instance;
}

AppModel::AppModel(std::shared_ptr<DefaultsStore> defaults, PlatformProfile profile, QObject* parent)
    : QObject(parent), disk_(DiskInfo::current(Paths::home())), profile_(profile)
{
    settings_ = new AppSettings(defaults, this);
    defaults_ = std::move(defaults);
    rebuildTargets();
    auto loaded = CleanHistoryStore::load(*defaults_);
    history_ = std::move(loaded.history);
    totalFreedAllTime_ = loaded.total;
    Notifier::requestAuthorization();
    connect(settings_, &AppSettings::disabledTargetIDsChanged, this, &AppModel::changed);
    connect(settings_, &AppSettings::menuBarDisplayChanged, this, &AppModel::changed);
    connect(settings_, &AppSettings::lowSpaceThresholdGBChanged, this, &AppModel::changed);
}

AppModel::~AppModel() = default;

void AppModel::setLargeFilesTab(int tab)
{
    largeFilesTab_ = tab;
    emit largeFilesTabChanged();
    emit changed();
}

QDateTime AppModel::lastScanDateTime() const
{
    return toQt(lastScan_);
}

void AppModel::rebuildTargets()
{
    // A hand-edited custom folder list may name one path twice; either size will do then.
    std::unordered_map<std::string, std::optional<std::int64_t>> knownSizes;
    for (const auto& state : targets_)
        knownSizes.emplace(state.id(), state.size);

    std::vector<TargetState> rebuilt;
    for (auto& target : CleanupCatalog::liveTargets(settings_->targetListSettings(), profile_)) {
        const auto known = knownSizes.find(target.id);
        const auto size = known == knownSizes.end() ? std::nullopt : known->second;
        rebuilt.push_back(TargetState{std::move(target), size, false, false});
    }
    publishTargets(std::move(rebuilt));
}

void AppModel::publishTargets(std::vector<TargetState> targets)
{
    targets_ = std::move(targets);
    emit targetsChanged();
    emit changed();
}

void AppModel::refreshDisk()
{
    const DiskInfo current = DiskInfo::current(Paths::home());
    if (current == disk_)
        return;
    disk_ = current;
    emit diskChanged();
    emit changed();
}

void AppModel::start()
{
    if (didStart_) {
        refreshDiskAndCheckSpace();
        return;
    }
    didStart_ = true;
    refreshDiskAndCheckSpace();
    restartTimer();
    startCacheWatcher();
    scanAll();  // runs on by itself and stamps lastScan when done
    runScheduledCleanupIfDue();
}

std::int64_t AppModel::totalReclaimable() const
{
    std::int64_t total = 0;
    for (const auto& state : targets_) {
        if (settings_->isEnabled(toQt(state.id())))
            total += knownSize(state);
    }
    return total;
}

std::vector<AppModel::CategoryGroup> AppModel::groupedTargets() const
{
    std::vector<CategoryGroup> groups;
    for (CleanupCategory category : CleanupCategories::all) {
        std::vector<TargetState> members;
        std::copy_if(targets_.begin(), targets_.end(), std::back_inserter(members),
                     [category](const TargetState& state) { return state.target.category == category; });
        if (members.empty())
            continue;
        if (settings_->sortBySize()) {
            std::stable_sort(members.begin(), members.end(), [](const TargetState& a, const TargetState& b) {
                return knownSize(a) > knownSize(b);
            });
        }
        groups.emplace_back(category, std::move(members));
    }
    return groups;
}

std::vector<SimpleGroup> AppModel::simpleGroups() const
{
    std::vector<const TargetState*> caches, browsers, trash;
    for (const auto& state : targets_) {
        if (state.target.category == CleanupCategory::recommended)
            (state.id() == "trash" ? trash : caches).push_back(&state);
        else if (state.target.category == CleanupCategory::browsers)
            browsers.push_back(&state);
    }
    std::vector<SimpleGroup> groups;
    if (!caches.empty())
        groups.push_back(
            makeGroup("syscaches", QT_TRANSLATE_NOOP("SimpleGroup", "System & app caches"), "shippingbox.fill", caches));
    if (!browsers.empty())
        groups.push_back(makeGroup("browsers", QT_TRANSLATE_NOOP("SimpleGroup", "Browser caches"), "safari.fill", browsers));
    if (!trash.empty())
        groups.push_back(makeGroup("trash", QT_TRANSLATE_NOOP("SimpleGroup", "Trash"), "trash.fill", trash));
    return groups;
}

void AppModel::setGroupEnabled(bool enabled, const SimpleGroup& group)
{
    for (const auto& id : group.targetIDs)
        settings_->setEnabled(enabled, toQt(id));
    emit changed();
}

bool AppModel::isGroupEnabled(const SimpleGroup& group) const
{
    return std::none_of(group.targetIDs.begin(), group.targetIDs.end(),
                        [this](const std::string& id) { return !settings_->isEnabled(toQt(id)); });
}

bool AppModel::isScanning() const
{
    return std::any_of(targets_.begin(), targets_.end(), [](const TargetState& state) { return state.isScanning; });
}

QString AppModel::menuBarText() const
{
    switch (settings_->menuBarDisplay()) {
    case MenuBarDisplay::percent: {
        if (disk_.total < 1)
            return QStringLiteral("0%");
        const double used = static_cast<double>(std::max<std::int64_t>(0, disk_.total - disk_.availableImportant));
        return QString::number(std::llround(used / static_cast<double>(disk_.total) * 100.0)) + "%";
    }
    case MenuBarDisplay::free:
        return toQt(ByteCountFormatter::menuBarString(disk_.availableImportant));
    case MenuBarDisplay::icon:
        break;
    }
    return {};
}

void AppModel::setGroupEnabledById(bool enabled, const QString& groupId)
{
    for (const auto& group : simpleGroups()) {
        if (toQt(group.id) == groupId)
            setGroupEnabled(enabled, group);
    }
}

bool AppModel::isGroupEnabledById(const QString& groupId) const
{
    for (const auto& group : simpleGroups()) {
        if (toQt(group.id) == groupId)
            return isGroupEnabled(group);
    }
    return false;
}
