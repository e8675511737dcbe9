#pragma once

#include "Models/DiskNode.h"
#include "Services/CancelToken.h"
#include "QtConversions.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "AppModel.h"

// The disk map window's model: runs the scan, grows a provisional tree from the entries the scan
// streams, keeps the drill-down stack and the selection, remembers the scanned folder between
// launches and moves items to the Trash. Main thread only.
//
// The window shows the folder dialog itself: pickFolderAndScan() asks for one through
// folderPickRequested, and the view answers with scan(path).
class DiskMapModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY phaseChanged)
    Q_PROPERTY(bool hasRoot READ hasRoot NOTIFY phaseChanged)
    Q_PROPERTY(QString rootPath READ rootPathText NOTIFY rootPathChanged)
    Q_PROPERTY(qint64 scannedBytes READ scannedBytes NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    // The entered folders, the root first: [{id, name, size, sizeText}]. An index is a depth
    // for goTo().
    Q_PROPERTY(QVariantList breadcrumb READ breadcrumb NOTIFY treeChanged)
    // What the focused folder holds, largest first, the "(smaller items)" node last:
    // [{id, name, size, sizeText, isDirectory, isSynthetic, category, canZoom}].
    Q_PROPERTY(QVariantList children READ childList NOTIFY treeChanged)
    Q_PROPERTY(QString currentName READ currentName NOTIFY treeChanged)
    Q_PROPERTY(qint64 currentSize READ currentSize NOTIFY treeChanged)
    Q_PROPERTY(int childCount READ childCount NOTIFY treeChanged)
    // The focused folder and the selection as the views show them (see DiskNodeText::describe);
    // empty maps when there is none. The focused folder's name is its path, "~" for home.
    Q_PROPERTY(QVariantMap currentNode READ currentNode NOTIFY treeChanged)
    Q_PROPERTY(QVariantMap selectedNode READ selectedNode NOTIFY selectionChanged)
    // The selection's place in `children`, or -1.
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectionChanged)
    // The kinds of content the focused folder shows, in legend order: [{label, color}].
    Q_PROPERTY(QVariantList presentCategories READ presentCategories NOTIFY treeChanged)
    Q_PROPERTY(QString selectedId READ selectedId NOTIFY selectionChanged)
    Q_PROPERTY(QString selectedName READ selectedName NOTIFY selectionChanged)
    Q_PROPERTY(bool canTrashSelection READ canTrashSelection NOTIFY selectionChanged)
    // [{label, symbol, path}]
    Q_PROPERTY(QVariantList presets READ presets CONSTANT)

public:
    // No tree yet; a scan under way (with a provisional tree once entries arrive); a finished or
    // stopped scan's tree.
    enum class Phase { empty, scanning, ready };
    Q_ENUM(Phase)

    static constexpr const char* rootKey = "diskMapRoot";

    explicit DiskMapModel(QObject* parent = nullptr);
    ~DiskMapModel() override;

    AppModel* model() const { return model_; }
    // Also reads the folder last scanned from the model's defaults store, unless a scan has
    // already been started here.
    void setModel(AppModel* model);

    Phase phase() const;
    bool isScanning() const { return isScanning_; }
    bool hasRoot() const { return root_.has_value(); }
    const std::string& rootPath() const { return rootPath_; }
    QString rootPathText() const { return QtConversions::toQt(rootPath_); }
    qint64 scannedBytes() const { return scannedBytes_; }
    QString progressText() const;

    const std::optional<DiskNode>& root() const { return root_; }
    const std::vector<DiskNode>& stack() const { return stack_; }
    const std::optional<DiskNode>& selection() const { return selection_; }
    // The focused folder: the last entered one, else the root.
    std::optional<DiskNode> current() const;
    std::vector<DiskNode> breadcrumbNodes() const;

    QVariantList breadcrumb() const;
    QVariantList childList() const;
    QString currentName() const;
    qint64 currentSize() const;
    int childCount() const;
    QVariantMap currentNode() const;
    QVariantMap selectedNode() const;
    int selectedIndex() const;
    QVariantList presentCategories() const;
    QString selectedId() const;
    QString selectedName() const;
    bool canTrashSelection() const { return selection_ && canTrash(*selection_); }
    static QVariantList presets();

    // Operations on nodes, for C++ callers.
    void zoom(const DiskNode& node);
    void setSelection(std::optional<DiskNode> node);
    // The home folder itself, synthetic nodes and what lies outside the home folder unless the
    // cleaner's safety test allows it can't go. Links in the path are resolved first.
    static bool canTrash(const DiskNode& node);
    void trash(const DiskNode& node);

    // Empty `path` scans rootPath again.
    Q_INVOKABLE void scan(const QString& path = {});
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void pickFolderAndScan() { emit folderPickRequested(rootPathText()); }
    // By index into `children`; out-of-range indexes do nothing.
    Q_INVOKABLE void zoomInto(int childIndex);
    Q_INVOKABLE void select(int childIndex);
    Q_INVOKABLE void clearSelection() { setSelection(std::nullopt); }
    // A depth below 1 returns to the root; selection is cleared either way.
    Q_INVOKABLE void goTo(int depth);
    Q_INVOKABLE void goUp();
    // Steps through `children`, held at both ends; without a selection in the list, selects the
    // first child.
    Q_INVOKABLE void moveSelection(int step);
    Q_INVOKABLE void trashSelection();
    // A child of the focused folder, described as currentNode is; an empty map when out of range.
    Q_INVOKABLE QVariantMap childNode(int childIndex) const;
    // By id, for a node the user picked from the map, the list or a menu: a child of the focused
    // folder or the selection. Unknown ids can't be trashed and trash nothing.
    Q_INVOKABLE bool canTrashNode(const QString& id) const;
    Q_INVOKABLE void trashNode(const QString& id);
    // The mounted volumes the user may scan besides the presets: [{label, symbol, path}].
    Q_INVOKABLE static QVariantList volumes();

signals:
    void modelChanged();
    void phaseChanged();
    void rootPathChanged();
    void progressChanged();
    void treeChanged();
    void selectionChanged();
    // The view shows a folder dialog starting at `startPath` and calls scan() with the choice.
    void folderPickRequested(const QString& startPath);

private:
    void receiveProgress(const std::shared_ptr<CancelToken>& token, std::int64_t bytes);
    void receiveChild(const std::shared_ptr<CancelToken>& token, DiskNode node);
    void finish(const std::shared_ptr<CancelToken>& token, DiskNode node);
    // Merges the entries received since the last merge into partialChildren_ and, unless the
    // user has entered a folder, replaces the provisional root.
    void mergePending();
    void setScanning(bool scanning);
    void replaceRoot(std::optional<DiskNode> root);
    std::optional<DiskNode> nodeWithId(const std::string& id) const;

    QPointer<AppModel> model_;
    std::string rootPath_;
    bool scanStarted_ = false;
    bool isScanning_ = false;
    std::int64_t scannedBytes_ = 0;
    std::optional<DiskNode> root_;
    std::vector<DiskNode> stack_;
    std::optional<DiskNode> selection_;
    std::shared_ptr<CancelToken> token_;
    std::string scanPath_;                  // rootPath_ expanded, for the provisional root
    std::vector<DiskNode> partialChildren_;  // largest first, stable among equals
    std::vector<DiskNode> pending_;          // arrived, not merged yet, in arrival order
    // A folder with many entries streams them faster than a tree can be rebuilt per entry, so
    // merges are gathered up and the provisional root is rebuilt a few dozen times a second.
    QTimer mergeTimer_;
};
