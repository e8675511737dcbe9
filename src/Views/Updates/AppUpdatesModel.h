#pragma once

#include "Models/OutdatedPackage.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <vector>

// The "App & Tool Updates" window's model: what the user installed with Homebrew (and, on
// Linux desktops, with Flatpak in their own account) that is out of date, and the user's own
// upgrade commands on request. Main thread only; every command runs on a background pool.
class AppUpdatesModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    // The state for the views: "idle", "checking", "ready" or "unavailable".
    Q_PROPERTY(QString stateName READ stateName NOTIFY stateChanged)
    // Sorted by name: [{id, name, installed, current, isCask, isApp, symbol}].
    Q_PROPERTY(QVariantList packages READ packageList NOTIFY packagesChanged)
    Q_PROPERTY(int count READ count NOTIFY packagesChanged)
    Q_PROPERTY(bool busy READ busy NOTIFY busyChanged)
    // Empty when nothing has been said yet.
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    // Which sources the words speak of: those found by the last check, before it those tried.
    Q_PROPERTY(QString headerText READ headerText NOTIFY sourcesChanged)
    Q_PROPERTY(QString checkingText READ checkingText NOTIFY sourcesChanged)
    Q_PROPERTY(QString unavailableTitle READ unavailableTitle NOTIFY sourcesChanged)
    // Where to get the tools: [{text, url}].
    Q_PROPERTY(QVariantList installLinks READ installLinks NOTIFY sourcesChanged)
    Q_PROPERTY(bool canUpgradeAll READ canUpgradeAll NOTIFY canUpgradeAllChanged)

public:
    enum class State { idle, checking, ready, unavailable };
    Q_ENUM(State)

    struct Sources {
        bool homebrew = false;
        bool flatpak = false;
        bool any() const { return homebrew || flatpak; }
    };

    explicit AppUpdatesModel(QObject* parent = nullptr);

    State state() const { return state_; }
    QString stateName() const;
    const std::vector<OutdatedPackage>& packages() const { return packages_; }
    QVariantList packageList() const;
    int count() const { return static_cast<int>(packages_.size()); }
    bool busy() const { return busy_; }
    QString status() const { return status_; }
    QString headerText() const;
    QString checkingText() const;
    QString unavailableTitle() const;
    QVariantList installLinks() const;
    bool canUpgradeAll() const { return !busy_ && state_ == State::ready && !packages_.empty(); }

    // Looks for the package managers and their outdated packages; the window calls it when it
    // first appears (only from `idle`), "Re-check" from any state.
    Q_INVOKABLE void check();
    Q_INVOKABLE void checkIfIdle();
    // By package id; an unknown id or a running upgrade does nothing.
    Q_INVOKABLE void upgrade(const QString& id);
    Q_INVOKABLE void upgradeAll();

signals:
    void stateChanged();
    void packagesChanged();
    void busyChanged();
    void statusChanged();
    void sourcesChanged();
    void canUpgradeAllChanged();

private:
    void setState(State state);
    void setBusy(bool busy);
    void setStatus(const QString& status);
    void setPackages(std::vector<OutdatedPackage> packages);
    void receiveCheck(Sources found, std::vector<OutdatedPackage> packages);
    // The sources the words speak of.
    Sources shownSources() const;

    State state_ = State::idle;
    std::vector<OutdatedPackage> packages_;
    bool busy_ = false;
    QString status_;
    Sources tried_;
    Sources found_;
    bool checked_ = false;
};
