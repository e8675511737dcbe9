#pragma once

#include "Platform/PlatformProfile.h"

#include <QObject>
#include <QString>
#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

// The few user-visible words that name things of the desktop itself — its file manager, its
// startup settings — written once, in the words of the desktop the build runs on. Views bind to
// `DesktopWords.revealInFileManager`; C++ reads the same words through `forProfile`. A new text
// that names a platform-only thing belongs here, with both readings.
class DesktopWords : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString fileManager READ fileManager CONSTANT)
    Q_PROPERTY(QString revealInFileManager READ revealInFileManager CONSTANT)
    Q_PROPERTY(QString revealProjectInFileManager READ revealProjectInFileManager CONSTANT)
    Q_PROPERTY(QString openStartupSettings READ openStartupSettings CONSTANT)
    Q_PROPERTY(QString startupItemsElsewhere READ startupItemsElsewhere CONSTANT)
    Q_PROPERTY(QString snapshotsDescription READ snapshotsDescription CONSTANT)
    Q_PROPERTY(QString snapshotsRemovedLater READ snapshotsRemovedLater CONSTANT)
    Q_PROPERTY(QString openFolderHint READ openFolderHint CONSTANT)
    Q_PROPERTY(QString welcomeSubtitle READ welcomeSubtitle CONSTANT)
    Q_PROPERTY(QString howDoYouUseThisComputer READ howDoYouUseThisComputer CONSTANT)
    Q_PROPERTY(QString openFromStatusIcon READ openFromStatusIcon CONSTANT)
    Q_PROPERTY(QString clickTheStatusIcon READ clickTheStatusIcon CONSTANT)
    Q_PROPERTY(QString statusIconShows READ statusIconShows CONSTANT)
    Q_PROPERTY(QString statusIconShowsNoText READ statusIconShowsNoText CONSTANT)
    Q_PROPERTY(QString everydayCachesInOneGo READ everydayCachesInOneGo CONSTANT)
    Q_PROPERTY(QString developerToolsExamples READ developerToolsExamples CONSTANT)
    Q_PROPERTY(QString developerModeReveals READ developerModeReveals CONSTANT)

public:
    struct Words {
        QString fileManager;
        QString revealInFileManager;
        QString revealProjectInFileManager;
        QString openStartupSettings;
        // What a screen reader says to do on a folder that opens: the gesture its desktop uses.
        QString openFolderHint;
        // The startup items the startup window leaves to the desktop's own settings.
        QString startupItemsElsewhere;
        // What local snapshots are, and what removing them does.
        QString snapshotsDescription;
        // A removal succeeded but the volume has not shown the space yet.
        QString snapshotsRemovedLater;
        // The welcome's words for the computer and for where the status icon lives.
        QString welcomeSubtitle;
        QString howDoYouUseThisComputer;
        QString openFromStatusIcon;
        QString clickTheStatusIcon;
        // The setting of what the status item says beside its picture (a Mac's menu bar) or in
        // its tooltip (a Linux status area, whose slot holds the gauge alone), and its choice of
        // saying nothing.
        QString statusIconShows;
        QString statusIconShowsNoText;
        // The two kinds of user: one gesture cleans the everyday caches; a developer's tools are
        // the ones this desktop's catalog has.
        QString everydayCachesInOneGo;
        QString developerToolsExamples;
        QString developerModeReveals;
    };

    // The words of `profile`, translated into the running language.
    static Words forProfile(PlatformProfile profile);
    // The words of this build's desktop, in the running language.
    static Words current();

    static DesktopWords* create(QQmlEngine* engine, QJSEngine* scriptEngine);

    QString fileManager() const { return current().fileManager; }
    QString revealInFileManager() const { return current().revealInFileManager; }
    QString revealProjectInFileManager() const { return current().revealProjectInFileManager; }
    QString openStartupSettings() const { return current().openStartupSettings; }
    QString startupItemsElsewhere() const { return current().startupItemsElsewhere; }
    QString snapshotsDescription() const { return current().snapshotsDescription; }
    QString snapshotsRemovedLater() const { return current().snapshotsRemovedLater; }
    QString openFolderHint() const { return current().openFolderHint; }
    QString welcomeSubtitle() const { return current().welcomeSubtitle; }
    QString howDoYouUseThisComputer() const { return current().howDoYouUseThisComputer; }
    QString openFromStatusIcon() const { return current().openFromStatusIcon; }
    QString clickTheStatusIcon() const { return current().clickTheStatusIcon; }
    QString statusIconShows() const { return current().statusIconShows; }
    QString statusIconShowsNoText() const { return current().statusIconShowsNoText; }
    QString everydayCachesInOneGo() const { return current().everydayCachesInOneGo; }
    QString developerToolsExamples() const { return current().developerToolsExamples; }
    QString developerModeReveals() const { return current().developerModeReveals; }

private:
    explicit DesktopWords(QObject* parent = nullptr);
};
