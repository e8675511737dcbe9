#include "Shell.h"

#include <QCoreApplication>
#include <QJSEngine>

Shell::Shell(QObject* parent) : QObject(parent) {}

Shell& Shell::instance()
{
    // Owned by the application object so it goes before Qt does.
    static Shell* const shell = new Shell(QCoreApplication::instance());
    return *shell;
}

Shell* Shell::create(QQmlEngine*, QJSEngine*)
{
    Shell* shell = &instance();
    // Every engine sees the same object; none of them may delete it.
    QJSEngine::setObjectOwnership(shell, QJSEngine::CppOwnership);
    return shell;
}

void Shell::openWindow(const QString& id)
{
    emit windowRequested(id);
}

void Shell::closeWindow(const QString& id)
{
    emit windowCloseRequested(id);
}

void Shell::post(const QString& name)
{
    emit posted(name);
}

void Shell::quit()
{
    emit quitRequested();
}

void Shell::setUpdater(Updater* updater)
{
    if (updater_ == updater)
        return;
    updater_ = updater;
    emit updaterChanged();
}
