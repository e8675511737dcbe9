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

public:
    struct Words {
        QString fileManager;
        QString revealInFileManager;
        QString revealProjectInFileManager;
        QString openStartupSettings;
    };

    // The words of `profile`, translated into the running language.
    static Words forProfile(PlatformProfile profile);
    // The words of this build's desktop.
    static const Words& current();

    static DesktopWords* create(QQmlEngine* engine, QJSEngine* scriptEngine);

    QString fileManager() const { return current().fileManager; }
    QString revealInFileManager() const { return current().revealInFileManager; }
    QString revealProjectInFileManager() const { return current().revealProjectInFileManager; }
    QString openStartupSettings() const { return current().openStartupSettings; }

private:
    explicit DesktopWords(QObject* parent = nullptr);
};
