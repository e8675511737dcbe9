#pragma once

#include "AppModel.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <functional>


// The settings window's model: what must happen after a choice beyond storing it (the refresh
// timer restarted, the schedule counted from now, the target list rebuilt) and the two choices
// that live outside the settings store, starting at login and the language. Main thread only.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    // Starting at login needs the installed application's identity; without it the choice is off.
    Q_PROPERTY(bool loginAvailable READ loginAvailable CONSTANT)
    Q_PROPERTY(bool loginAtStart READ loginAtStart WRITE setLoginAtStart NOTIFY loginAtStartChanged)
    Q_PROPERTY(QString loginError READ loginError NOTIFY loginErrorChanged)
    Q_PROPERTY(QString folderError READ folderError NOTIFY folderErrorChanged)
    // [{code, name}]: "System default" (empty code), then the languages the build ships.
    Q_PROPERTY(QVariantList languages READ languages CONSTANT)
    Q_PROPERTY(QString language READ language NOTIFY languageChanged)
    Q_PROPERTY(bool relaunchNeeded READ relaunchNeeded NOTIFY languageChanged)

public:
    explicit SettingsModel(QObject* parent = nullptr);

    AppModel* model() const { return model_; }
    void setModel(AppModel* model);

    bool loginAvailable() const;
    bool loginAtStart() const { return loginAtStart_; }
    // Switches starting at login; on failure the message is kept and the switch shows the state
    // the entry is really in.
    void setLoginAtStart(bool enabled);
    QString loginError() const { return loginError_; }
    QString folderError() const { return folderError_; }
    QVariantList languages() const;
    QString language() const;
    bool relaunchNeeded() const { return relaunchNeeded_; }

    Q_INVOKABLE void setRefreshInterval(int seconds);
    // A new schedule counts its first period from now, not from an older automatic clean.
    Q_INVOKABLE void setCleanupSchedule(const QString& schedule);
    Q_INVOKABLE void setFinderMinAgeDays(int days);
    // "Any age", "1 day", "N days".
    Q_INVOKABLE static QString minimumAgeText(int days);

    // Folders as the chooser gives them (a file URL) or as paths. The custom folders pass the
    // cleaner's safety test and report a refusal in folderError; pinned and project folders are
    // kept once each. Every change rebuilds the target list.
    Q_INVOKABLE void addCustomFolder(const QUrl& folder);
    Q_INVOKABLE void removeCustomFolder(const QString& path);
    Q_INVOKABLE void addPinnedFolder(const QUrl& folder);
    Q_INVOKABLE void removePinnedFolder(const QString& path);
    Q_INVOKABLE void addProjectFolder(const QUrl& folder);
    Q_INVOKABLE void removeProjectFolder(const QString& path);

    Q_INVOKABLE void setLanguage(const QString& code);
    Q_INVOKABLE void relaunch();

    // The path a chosen folder's URL stands for, byte for byte.
    static QString pathOf(const QUrl& folder);

signals:
    void modelChanged();
    void loginAtStartChanged();
    void loginErrorChanged();
    void folderErrorChanged();
    void languageChanged();

private:
    void setFolderError(const QString& error);
    void setLoginError(const QString& error);
    // Applies `edit` to one of the folder lists; when it changed, stores it and rebuilds the targets.
    void editList(QStringList (AppSettings::*read)() const, void (AppSettings::*write)(const QStringList&),
                  const std::function<bool(QStringList&)>& edit);

    QPointer<AppModel> model_;
    bool loginAtStart_ = false;
    QString loginError_;
    QString folderError_;
    bool relaunchNeeded_ = false;
};
