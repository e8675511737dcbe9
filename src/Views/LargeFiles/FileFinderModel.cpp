#include "FileFinderModel.h"

#include "TrashSelectionJob.h"

#include "MainThread.h"
#include "Models/ScanPreset.h"
#include "Platform/Paths.h"
#include "Platform/Workspace.h"
#include "QtConversions.h"
#include "Services/DuplicateScanner.h"
#include "WorkQueues.h"

#include <QCoreApplication>
#include <QVariantMap>

#include <algorithm>
#include <mutex>
#include <utility>

using QtConversions::toQt;

// Where the scan leaves its latest picture for the main thread. Pictures replace each other, so
// when the window is busy the ones it had no time for are skipped and only the newest is shown.
struct FileFinderModel::Mailbox {
    std::mutex mutex;
    std::optional<FileScanResult> latest;
    bool posted = false;
};

namespace {

std::string rowKey(char kind, const std::string& identity)
{
    return kind + identity;
}

FileRowList::Row fileRow(const ScannedFile& file, int index, bool canTrash)
{
    FileRowList::Row row;
    row.key = rowKey('f', file.path);
    row.fileIndex = index;
    row.title = toQt(Paths::lastComponent(file.path));
    row.subtitle = toQt(Paths::abbreviatingWithTilde(file.path));
    row.size = file.size;
    row.canTrash = canTrash;
    return row;
}

}  // namespace

FileFinderModel::FileFinderModel(QObject* parent) : QObject(parent), rootPath_(Paths::home()) {}

void FileFinderModel::setModel(AppModel* model)
{
    if (model_ == model)
        return;
    model_ = model;
    emit modelChanged();
}

QString FileFinderModel::rootPathText() const { return toQt(rootPath_); }

QString FileFinderModel::displayRootPath() const { return toQt(Paths::abbreviatingWithTilde(rootPath_)); }

QVariantList FileFinderModel::presets()
{
    QVariantList list;
    for (const ScanPreset& preset : ScanPreset::all()) {
        list.append(QVariantMap{{QStringLiteral("label"), QtConversions::translated("ScanPreset", preset.label)},
                                {QStringLiteral("symbol"), toQt(preset.symbol)},
                                {QStringLiteral("path"), toQt(preset.path)}});
    }
    return list;
}

qint64 FileFinderModel::selectedSize() const
{
    qint64 total = 0;
    for (const ScannedFile& file : files_) {
        if (selected_.contains(file.path))
            total += file.size;
    }
    return total;
}

void FileFinderModel::scan(const QString& path)
{
    scan(path.isEmpty() ? std::nullopt : std::optional<std::string>(QtConversions::toStd(path)));
}

void FileFinderModel::scan(std::optional<std::string> path)
{
    const std::string chosen = path.value_or(rootPath_);
    if (chosen != rootPath_) {
        rootPath_ = chosen;
        emit rootPathChanged();
    }
    if (token_)
        token_->cancel();
    auto token = std::make_shared<CancelToken>();
    auto mailbox = std::make_shared<Mailbox>();
    token_ = token;
    mailbox_ = mailbox;
    scannedCount_ = 0;
    trashable_.clear();
    show({});
    setState(true, false, isTrashing_);
    emit progressChanged();

    // The job owns what it works with; its reports find the model through a guard, so a report
    // that outlives the window is dropped.
    QPointer<FileFinderModel> guard(this);
    WorkQueues::userInitiated().start([chosen, token, mailbox, guard] {
        DuplicateScanner::scan(
            chosen, token,
            [&](std::int64_t count) {
                MainThread::post(guard, [token, count](FileFinderModel& model) { model.receiveProgress(token, count); });
            },
            [&](const FileScanResult& result) {
                bool post = false;
                {
                    const std::lock_guard lock(mailbox->mutex);
                    mailbox->latest = result;
                    post = !std::exchange(mailbox->posted, true);
                }
                if (post)
                    MainThread::post(guard, [token](FileFinderModel& model) { model.receiveResult(token); });
            });
        MainThread::post(guard, [token](FileFinderModel& model) { model.finishScan(token); });
    });
}

void FileFinderModel::receiveProgress(const std::shared_ptr<CancelToken>& token, std::int64_t count)
{
    if (!isScanning_ || token != token_ || count == scannedCount_)
        return;
    scannedCount_ = count;
    emit progressChanged();
}

void FileFinderModel::receiveResult(const std::shared_ptr<CancelToken>& token)
{
    if (token != token_ || token->isCancelled())
        return;
    std::optional<FileScanResult> latest;
    {
        const std::lock_guard lock(mailbox_->mutex);
        latest = std::exchange(mailbox_->latest, std::nullopt);
        mailbox_->posted = false;
    }
    if (latest)
        show(std::move(*latest));
}

void FileFinderModel::finishScan(const std::shared_ptr<CancelToken>& token)
{
    // A Stop or a newer scan has the last word on these.
    if (token != token_ || token->isCancelled())
        return;
    setState(false, true, isTrashing_);
}

void FileFinderModel::stop()
{
    if (token_)
        token_->cancel();
    setState(false, hasScanned_, isTrashing_);
}

void FileFinderModel::show(FileScanResult result)
{
    result_ = std::move(result);
    files_.clear();
    fileIndex_.clear();
    const auto add = [this](const ScannedFile& file) {
        if (fileIndex_.try_emplace(file.path, static_cast<int>(files_.size())).second)
            files_.push_back(file);
    };
    for (const ScannedFile& file : result_.largest)
        add(file);
    for (const DuplicateGroup& group : result_.duplicates) {
        for (const ScannedFile& file : group.files)
            add(file);
    }
    keepOnePerGroup();
    rebuildRows();
    emit resultChanged();
    selectionUpdated();
}

void FileFinderModel::keepOnePerGroup()
{
    selected_.clear();
    for (const DuplicateGroup& group : result_.duplicates) {
        for (std::size_t i = 1; i < group.files.size(); ++i)
            selected_.insert(group.files[i].path);
    }
}

void FileFinderModel::rebuildRows()
{
    std::vector<FileRowList::Row> largest;
    largest.reserve(result_.largest.size());
    for (const ScannedFile& file : result_.largest)
        largest.push_back(fileRow(file, fileIndex_.at(file.path), canTrashCached(file.path)));
    std::vector<FileRowList::Row> copies;
    for (const DuplicateGroup& group : result_.duplicates) {
        FileRowList::Row header;
        header.isHeader = true;
        header.key = rowKey('g', group.id);
        header.size = group.size;
        header.copies = static_cast<int>(group.files.size());
        copies.push_back(std::move(header));
        for (const ScannedFile& file : group.files)
            copies.push_back(fileRow(file, fileIndex_.at(file.path), canTrashCached(file.path)));
    }
    largestRows_.replace(std::move(largest));
    duplicateRows_.replace(std::move(copies));
}

bool FileFinderModel::canTrashCached(const std::string& path)
{
    const auto [found, isNew] = trashable_.try_emplace(path, false);
    if (isNew)
        found->second = canTrash(path);
    return found->second;
}

void FileFinderModel::selectionUpdated()
{
    const auto isOn = [this](int index) {
        return index >= 0 && std::size_t(index) < files_.size() && selected_.contains(files_[std::size_t(index)].path);
    };
    largestRows_.updateTicks(isOn);
    duplicateRows_.updateTicks(isOn);
    emit selectionChanged();
}

void FileFinderModel::toggle(const std::string& path)
{
    if (!selected_.erase(path))
        selected_.insert(path);
    selectionUpdated();
}

void FileFinderModel::toggleFile(int fileIndex)
{
    if (fileIndex >= 0 && std::size_t(fileIndex) < files_.size())
        toggle(files_[std::size_t(fileIndex)].path);
}

void FileFinderModel::revealFile(int fileIndex) const
{
    if (fileIndex >= 0 && std::size_t(fileIndex) < files_.size())
        Workspace::reveal(files_[std::size_t(fileIndex)].path);
}

bool FileFinderModel::canTrash(const std::string& path)
{
    return TrashSelectionJob::mayTrash(path);
}

std::vector<std::string> FileFinderModel::selectedInListOrder() const
{
    std::vector<std::string> order;
    for (const ScannedFile& file : files_) {
        if (selected_.contains(file.path))
            order.push_back(file.path);
    }
    // Ticks of files no longer listed still count, after the listed ones.
    std::vector<std::string> rest;
    for (const std::string& path : selected_) {
        if (!fileIndex_.contains(path))
            rest.push_back(path);
    }
    std::sort(rest.begin(), rest.end());
    order.insert(order.end(), rest.begin(), rest.end());
    return order;
}

void FileFinderModel::trashSelected()
{
    if (selected_.empty() || isTrashing_)
        return;
    setState(isScanning_, hasScanned_, true);
    QPointer<FileFinderModel> guard(this);
    QPointer<AppModel> appModel(model_);
    TrashSelectionJob job(selectedInListOrder(), result_.duplicates);
    WorkQueues::utility().start([job = std::move(job), guard, appModel]() mutable {
        TrashSelectionJob::Outcome outcome = job.run();
        // The history is kept even when the window closed meanwhile: the files did move.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [guard, appModel, outcome = std::move(outcome)] {
                if (appModel)
                    appModel->recordExternalDeletion(TrashSelectionJob::historyName(outcome.trashed.size()),
                                                     outcome.freed, outcome.trashed);
                if (guard) {
                    guard->setState(guard->isScanning_, guard->hasScanned_, false);
                    guard->scan(std::nullopt);
                }
            },
            Qt::QueuedConnection);
    });
}

void FileFinderModel::setState(bool scanning, bool scanned, bool trashing)
{
    if (scanning == isScanning_ && scanned == hasScanned_ && trashing == isTrashing_)
        return;
    isScanning_ = scanning;
    hasScanned_ = scanned;
    isTrashing_ = trashing;
    emit stateChanged();
}
