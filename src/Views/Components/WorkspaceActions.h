#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqml.h>

// Opening and revealing items from the views: `WorkspaceActions.reveal(path)` shows a file
// selected in the file manager.
class WorkspaceActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit WorkspaceActions(QObject* parent = nullptr);

    // Opens the item with the desktop's default application.
    Q_INVOKABLE bool open(const QString& path);
    // Shows the item in the file manager, else opens the folder that holds it.
    Q_INVOKABLE bool reveal(const QString& path);

    // The address a file dialog takes for a folder, and the path of the one it hands back. Qt
    // builds and reads them, so a "#", a "%" or a space in a name stays part of the name.
    Q_INVOKABLE static QUrl folderUrl(const QString& path);
    // Byte for byte: a name that is not UTF-8 comes back as the file system spells it. Empty for
    // an address that is not a local file.
    Q_INVOKABLE static QString localPath(const QUrl& url);
};
