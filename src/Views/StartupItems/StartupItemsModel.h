#pragma once

#include "Models/StartupItem.h"
#include "Services/LaunchAgentManager.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <vector>

// The "Startup & Background Items" window's model: the user's launch agents and desktop
// autostart entries, each with a switch that moves its file aside or back. Main thread only;
// a switch runs on a background pool, and the list is read afresh afterwards, so a switch that
// could not move its file falls back to where it was.
class StartupItemsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    // Live launch agents, switched-off ones, then autostart entries likewise:
    // [{id, label, program, enabled, fileName, isAutostart}].
    Q_PROPERTY(QVariantList items READ itemList NOTIFY itemsChanged)
    Q_PROPERTY(int count READ count NOTIFY itemsChanged)
    // The id of the item being switched; empty when none is.
    Q_PROPERTY(QString busyID READ busyID NOTIFY busyIDChanged)

public:
    explicit StartupItemsModel(QObject* parent = nullptr);

    void setLaunchAgentTools(LaunchAgentManager::Tools tools) { tools_ = std::move(tools); }

    const std::vector<StartupItem>& items() const { return items_; }
    QVariantList itemList() const;
    int count() const { return static_cast<int>(items_.size()); }
    QString busyID() const { return busyID_; }

    // Reads the items afresh, as the window does when it appears.
    Q_INVOKABLE void refresh();
    // Switches the item with this id to the other state; an unknown id does nothing.
    Q_INVOKABLE void toggle(const QString& id);
    // Opens the desktop's own settings for what starts with the session: the system's Login
    // Items on macOS; on Linux the desktop's startup settings program, else the autostart folder.
    Q_INVOKABLE bool openStartupSettings();

signals:
    void itemsChanged();
    void busyIDChanged();

private:
    void finishToggle();

    LaunchAgentManager::Tools tools_;
    std::vector<StartupItem> items_;
    QString busyID_;
};
