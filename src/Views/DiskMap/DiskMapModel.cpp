#include "DiskMapModel.h"

#include "CategoryColor.h"
#include "DiskNodeText.h"

#include "MainThread.h"

#include "Models/ScanPreset.h"
#include "Models/TrashedItem.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/DefaultsStore.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
#include "Platform/Volumes.h"
#include "QtConversions.h"
#include "Services/Cleaner.h"
#include "Services/DiskMapScanner.h"
#include "WorkQueues.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

using QtConversions::toQt;
using QtConversions::toStd;

namespace {

constexpr int mergeIntervalMs = 30;

bool largerFirst(const DiskNode& a, const DiskNode& b) { return a.size() > b.size(); }

// Dropping the last handle of a big tree frees every record in it, which takes long enough to
// stall the window; a worker does it instead.
void releaseElsewhere(std::vector<DiskNode> nodes)
{
    if (nodes.empty())
        return;
    WorkQueues::utility().start([nodes = std::move(nodes)]() mutable { nodes.clear(); });
}

// Moved in, never copied: a copy left behind here could turn out to be the last one.
void releaseElsewhere(DiskNode&& node)
{
    std::vector<DiskNode> nodes;
    nodes.push_back(std::move(node));
    releaseElsewhere(std::move(nodes));
}

QVariantMap presetMap(const QString& label, const std::string& symbol, const std::string& path)
{
    return {{QStringLiteral("label"), label}, {QStringLiteral("symbol"), toQt(symbol)},
            {QStringLiteral("path"), toQt(path)}};
}

}  // namespace

DiskMapModel::DiskMapModel(QObject* parent) : QObject(parent), rootPath_(Paths::home())
{
    mergeTimer_.setSingleShot(true);
    mergeTimer_.setInterval(mergeIntervalMs);
    connect(&mergeTimer_, &QTimer::timeout, this, &DiskMapModel::mergePending);
}

// A running scan goes on to its end; its reports find no model and are dropped.
DiskMapModel::~DiskMapModel()
{
    std::vector<DiskNode> nodes = std::move(stack_);
    if (root_)
        nodes.push_back(std::move(*root_));
    std::move(partialChildren_.begin(), partialChildren_.end(), std::back_inserter(nodes));
    releaseElsewhere(std::move(nodes));
}

void DiskMapModel::setModel(AppModel* model)
{
    if (model_ == model)
        return;
    model_ = model;
    if (model && !scanStarted_) {
        const std::string stored = model->settings()->defaults()->string(rootKey).value_or("");
        const std::string path = stored.empty() ? Paths::home() : stored;
        if (path != rootPath_) {
            rootPath_ = path;
            emit rootPathChanged();
        }
    }
    emit modelChanged();
}

DiskMapModel::Phase DiskMapModel::phase() const
{
    if (isScanning_)
        return Phase::scanning;
    return root_ ? Phase::ready : Phase::empty;
}

QString DiskMapModel::progressText() const
{
    if (!isScanning_)
        return {};
    return tr("Scanning… %1").arg(toQt(ByteCountFormatter::string(scannedBytes_)));
}

std::optional<DiskNode> DiskMapModel::current() const
{
    if (!stack_.empty())
        return stack_.back();
    return root_;
}

std::vector<DiskNode> DiskMapModel::breadcrumbNodes() const
{
    if (!root_)
        return {};
    std::vector<DiskNode> nodes{*root_};
    nodes.insert(nodes.end(), stack_.begin(), stack_.end());
    return nodes;
}

QVariantList DiskMapModel::breadcrumb() const
{
    QVariantList list;
    for (const DiskNode& node : breadcrumbNodes())
        list.append(DiskNodeText::describe(node));
    return list;
}

QVariantList DiskMapModel::childList() const
{
    QVariantList list;
    const std::optional<DiskNode> focused = current();
    if (!focused)
        return list;
    list.reserve(qsizetype(focused->children().size()));
    for (const DiskNode& child : focused->children())
        list.append(DiskNodeText::describe(child));
    return list;
}

int DiskMapModel::childCount() const
{
    const std::optional<DiskNode> focused = current();
    return focused ? int(focused->children().size()) : 0;
}

QVariantMap DiskMapModel::currentNode() const
{
    const std::optional<DiskNode> focused = current();
    if (!focused)
        return {};
    QVariantMap map = DiskNodeText::describe(*focused);
    // The root is known by where it is, the folders entered below it by their names.
    if (stack_.empty())
        map.insert(QStringLiteral("name"), DiskNodeText::displayId(*focused));
    return map;
}

QVariantMap DiskMapModel::selectedNode() const
{
    return selection_ ? DiskNodeText::describe(*selection_) : QVariantMap();
}

int DiskMapModel::selectedIndex() const
{
    const std::optional<DiskNode> focused = current();
    if (!focused || !selection_)
        return -1;
    const std::span<const DiskNode> list = focused->children();
    const std::string id = selection_->id();
    const auto found = std::find_if(list.begin(), list.end(), [&id](const DiskNode& node) { return node.id() == id; });
    return found == list.end() ? -1 : int(found - list.begin());
}

QVariantList DiskMapModel::presentCategories() const
{
    std::array<bool, FileCategories::all.size()> present{};
    if (const std::optional<DiskNode> focused = current()) {
        for (const DiskNode& child : focused->children()) {
            if (!child.isSynthetic())
                present[std::size_t(child.category())] = true;
        }
    }
    QVariantList list;
    for (FileCategory category : FileCategories::all) {
        if (!present[std::size_t(category)])
            continue;
        list.append(QVariantMap{{QStringLiteral("label"), DiskNodeText::categoryLabel(category)},
                                {QStringLiteral("color"), toQColor(FileCategories::color(category))}});
    }
    return list;
}

QVariantMap DiskMapModel::childNode(int childIndex) const
{
    const std::optional<DiskNode> focused = current();
    if (!focused || childIndex < 0 || std::size_t(childIndex) >= focused->children().size())
        return {};
    return DiskNodeText::describe(focused->children()[std::size_t(childIndex)]);
}

QString DiskMapModel::currentName() const
{
    const std::optional<DiskNode> focused = current();
    return focused ? toQt(std::string(focused->name())) : QString();
}

qint64 DiskMapModel::currentSize() const
{
    const std::optional<DiskNode> focused = current();
    return focused ? focused->size() : 0;
}

QString DiskMapModel::selectedId() const { return selection_ ? toQt(selection_->id()) : QString(); }

QString DiskMapModel::selectedName() const
{
    return selection_ ? DiskNodeText::name(*selection_) : QString();
}

QVariantList DiskMapModel::presets()
{
    QVariantList list;
    for (const ScanPreset& preset : ScanPreset::all())
        list.append(presetMap(QtConversions::translated("ScanPreset", preset.label), preset.symbol, preset.path));
    return list;
}

QVariantList DiskMapModel::volumes()
{
    constexpr const char* volumeSymbol = "externaldrive";
    QVariantList list;
    for (const Volumes::MountedVolume& volume : Volumes::mountedVolumes())
        list.append(presetMap(toQt(volume.name), volumeSymbol, volume.path));
    return list;
}

void DiskMapModel::scan(const QString& path)
{
    const std::string chosen = path.isEmpty() ? rootPath_ : toStd(path);
    scanStarted_ = true;
    if (chosen != rootPath_) {
        rootPath_ = chosen;
        emit rootPathChanged();
    }
    if (model_)
        model_->settings()->defaults()->set(rootKey, chosen);

    if (token_)
        token_->cancel();
    auto token = std::make_shared<CancelToken>();
    token_ = token;

    mergeTimer_.stop();
    std::vector<DiskNode> old = std::move(stack_);
    stack_.clear();
    if (root_)
        old.push_back(std::move(*root_));
    std::move(partialChildren_.begin(), partialChildren_.end(), std::back_inserter(old));
    partialChildren_.clear();
    pending_.clear();
    releaseElsewhere(std::move(old));
    root_.reset();
    setSelection(std::nullopt);
    scannedBytes_ = 0;
    scanPath_ = Paths::expandingTilde(chosen);
    setScanning(true);
    emit progressChanged();
    emit treeChanged();

    // The job never touches the model: each report goes to the application object and finds the
    // model there through a guard, so a report that outlives the window is simply dropped.
    QPointer<DiskMapModel> guard(this);
    WorkQueues::userInitiated().start([chosen, token, guard] {
        auto onProgress = [&token, &guard](std::int64_t bytes) {
            MainThread::post(guard, [token, bytes](DiskMapModel& model) { model.receiveProgress(token, bytes); });
        };
        auto onChild = [&token, &guard](const DiskNode& entry) {
            MainThread::post(guard, [token, entry](DiskMapModel& model) { model.receiveChild(token, entry); });
        };
        DiskNode result = DiskMapScanner::scanStreaming(chosen, token, onProgress, onChild);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [guard, token, result = std::move(result)]() mutable {
                if (guard)
                    guard->finish(token, std::move(result));
                else
                    releaseElsewhere(std::move(result));
            },
            Qt::QueuedConnection);
    });
}

void DiskMapModel::receiveProgress(const std::shared_ptr<CancelToken>& token, std::int64_t bytes)
{
    if (!isScanning_ || token != token_ || scannedBytes_ == bytes)
        return;
    scannedBytes_ = bytes;
    emit progressChanged();
}

void DiskMapModel::receiveChild(const std::shared_ptr<CancelToken>& token, DiskNode node)
{
    if (!isScanning_ || token != token_ || token->isCancelled())
        return;
    pending_.push_back(std::move(node));
    if (!mergeTimer_.isActive())
        mergeTimer_.start();
}

void DiskMapModel::mergePending()
{
    mergeTimer_.stop();
    if (pending_.empty())
        return;
    // Sorting the few new entries and merging them in keeps a folder of a hundred thousand
    // entries linear per merge; both steps keep equal sizes in arrival order.
    std::stable_sort(pending_.begin(), pending_.end(), largerFirst);
    std::vector<DiskNode> merged;
    merged.reserve(partialChildren_.size() + pending_.size());
    std::merge(std::make_move_iterator(partialChildren_.begin()), std::make_move_iterator(partialChildren_.end()),
               std::make_move_iterator(pending_.begin()), std::make_move_iterator(pending_.end()),
               std::back_inserter(merged), largerFirst);
    partialChildren_ = std::move(merged);
    pending_.clear();

    // Once the user has entered a folder the provisional root has nobody to show it to.
    if (!stack_.empty())
        return;
    std::int64_t total = 0;
    for (const DiskNode& child : partialChildren_)
        total += child.size();
    std::string name = Paths::lastComponent(scanPath_);
    if (name.empty())
        name = scanPath_;
    replaceRoot(DiskNode(scanPath_, name, total, true, FileCategory::other, std::nullopt, false,
                         partialChildren_));
}

void DiskMapModel::finish(const std::shared_ptr<CancelToken>& token, DiskNode node)
{
    if (token->isCancelled()) {
        releaseElsewhere(std::move(node));
        return;
    }
    mergeTimer_.stop();
    pending_.clear();
    releaseElsewhere(std::move(partialChildren_));
    partialChildren_.clear();
    scannedBytes_ = node.size();
    replaceRoot(std::move(node));
    setScanning(false);
    emit progressChanged();
}

void DiskMapModel::cancel()
{
    if (token_)
        token_->cancel();
    // What arrived before the Stop belongs to the partial result that stays on screen.
    if (isScanning_)
        mergePending();
    setScanning(false);
    emit progressChanged();
}

void DiskMapModel::setScanning(bool scanning)
{
    if (isScanning_ == scanning)
        return;
    isScanning_ = scanning;
    emit phaseChanged();
}

void DiskMapModel::replaceRoot(std::optional<DiskNode> root)
{
    const bool hadRoot = root_.has_value();
    if (root_)
        releaseElsewhere(std::move(*root_));
    root_ = std::move(root);
    emit treeChanged();
    if (hadRoot != root_.has_value())
        emit phaseChanged();
}

void DiskMapModel::zoom(const DiskNode& node)
{
    if (!node.isDirectory() || node.children().empty())
        return;
    stack_.push_back(node);
    setSelection(std::nullopt);
    emit treeChanged();
}

void DiskMapModel::zoomInto(int childIndex)
{
    const std::optional<DiskNode> focused = current();
    if (!focused || childIndex < 0 || std::size_t(childIndex) >= focused->children().size())
        return;
    zoom(focused->children()[std::size_t(childIndex)]);
}

void DiskMapModel::select(int childIndex)
{
    const std::optional<DiskNode> focused = current();
    if (!focused || childIndex < 0 || std::size_t(childIndex) >= focused->children().size())
        return;
    setSelection(focused->children()[std::size_t(childIndex)]);
}

void DiskMapModel::setSelection(std::optional<DiskNode> node)
{
    if (!node && !selection_)
        return;
    selection_ = std::move(node);
    emit selectionChanged();
}

void DiskMapModel::goTo(int depth)
{
    if (depth < 1) {
        if (!stack_.empty()) {
            stack_.clear();
            emit treeChanged();
        }
    } else if (std::size_t(depth) < stack_.size()) {
        stack_.resize(std::size_t(depth));
        emit treeChanged();
    }
    setSelection(std::nullopt);
}

void DiskMapModel::goUp()
{
    if (stack_.empty())
        return;
    stack_.pop_back();
    setSelection(std::nullopt);
    emit treeChanged();
}

void DiskMapModel::moveSelection(int step)
{
    const std::optional<DiskNode> focused = current();
    if (!focused || focused->children().empty())
        return;
    const std::span<const DiskNode> list = focused->children();
    if (selection_) {
        const std::string id = selection_->id();
        const auto found = std::find_if(list.begin(), list.end(),
                                        [&id](const DiskNode& node) { return node.id() == id; });
        if (found != list.end()) {
            const std::ptrdiff_t last = std::ssize(list) - 1;
            const std::ptrdiff_t index = std::clamp<std::ptrdiff_t>((found - list.begin()) + step, 0, last);
            setSelection(list[std::size_t(index)]);
            return;
        }
    }
    setSelection(list.front());
}

bool DiskMapModel::canTrash(const DiskNode& node)
{
    if (node.isSynthetic())
        return false;
    const std::string resolved = Paths::resolvingSymlinks(node.id());
    const std::string home = Paths::resolvingSymlinks(Paths::home());
    if (resolved == home)
        return false;
    if (Cleaner::isSafe(resolved))
        return true;
    return resolved.starts_with(home + "/");
}

void DiskMapModel::trash(const DiskNode& node)
{
    if (!canTrash(node))
        return;
    const std::string id = node.id();
    const Trash::Result result = Trash::trashItem(id);
    if (!result.trashed)
        return;
    std::vector<TrashedItem> trashed;
    if (result.trashPath)
        trashed.push_back({id, *result.trashPath});
    if (model_)
        model_->recordExternalDeletion(std::string(node.name()), node.size(), trashed);
    scan();
}

std::optional<DiskNode> DiskMapModel::nodeWithId(const std::string& id) const
{
    if (selection_ && selection_->id() == id)
        return selection_;
    if (const std::optional<DiskNode> focused = current()) {
        for (const DiskNode& child : focused->children()) {
            if (child.id() == id)
                return child;
        }
    }
    return std::nullopt;
}

bool DiskMapModel::canTrashNode(const QString& id) const
{
    const std::optional<DiskNode> node = nodeWithId(toStd(id));
    return node && canTrash(*node);
}

void DiskMapModel::trashNode(const QString& id)
{
    if (const std::optional<DiskNode> node = nodeWithId(toStd(id)))
        trash(*node);
}

void DiskMapModel::trashSelection()
{
    if (selection_) {
        const DiskNode node = *selection_;
        trash(node);
    }
}
