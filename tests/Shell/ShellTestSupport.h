#pragma once

#include "Support/EventLoop.h"

#include "Shell/WindowDefinition.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QThread>
#include <QUrl>

#include <functional>

namespace ShellTestSupport {

inline QUrl testView(const char* name)
{
    return QUrl::fromLocalFile(QStringLiteral(MOPWELL_SHELL_TEST_DIR "/") + QLatin1String(name));
}

// A fixed "confirm" window, a resizable one that reopens where it was left, and one whose view
// isn't there.
inline std::vector<WindowDefinition> testWindows()
{
    return {
        {"confirm", testView("FixedWindow.qml"), "Confirm Cleanup", std::nullopt, true},
        {"diskmap", testView("FixedWindow.qml"), "Disk Map", QSize(760, 560), false},
        {"about", testView("NoSuchView.qml"), "About Mopwell", std::nullopt, true},
    };
}

inline int windowsTitled(const QString& title)
{
    int count = 0;
    for (QWindow* window : QGuiApplication::topLevelWindows())
        count += window->isVisible() && window->title() == title;
    return count;
}

// Spins the event loop until `done` holds or a few seconds pass; true when it held.
inline bool eventually(const std::function<bool()>& done)
{
    return EventLoop::waitUntil(done, 5000);
}

inline void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

}  // namespace ShellTestSupport
