#include "ProjectCleanupModel.h"

#include "MainThread.h"

#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "QtConversions.h"
#include "Services/ProjectScanner.h"
#include "WorkQueues.h"

#include <algorithm>

using QtConversions::toQt;
using QtConversions::toStd;

namespace {

// The age setting in whole days, truncated; anything that isn't a sensible number means no limit.
int wholeDays(double days)
{
    constexpr double longest = 1'000'000;
    if (!(days > 0))
        return 0;
    return static_cast<int>(std::min(days, longest));
}

}  // namespace

void ProjectCleanupModel::scan()
{
    if (token_)
        token_->cancel();
    auto token = std::make_shared<CancelToken>();
    token_ = token;
    found_.clear();
    selected_.clear();
    foundCount_ = 0;
    hasScanned_ = false;
    isScanning_ = true;
    emit scanStateChanged();
    publishNow(true, true);

    ScanRequest request{effectiveRoots(), {}, 0};
    if (model_) {
        request.ignore = toStd(model_->settings()->ignoredFinderPaths());
        request.minAgeDays = wholeDays(model_->settings()->finderMinAgeDays());
    }
    WorkQueues::userInitiated().start(
        [request = std::move(request), token, guard = QPointer<ProjectCleanupModel>(this)] { runScan(request, token, guard); });
}

// On a worker. The job never touches the model: each report finds it through the guard on the
// main thread, and one that outlives the window is dropped.
void ProjectCleanupModel::runScan(const ScanRequest& request, const std::shared_ptr<CancelToken>& token,
                                  const QPointer<ProjectCleanupModel>& guard)
{
    const auto onDiscovered = [&](const std::vector<ProjectDir>& dirs) {
        std::vector<Found> found;
        found.reserve(dirs.size());
        for (const ProjectDir& dir : dirs) {
            Found entry;
            entry.dir = dir;
            // What stands at the path now, to know the folder again when it is to go.
            if (const auto info = FileSystem::info(dir.path)) {
                entry.device = info->device;
                entry.inode = info->inode;
            }
            found.push_back(std::move(entry));
        }
        MainThread::post(guard, [token, found = std::move(found)](ProjectCleanupModel& model) {
            model.receiveDiscovered(token, found);
        });
    };
    const auto onProgress = [&](int count) {
        MainThread::post(guard, [token, count](ProjectCleanupModel& model) { model.receiveProgress(token, count); });
    };
    const auto onFound = [&](const ProjectDir& dir) {
        MainThread::post(guard, [token, dir](ProjectCleanupModel& model) { model.receiveMeasured(token, dir); });
    };
    ProjectScanner::scan(request.roots, request.ignore, request.minAgeDays, token, onProgress, onFound, onDiscovered);
    MainThread::post(guard, [token](ProjectCleanupModel& model) { model.finish(token); });
}

bool ProjectCleanupModel::isCurrent(const std::shared_ptr<CancelToken>& token) const
{
    return token == token_ && !token->isCancelled();
}

void ProjectCleanupModel::receiveDiscovered(const std::shared_ptr<CancelToken>& token, const std::vector<Found>& found)
{
    if (!isCurrent(token))
        return;
    for (const Found& entry : found) {
        // Code folders that lie inside one another find the same folder twice; it is one folder.
        if (!find(entry.dir.path))
            found_.push_back(entry);
    }
    publishNow(false, true);
}

void ProjectCleanupModel::receiveProgress(const std::shared_ptr<CancelToken>& token, int count)
{
    if (!isCurrent(token) || foundCount_ == count)
        return;
    foundCount_ = count;
    emit scanStateChanged();
}

void ProjectCleanupModel::receiveMeasured(const std::shared_ptr<CancelToken>& token, const ProjectDir& dir)
{
    if (!isCurrent(token))
        return;
    // Gone when the user pinned it meanwhile.
    Found* found = find(dir.path);
    if (!found)
        return;
    found->dir.size = dir.size;
    found->dir.modified = dir.modified;
    found->measured = true;
    schedulePublish();
}

void ProjectCleanupModel::finish(const std::shared_ptr<CancelToken>& token)
{
    if (!isCurrent(token))
        return;
    isScanning_ = false;
    hasScanned_ = true;
    emit scanStateChanged();
    publishNow();
}

void ProjectCleanupModel::cancel()
{
    if (token_)
        token_->cancel();
    // A folder that was never measured was never really found: the list stays as a scan that
    // ended here would have left it.
    std::erase_if(found_, [](const Found& found) { return !found.measured; });
    isScanning_ = false;
    hasScanned_ = true;
    emit scanStateChanged();
    publishNow(false, true);
}

void ProjectCleanupModel::pickFolderAndScan()
{
    const std::vector<std::string> roots = effectiveRoots();
    emit folderPickRequested(toQt(roots.empty() ? Paths::home() : Paths::expandingTilde(roots.front())));
}

void ProjectCleanupModel::scanFolder(const QString& path)
{
    if (path.isEmpty())
        return;
    overrideRoot_ = toStd(path);
    scan();
}
