#include "WorkspaceActions.h"

#include "Platform/Workspace.h"
#include "QtConversions.h"

WorkspaceActions::WorkspaceActions(QObject* parent) : QObject(parent) {}

bool WorkspaceActions::open(const QString& path)
{
    return Workspace::open(QtConversions::toStd(path));
}

bool WorkspaceActions::reveal(const QString& path)
{
    return Workspace::reveal(QtConversions::toStd(path));
}
