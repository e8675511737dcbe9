#pragma once

#include "ProjectGroup.h"
#include "ProjectListModel.h"

#include "Models/ProjectDir.h"
#include "Services/CancelToken.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "AppModel.h"

// The project cleanup window's model: runs the build-folder scan over the code folders, keeps
// what it found, filters, sorts and groups it, holds the selection, moves the selection to the
// Trash and records that, and remembers folders the user never wants suggested again. Main
// thread only.
//
// Folders show as soon as the search has found them, before they are measured; their sizes then
// arrive one by one. A folder can be ticked once its size is known, and a Stop drops the folders
// that were never measured, so what stays on screen is what a finished scan would show.
//
// The window shows the folder dialog itself: pickFolderAndScan() asks for one through
// folderPickRequested, and the view answers with scanFolder(path).
class ProjectCleanupModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY scanStateChanged)
    Q_PROPERTY(bool hasScanned READ hasScanned NOTIFY scanStateChanged)
    Q_PROPERTY(int foundCount READ foundCount NOTIFY scanStateChanged)
    Q_PROPERTY(QString rootsLabel READ rootsLabel NOTIFY scanStateChanged)
    Q_PROPERTY(bool hasDirs READ hasDirs NOTIFY contentChanged)
    Q_PROPERTY(bool sortByAge READ sortByAge WRITE setSortByAge NOTIFY orderChanged)
    Q_PROPERTY(bool groupByProject READ groupByProject WRITE setGroupByProject NOTIFY orderChanged)
    // [{id, label, count, active}], in the order the kinds were first found.
    Q_PROPERTY(QVariantList kindFacets READ kindFacetList NOTIFY kindsChanged)
    Q_PROPERTY(bool hasActiveKinds READ hasActiveKinds NOTIFY kindsChanged)
    // The footer's figures, over the folders the filter shows.
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY contentChanged)
    Q_PROPERTY(int visibleSelectedCount READ visibleSelectedCount NOTIFY contentChanged)
    Q_PROPERTY(qint64 visibleSize READ visibleSize NOTIFY contentChanged)
    Q_PROPERTY(qint64 selectedSize READ selectedSize NOTIFY contentChanged)
    Q_PROPERTY(bool allVisibleSelected READ allVisibleSelected NOTIFY contentChanged)
    Q_PROPERTY(ProjectListModel* rows READ rows CONSTANT)

public:
    struct KindFacet {
        std::string id;
        std::string label;
        int count = 0;

        bool operator==(const KindFacet&) const = default;
    };

    explicit ProjectCleanupModel(QObject* parent = nullptr);

    AppModel* model() const { return model_; }
    void setModel(AppModel* model);

    // Everything found by the current scan, in the order it was found.
    std::vector<ProjectDir> dirs() const;
    bool isMeasured(const std::string& path) const;
    bool isScanning() const { return isScanning_; }
    bool hasScanned() const { return hasScanned_; }
    int foundCount() const { return foundCount_; }
    bool hasDirs() const { return !found_.empty(); }
    const std::set<std::string>& selected() const { return selected_; }
    bool sortByAge() const { return sortByAge_; }
    void setSortByAge(bool byAge);
    bool groupByProject() const { return groupByProject_; }
    void setGroupByProject(bool grouped);
    const std::set<std::string>& activeKinds() const { return activeKinds_; }
    void setActiveKinds(std::set<std::string> kinds);
    const std::optional<std::string>& overrideRoot() const { return overrideRoot_; }

    // The folders a scan walks: the folder chosen by hand, else the code folders of the
    // settings, else the home folder.
    std::vector<std::string> effectiveRoots() const;
    QString rootsLabel() const;
    // One entry per kind found, whatever the filter shows.
    std::vector<KindFacet> kindFacets() const;
    QVariantList kindFacetList() const;
    bool hasActiveKinds() const { return !activeKinds_.empty(); }
    // What the filter lets through, largest first or oldest first (undated last); ties keep the
    // order they were found in.
    std::vector<ProjectDir> sortedDirs() const;
    // sortedDirs by the folder that holds them, biggest or oldest group first.
    std::vector<ProjectGroup> projectGroups() const;
    int visibleCount() const;
    int visibleSelectedCount() const;
    std::int64_t visibleSize() const;
    std::int64_t selectedSize() const;
    bool allVisibleSelected() const;
    ProjectListModel* rows() { return &rows_; }

    // Starts a scan, stopping any running one; the selection starts empty.
    Q_INVOKABLE void scan();
    // Stops the running scan; what was measured stays, as a finished scan.
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void pickFolderAndScan();
    // Scans `path` in place of the code folders, for as long as this model lives.
    Q_INVOKABLE void scanFolder(const QString& path);
    // Ticks or unticks a folder. A folder still being measured can't be ticked yet.
    void toggle(const std::string& path);
    // Unticks every folder of the group when all that can be ticked are; else ticks them.
    void toggleGroup(const ProjectGroup& group);
    // Ticks or unticks every folder the filter shows; hidden ticks stay as they are.
    Q_INVOKABLE void selectAll(bool select);
    // Moves the ticked folders the filter shows to the Trash, each one only if it is still the
    // folder that was found and the safety test allows it; all of them leave the list.
    Q_INVOKABLE void trashSelected();
    // "Never suggest this folder": adds it to the ignore list, which the catalog's build-folder
    // targets follow too, and takes it off the list.
    void pin(const ProjectDir& dir);
    Q_INVOKABLE void toggleKind(const QString& kindID);
    Q_INVOKABLE void clearKinds() { setActiveKinds({}); }

    // The same operations on a row of `rows`, for the view.
    Q_INVOKABLE void toggleRow(int index);
    Q_INVOKABLE void pinRow(int index);
    Q_INVOKABLE void revealRow(int index);

signals:
    void modelChanged();
    void scanStateChanged();
    void contentChanged();
    void orderChanged();
    void kindsChanged();
    // The view shows a folder dialog starting at `startPath` and calls scanFolder() with the
    // choice.
    void folderPickRequested(const QString& startPath);

private:
    friend struct ProjectCleanupModelTestAccess;

    // A folder as found, with what it was on disk then: a folder at trash time that is not the
    // same one (replaced, now a link, gone) is left alone.
    struct Found {
        ProjectDir dir;
        bool measured = false;
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
    };
    struct FoundGroup {
        std::string path;
        std::vector<const Found*> members;

        ProjectGroup group() const;
    };
    struct TickState {
        bool anyTickable = false;
        bool allTicked = true;  // every member that can be ticked is, and there is one
    };
    struct ScanRequest {
        std::vector<std::string> roots;
        std::vector<std::string> ignore;
        int minAgeDays = 0;
    };

    static void runScan(const ScanRequest& request, const std::shared_ptr<CancelToken>& token,
                        const QPointer<ProjectCleanupModel>& guard);
    void receiveDiscovered(const std::shared_ptr<CancelToken>& token, const std::vector<Found>& found);
    void receiveProgress(const std::shared_ptr<CancelToken>& token, int count);
    void receiveMeasured(const std::shared_ptr<CancelToken>& token, const ProjectDir& dir);
    void finish(const std::shared_ptr<CancelToken>& token);
    // The report belongs to the scan that runs now.
    bool isCurrent(const std::shared_ptr<CancelToken>& token) const;
    static bool mayTrash(const Found& found);
    // Takes folders off the list and their ticks with them.
    void removeDirs(const std::set<std::string>& paths);
    Found* find(const std::string& path);
    const Found* find(const std::string& path) const;
    bool isVisible(const ProjectDir& dir) const;
    std::vector<const Found*> sortedFound() const;
    std::vector<FoundGroup> foundGroups() const;
    TickState tickState(const std::vector<const Found*>& members) const;
    // Hands the list its rows (kept in place under the pointer's hold unless `reordered`) and
    // tells the figures; the kinds too when they may have changed.
    void publishNow(bool reordered = false, bool kindsMayChange = false);
    // For sizes, which come many a second: at most once per interval.
    void schedulePublish();
    std::vector<ProjectListModel::Row> listRows() const;

    QPointer<AppModel> model_;
    std::vector<Found> found_;
    bool isScanning_ = false;
    bool hasScanned_ = false;
    int foundCount_ = 0;
    std::set<std::string> selected_;
    bool sortByAge_ = false;
    bool groupByProject_ = false;
    std::set<std::string> activeKinds_;
    std::optional<std::string> overrideRoot_;
    std::shared_ptr<CancelToken> token_;
    std::vector<KindFacet> publishedFacets_;
    ProjectListModel rows_;
    QTimer publishTimer_;
    bool publishPending_ = false;
};
