#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>

// Work that background threads hand back to the main thread for an object that may be gone by
// then. The call is posted to the application object, not to `target`, so posting never touches
// a possibly destroyed object from another thread; `target` is checked on the main thread.
namespace MainThread {

template <typename Target, typename Work>
void post(QPointer<Target> target, Work work)
{
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [target, work = std::move(work)] {
            if (target)
                work(*target);
        },
        Qt::QueuedConnection);
}

}  // namespace MainThread
