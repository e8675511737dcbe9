#include "WorkspaceActions.h"

#include "Platform/Workspace.h"

WorkspaceActions::WorkspaceActions(QObject* parent) : QObject(parent) {}

bool WorkspaceActions::open(const QString& path)
{
    return Workspace::open(path.toStdString());
}

bool WorkspaceActions::reveal(const QString& path)
{
    return Workspace::reveal(path.toStdString());
}
