#pragma once

#include <QObject>
#include <QString>
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
};
