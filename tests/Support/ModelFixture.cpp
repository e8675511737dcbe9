#include "Support/ModelFixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

const TargetState* ModelFixture::state(const std::string& id) const
{
    for (const auto& candidate : model->targets()) {
        if (candidate.id() == id)
            return &candidate;
    }
    return nullptr;
}

bool ModelFixture::waitUntil(const std::function<bool()>& done, int milliseconds)
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
