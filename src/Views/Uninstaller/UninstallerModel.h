#pragma once

#include "Models/AppInfo.h"
#include "Models/UninstallItem.h"
#include "Platform/PlatformProfile.h"
#include "Services/CancelToken.h"
#include "Services/Uninstaller.h"
#include "QtConversions.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "AppModel.h"

// The "Uninstall an App" window's model: which app is loaded, what was found with it, what the
// user chose, and the removal. Items are known to the view by their id text; paths stay bytes
// here, so a name that isn't UTF-8 is removed exactly as it lies on disk. Main thread only.
//
// The window shows the choosers itself: chooseApp() asks through filePickRequested (a file
// dialog) or appListRequested (on Linux, the user's own apps with "Other…"), and the view
// answers with load() or loadListed().
class UninstallerModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(bool hasApp READ hasApp NOTIFY appChanged)
    Q_PROPERTY(QString appName READ appName NOTIFY appChanged)
    Q_PROPERTY(QString appIdentifier READ appIdentifier NOTIFY appChanged)
    // A file URL of the app's own picture, or empty when it has none.
    Q_PROPERTY(QString appIconSource READ appIconSource NOTIFY appChanged)
    // [{id, label, path ("~" for the home), size, isBundle, selected}], the app first.
    Q_PROPERTY(QVariantList items READ itemList NOTIFY itemsChanged)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY itemsChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY itemsChanged)
    Q_PROPERTY(qint64 totalSelectedSize READ totalSelectedSize NOTIFY itemsChanged)
    Q_PROPERTY(bool allSelected READ allSelected NOTIFY itemsChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
    Q_PROPERTY(bool isRemoving READ isRemoving NOTIFY isRemovingChanged)
    Q_PROPERTY(QString resultMessage READ resultMessage NOTIFY resultMessageChanged)
    // The Linux profile picks from a list of the user's apps; a Mac picks a bundle from a file
    // dialog.
    Q_PROPERTY(bool listsApps READ listsApps CONSTANT)
    // [{name, identifier, iconSource}], filled by chooseApp() on the Linux profile.
    Q_PROPERTY(QVariantList installedApps READ installedApps NOTIFY installedAppsChanged)
    // How long a result stays on screen, in milliseconds.
    Q_PROPERTY(int messageLifetime READ messageLifetime WRITE setMessageLifetime NOTIFY messageLifetimeChanged)

public:
    static constexpr int defaultMessageLifetime = 8000;

    explicit UninstallerModel(QObject* parent = nullptr);
    // For a profile other than this build's, as the tests ask for.
    UninstallerModel(PlatformProfile profile, QObject* parent = nullptr);

    AppModel* model() const { return model_; }
    void setModel(AppModel* model);

    const std::optional<AppInfo>& app() const { return app_; }
    const std::vector<UninstallItem>& items() const { return items_; }
    const std::set<Uuid>& selected() const { return selected_; }
    const std::optional<QString>& optionalResultMessage() const { return resultMessage_; }

    bool hasApp() const { return app_.has_value(); }
    QString appName() const;
    QString appIdentifier() const;
    QString appIconSource() const;
    QVariantList itemList() const;
    int itemCount() const { return int(items_.size()); }
    int selectedCount() const { return int(selected_.size()); }
    qint64 totalSelectedSize() const;
    bool allSelected() const { return !items_.empty() && selected_.size() == items_.size(); }
    bool isScanning() const { return isScanning_; }
    bool isRemoving() const { return isRemoving_; }
    QString resultMessage() const { return resultMessage_.value_or(QString()); }
    bool listsApps() const { return profile_ == PlatformProfile::linuxDesktop; }
    QVariantList installedApps() const;
    int messageLifetime() const { return messageLifetime_; }
    void setMessageLifetime(int milliseconds);

    // Refuses system apps with a message and leaves what was loaded; otherwise inspects the app
    // and searches for its leftovers in the background, every item chosen once found.
    void load(const std::string& appPath);
    void toggle(const Uuid& id);
    // Moves the chosen items to the Trash and records the removal in the model's history.
    void uninstall();

    Q_INVOKABLE void chooseApp();
    // "Other…" beside the list of apps: a file dialog in the home folder.
    Q_INVOKABLE void chooseOtherFile();
    Q_INVOKABLE void load(const QString& appPath) { load(QtConversions::toStd(appPath)); }
    // By index into installedApps; out-of-range indexes do nothing.
    Q_INVOKABLE void loadListed(int index);
    Q_INVOKABLE void toggleSelectAll();
    Q_INVOKABLE void toggleItem(const QString& id);
    Q_INVOKABLE void reset();
    Q_INVOKABLE void uninstallSelected() { uninstall(); }

signals:
    void modelChanged();
    void appChanged();
    void itemsChanged();
    void isScanningChanged();
    void isRemovingChanged();
    void resultMessageChanged();
    void installedAppsChanged();
    void messageLifetimeChanged();
    // The view shows a file dialog starting at `startFolder` and calls load() with the choice.
    void filePickRequested(const QString& startFolder);
    // The view shows installedApps to pick from, with "Other…" for a file dialog.
    void appListRequested();

private:
    std::optional<QString> refusal(const std::string& appPath) const;
    void receiveLeftovers(const std::shared_ptr<CancelToken>& token, std::vector<UninstallItem> items);
    void finishRemoval(const QString& name, const Uninstaller::RemoveResult& result);
    void setResultMessage(std::optional<QString> message);
    // Shows an outcome for a while; a newer message is never cleared by an older one's timer.
    void showResultForAWhile(const QString& message);
    void setScanning(bool scanning);
    void setRemoving(bool removing);

    PlatformProfile profile_;
    QPointer<AppModel> model_;
    std::optional<AppInfo> app_;
    std::vector<UninstallItem> items_;
    std::set<Uuid> selected_;
    bool isScanning_ = false;
    bool isRemoving_ = false;
    std::optional<QString> resultMessage_;
    std::uint64_t messageGeneration_ = 0;
    int messageLifetime_ = defaultMessageLifetime;
    std::shared_ptr<CancelToken> scanToken_;
    std::vector<AppInfo> installedApps_;
};
