#include "ProjectCleanupModel.h"

#include "Models/TrashedItem.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
#include "Platform/Workspace.h"
#include "QtConversions.h"
#include "Services/Cleaner.h"

#include <QVariantMap>

#include <algorithm>
#include <utility>

using QtConversions::toQt;
using QtConversions::toStd;

namespace {

// Sizes stream in a folder at a time; the list is rebuilt at most this often meanwhile.
constexpr int publishIntervalMs = 40;

bool olderFirst(const std::optional<Clock::TimePoint>& a, const std::optional<Clock::TimePoint>& b)
{
    // Undated counts as the far future, so it comes last.
    if (!a || !b)
        return a.has_value() && !b.has_value();
    return *a < *b;
}

}  // namespace

ProjectCleanupModel::ProjectCleanupModel(QObject* parent) : QObject(parent)
{
    publishTimer_.setSingleShot(true);
    publishTimer_.setInterval(publishIntervalMs);
    connect(&publishTimer_, &QTimer::timeout, this, [this] {
        if (std::exchange(publishPending_, false))
            publishNow();
    });
}

void ProjectCleanupModel::setModel(AppModel* model)
{
    if (model_ == model)
        return;
    if (model_)
        disconnect(model_->settings(), nullptr, this, nullptr);
    model_ = model;
    if (model_) {
        // The label names the code folders, which the settings window may change meanwhile.
        connect(model_->settings(), &AppSettings::projectRootsChanged, this, &ProjectCleanupModel::scanStateChanged);
    }
    emit modelChanged();
    emit scanStateChanged();
}

std::vector<ProjectDir> ProjectCleanupModel::dirs() const
{
    std::vector<ProjectDir> list;
    list.reserve(found_.size());
    for (const Found& found : found_)
        list.push_back(found.dir);
    return list;
}

bool ProjectCleanupModel::isMeasured(const std::string& path) const
{
    const Found* found = find(path);
    return found && found->measured;
}

void ProjectCleanupModel::setSortByAge(bool byAge)
{
    if (sortByAge_ == byAge)
        return;
    sortByAge_ = byAge;
    emit orderChanged();
    publishNow(true);
}

void ProjectCleanupModel::setGroupByProject(bool grouped)
{
    if (groupByProject_ == grouped)
        return;
    groupByProject_ = grouped;
    emit orderChanged();
    publishNow(true);
}

void ProjectCleanupModel::setActiveKinds(std::set<std::string> kinds)
{
    if (activeKinds_ == kinds)
        return;
    activeKinds_ = std::move(kinds);
    emit kindsChanged();
    publishNow(true);
}

void ProjectCleanupModel::toggleKind(const QString& kindID)
{
    std::set<std::string> kinds = activeKinds_;
    if (!kinds.erase(toStd(kindID)))
        kinds.insert(toStd(kindID));
    setActiveKinds(std::move(kinds));
}

std::vector<std::string> ProjectCleanupModel::effectiveRoots() const
{
    if (overrideRoot_)
        return {*overrideRoot_};
    if (model_ && !model_->settings()->projectRoots().isEmpty())
        return toStd(model_->settings()->projectRoots());
    return {Paths::home()};
}

QString ProjectCleanupModel::rootsLabel() const
{
    QStringList labels;
    for (const std::string& root : effectiveRoots())
        labels.append(toQt(Paths::abbreviatingWithTilde(Paths::expandingTilde(root))));
    return labels.join(QStringLiteral(", "));
}

std::vector<ProjectCleanupModel::KindFacet> ProjectCleanupModel::kindFacets() const
{
    std::vector<KindFacet> facets;
    for (const Found& found : found_) {
        const auto facet = std::find_if(facets.begin(), facets.end(),
                                        [&](const KindFacet& known) { return known.id == found.dir.kindID; });
        if (facet != facets.end())
            ++facet->count;
        else
            facets.push_back({found.dir.kindID, found.dir.kindLabel, 1});
    }
    return facets;
}

QVariantList ProjectCleanupModel::kindFacetList() const
{
    QVariantList list;
    for (const KindFacet& facet : kindFacets()) {
        list.append(QVariantMap{{QStringLiteral("id"), toQt(facet.id)},
                                {QStringLiteral("label"), QtConversions::translated("BuildArtifactType", facet.label)},
                                {QStringLiteral("count"), facet.count},
                                {QStringLiteral("active"), activeKinds_.contains(facet.id)}});
    }
    return list;
}

bool ProjectCleanupModel::isVisible(const ProjectDir& dir) const
{
    return activeKinds_.empty() || activeKinds_.contains(dir.kindID);
}

std::vector<const ProjectCleanupModel::Found*> ProjectCleanupModel::sortedFound() const
{
    std::vector<const Found*> list;
    for (const Found& found : found_) {
        if (isVisible(found.dir))
            list.push_back(&found);
    }
    if (sortByAge_) {
        std::stable_sort(list.begin(), list.end(),
                         [](const Found* a, const Found* b) { return olderFirst(a->dir.modified, b->dir.modified); });
    } else {
        // A folder still being measured counts as 0 until its size comes.
        std::stable_sort(list.begin(), list.end(), [](const Found* a, const Found* b) { return a->dir.size > b->dir.size; });
    }
    return list;
}

std::vector<ProjectCleanupModel::FoundGroup> ProjectCleanupModel::foundGroups() const
{
    std::vector<FoundGroup> groups;
    for (const Found* found : sortedFound()) {
        const std::string parent = Paths::parentFolder(found->dir.path);
        const auto group = std::find_if(groups.begin(), groups.end(),
                                        [&](const FoundGroup& known) { return known.path == parent; });
        if (group != groups.end())
            group->members.push_back(found);
        else
            groups.push_back({parent, {found}});
    }
    if (sortByAge_) {
        std::stable_sort(groups.begin(), groups.end(), [](const FoundGroup& a, const FoundGroup& b) {
            return olderFirst(a.group().oldest(), b.group().oldest());
        });
    } else {
        std::stable_sort(groups.begin(), groups.end(),
                         [](const FoundGroup& a, const FoundGroup& b) { return a.group().size() > b.group().size(); });
    }
    return groups;
}

ProjectGroup ProjectCleanupModel::FoundGroup::group() const
{
    ProjectGroup group{path, {}};
    for (const Found* member : members)
        group.dirs.push_back(member->dir);
    return group;
}

std::vector<ProjectDir> ProjectCleanupModel::sortedDirs() const
{
    std::vector<ProjectDir> list;
    for (const Found* found : sortedFound())
        list.push_back(found->dir);
    return list;
}

std::vector<ProjectGroup> ProjectCleanupModel::projectGroups() const
{
    std::vector<ProjectGroup> groups;
    for (const FoundGroup& group : foundGroups())
        groups.push_back(group.group());
    return groups;
}

int ProjectCleanupModel::visibleCount() const
{
    return static_cast<int>(std::count_if(found_.begin(), found_.end(), [this](const Found& found) {
        return isVisible(found.dir);
    }));
}

int ProjectCleanupModel::visibleSelectedCount() const
{
    return static_cast<int>(std::count_if(found_.begin(), found_.end(), [this](const Found& found) {
        return isVisible(found.dir) && selected_.contains(found.dir.path);
    }));
}

std::int64_t ProjectCleanupModel::visibleSize() const
{
    std::int64_t total = 0;
    for (const Found& found : found_)
        total += isVisible(found.dir) ? found.dir.size : 0;
    return total;
}

std::int64_t ProjectCleanupModel::selectedSize() const
{
    std::int64_t total = 0;
    for (const Found& found : found_)
        total += isVisible(found.dir) && selected_.contains(found.dir.path) ? found.dir.size : 0;
    return total;
}

bool ProjectCleanupModel::allVisibleSelected() const
{
    // Only what can be ticked counts: while folders are being measured, "all" is all measured.
    bool any = false;
    for (const Found& found : found_) {
        if (!isVisible(found.dir) || !found.measured)
            continue;
        if (!selected_.contains(found.dir.path))
            return false;
        any = true;
    }
    return any;
}

ProjectCleanupModel::TickState ProjectCleanupModel::tickState(const std::vector<const Found*>& members) const
{
    TickState state;
    for (const Found* member : members) {
        if (!member->measured)
            continue;
        state.anyTickable = true;
        state.allTicked = state.allTicked && selected_.contains(member->dir.path);
    }
    state.allTicked = state.allTicked && state.anyTickable;
    return state;
}

void ProjectCleanupModel::toggle(const std::string& path)
{
    if (!selected_.erase(path)) {
        if (!isMeasured(path))
            return;
        selected_.insert(path);
    }
    publishNow();
}

void ProjectCleanupModel::toggleGroup(const ProjectGroup& group)
{
    std::vector<const Found*> members;
    for (const ProjectDir& dir : group.dirs) {
        if (const Found* found = find(dir.path))
            members.push_back(found);
    }
    const TickState state = tickState(members);
    if (!state.anyTickable)
        return;
    for (const Found* member : members) {
        if (state.allTicked)
            selected_.erase(member->dir.path);
        else if (member->measured)
            selected_.insert(member->dir.path);
    }
    publishNow();
}

void ProjectCleanupModel::selectAll(bool select)
{
    for (const Found& found : found_) {
        if (!isVisible(found.dir))
            continue;
        if (!select)
            selected_.erase(found.dir.path);
        else if (found.measured)
            selected_.insert(found.dir.path);
    }
    publishNow();
}

// Still the very folder the scan found, and one the safety test lets go. A folder replaced since
// (another inode), turned into a link (which the test would see through to its target) or gone
// is passed over. A folder made anew that happens to get the old inode number back is, by then,
// a real folder of the same name in the same project, and it goes to the Trash, not away.
bool ProjectCleanupModel::mayTrash(const Found& found)
{
    const auto info = FileSystem::info(found.dir.path);
    if (!info || !info->isFolder() || info->device != found.device || info->inode != found.inode)
        return false;
    return Cleaner::isSafe(Paths::resolvingSymlinks(found.dir.path));
}

void ProjectCleanupModel::trashSelected()
{
    if (!model_)
        return;
    std::set<std::string> chosen;
    std::int64_t freed = 0;
    std::vector<TrashedItem> trashed;
    for (const Found* found : sortedFound()) {
        if (!selected_.contains(found->dir.path))
            continue;
        chosen.insert(found->dir.path);
        if (!mayTrash(*found))
            continue;
        const Trash::Result result = Trash::trashItem(found->dir.path);
        if (!result.trashed)
            continue;
        freed += found->dir.size;
        if (result.trashPath)
            trashed.push_back({found->dir.path, *result.trashPath});
    }
    // What was passed over leaves the list as well, until the next scan.
    removeDirs(chosen);
    const QString name = trashed.size() == 1 ? tr("1 project folder") : tr("%1 project folders").arg(trashed.size());
    model_->recordExternalDeletion(toStd(name), freed, trashed);
}

void ProjectCleanupModel::pin(const ProjectDir& dir)
{
    if (model_) {
        QStringList ignored = model_->settings()->ignoredFinderPaths();
        if (!ignored.contains(toQt(dir.path))) {
            ignored.append(toQt(dir.path));
            model_->settings()->setIgnoredFinderPaths(ignored);
        }
    }
    removeDirs({dir.path});
    // The catalog's build-folder targets read the ignore list when they are built.
    if (model_)
        model_->rebuildTargets();
}

void ProjectCleanupModel::removeDirs(const std::set<std::string>& paths)
{
    std::erase_if(found_, [&paths](const Found& found) { return paths.contains(found.dir.path); });
    for (const std::string& path : paths)
        selected_.erase(path);
    publishNow(false, true);
}

void ProjectCleanupModel::toggleRow(int index)
{
    const ProjectListModel::Row* row = rows_.row(index);
    if (!row)
        return;
    if (!row->isHeader) {
        toggle(row->path);
        return;
    }
    for (const ProjectGroup& group : projectGroups()) {
        if (group.path == row->path) {
            toggleGroup(group);
            return;
        }
    }
}

void ProjectCleanupModel::pinRow(int index)
{
    const ProjectListModel::Row* row = rows_.row(index);
    if (!row || row->isHeader)
        return;
    if (const Found* found = find(row->path))
        pin(found->dir);
}

void ProjectCleanupModel::revealRow(int index)
{
    if (const ProjectListModel::Row* row = rows_.row(index))
        Workspace::reveal(row->path);
}

ProjectCleanupModel::Found* ProjectCleanupModel::find(const std::string& path)
{
    const auto found = std::find_if(found_.begin(), found_.end(), [&](const Found& entry) { return entry.dir.path == path; });
    return found == found_.end() ? nullptr : &*found;
}

const ProjectCleanupModel::Found* ProjectCleanupModel::find(const std::string& path) const
{
    return const_cast<ProjectCleanupModel*>(this)->find(path);
}

void ProjectCleanupModel::schedulePublish()
{
    // At once when nothing was published lately, then at most once per interval.
    if (publishTimer_.isActive()) {
        publishPending_ = true;
        return;
    }
    publishNow();
    publishTimer_.start();
}

void ProjectCleanupModel::publishNow(bool reordered, bool kindsMayChange)
{
    publishPending_ = false;
    rows_.update(listRows(), reordered);
    emit contentChanged();
    if (!kindsMayChange)
        return;
    std::vector<KindFacet> facets = kindFacets();
    if (facets != publishedFacets_) {
        publishedFacets_ = std::move(facets);
        emit kindsChanged();
    }
}

std::vector<ProjectListModel::Row> ProjectCleanupModel::listRows() const
{
    const auto folderRow = [this](const Found& found) {
        const ProjectDir& dir = found.dir;
        const bool ticked = selected_.contains(dir.path);
        return ProjectListModel::Row{"d" + dir.path, false, dir.path, dir.kindLabel, dir.size, found.measured,
                                     dir.modified, ticked, found.measured, 0};
    };
    std::vector<ProjectListModel::Row> rows;
    if (!groupByProject_) {
        for (const Found* found : sortedFound())
            rows.push_back(folderRow(*found));
        return rows;
    }
    for (const FoundGroup& group : foundGroups()) {
        const TickState ticks = tickState(group.members);
        ProjectListModel::Row header;
        header.key = "g" + group.path;
        header.isHeader = true;
        header.path = group.path;
        header.measured = true;
        for (const Found* member : group.members) {
            header.size += member->dir.size;
            header.measured = header.measured && member->measured;
        }
        header.selected = ticks.allTicked;
        header.selectable = ticks.anyTickable;
        header.count = static_cast<int>(group.members.size());
        rows.push_back(std::move(header));
        for (const Found* member : group.members)
            rows.push_back(folderRow(*member));
    }
    return rows;
}
