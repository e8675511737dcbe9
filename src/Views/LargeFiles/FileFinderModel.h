#pragma once

#include "FileRowList.h"

#include "Models/FileScanResult.h"
#include "Services/CancelToken.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "AppModel.h"

// The large-file finder's model: scans a folder for its largest files and its copies, keeps what
// the user ticked, and moves the ticked files to the Trash. Main thread only; the scan and the
// Trash moves run on workers and report back.
//
// Files reach the view as rows of two lists, each file with a number (`fileIndex`) that the
// view hands back to tick or reveal it: paths are bytes, and a name that isn't UTF-8 would not
// survive the trip through a QString.
class FileFinderModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY stateChanged)
    Q_PROPERTY(bool hasScanned READ hasScanned NOTIFY stateChanged)
    Q_PROPERTY(bool isTrashing READ isTrashing NOTIFY stateChanged)
    Q_PROPERTY(int scannedCount READ scannedCount NOTIFY progressChanged)
    Q_PROPERTY(QString rootPath READ rootPathText NOTIFY rootPathChanged)
    // The folder as the user reads it: the home folder shown as "~".
    Q_PROPERTY(QString displayRootPath READ displayRootPath NOTIFY rootPathChanged)
    Q_PROPERTY(FileRowList* largestRows READ largestRows CONSTANT)
    Q_PROPERTY(FileRowList* duplicateRows READ duplicateRows CONSTANT)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(qint64 selectedSize READ selectedSize NOTIFY selectionChanged)
    // [{label, symbol, path}]
    Q_PROPERTY(QVariantList presets READ presets CONSTANT)

public:
    explicit FileFinderModel(QObject* parent = nullptr);

    AppModel* model() const { return model_; }
    void setModel(AppModel* model);

    bool isScanning() const { return isScanning_; }
    bool hasScanned() const { return hasScanned_; }
    bool isTrashing() const { return isTrashing_; }
    int scannedCount() const { return static_cast<int>(scannedCount_); }
    const std::string& rootPath() const { return rootPath_; }
    QString rootPathText() const;
    QString displayRootPath() const;
    FileRowList* largestRows() { return &largestRows_; }
    FileRowList* duplicateRows() { return &duplicateRows_; }
    const FileScanResult& result() const { return result_; }
    const std::unordered_set<std::string>& selected() const { return selected_; }
    int selectedCount() const { return static_cast<int>(selected_.size()); }
    // Each listed file once, whichever list it first appears in, if it is ticked.
    qint64 selectedSize() const;
    static QVariantList presets();

    // Scans `path`, or the last folder again when none.
    void scan(std::optional<std::string> path);
    Q_INVOKABLE void scan(const QString& path = {});
    Q_INVOKABLE void stop();
    // The view shows a folder dialog starting at the last folder and calls scan() with the choice.
    Q_INVOKABLE void pickFolderAndScan() { emit folderPickRequested(rootPathText()); }
    void toggle(const std::string& path);
    Q_INVOKABLE void toggleFile(int fileIndex);
    Q_INVOKABLE void revealFile(int fileIndex) const;
    static bool canTrash(const std::string& path);
    // What each picture a scan delivers does: it replaces the lists, and every copy of each group
    // but the first stands ticked, whatever was ticked before.
    void show(FileScanResult result);
    // Moves every ticked file the rules allow to the Trash, records it and scans again; the
    // moves run on a worker, and the button stays busy meanwhile.
    Q_INVOKABLE void trashSelected();

signals:
    void modelChanged();
    void stateChanged();
    void progressChanged();
    void rootPathChanged();
    void resultChanged();
    void selectionChanged();
    void folderPickRequested(const QString& startPath);

private:
    struct Mailbox;

    void receiveProgress(const std::shared_ptr<CancelToken>& token, std::int64_t count);
    void receiveResult(const std::shared_ptr<CancelToken>& token);
    void finishScan(const std::shared_ptr<CancelToken>& token);
    void rebuildRows();
    // Every copy of every group but its first, the one the walk met first.
    void keepOnePerGroup();
    void selectionUpdated();
    bool canTrashCached(const std::string& path);
    std::vector<std::string> selectedInListOrder() const;
    void setState(bool scanning, bool scanned, bool trashing);

    QPointer<AppModel> model_;
    std::string rootPath_;
    bool isScanning_ = false;
    bool hasScanned_ = false;
    bool isTrashing_ = false;
    std::int64_t scannedCount_ = 0;
    FileScanResult result_;
    std::unordered_set<std::string> selected_;
    std::shared_ptr<CancelToken> token_;
    std::shared_ptr<Mailbox> mailbox_;
    // Every listed file once, largest first, then the groups' members: the rows' `fileIndex`.
    std::vector<ScannedFile> files_;
    std::unordered_map<std::string, int> fileIndex_;
    std::unordered_map<std::string, bool> trashable_;
    FileRowList largestRows_;
    FileRowList duplicateRows_;
};
