#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <functional>

namespace EventLoop {

// Spins the event loop until `done` holds or the time runs out; true when it held.
inline bool waitUntil(const std::function<bool()>& done, int milliseconds = 10'000)
{
    QDeadlineTimer deadline(milliseconds);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(2);
    }
    return true;
}

}  // namespace EventLoop
