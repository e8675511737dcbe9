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

QUrl WorkspaceActions::folderUrl(const QString& path)
{
    return QUrl::fromLocalFile(path);
}

QString WorkspaceActions::localPath(const QUrl& url)
{
    if (!url.isLocalFile())
        return {};
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return QtConversions::toQt(bytes.toStdString());
}
