#include "WorkQueues.h"

namespace WorkQueues {
namespace {

QThreadPool* makePool(QThread::Priority priority, int threads)
{
    auto* pool = new QThreadPool;
    pool->setThreadPriority(priority);
    // Sizing is bound by the disk, not the processor: several walks at once keep it busy.
    pool->setMaxThreadCount(threads);
    return pool;
}

}  // namespace

QThreadPool& utility()
{
    static QThreadPool* const pool = makePool(QThread::LowPriority, 8);
    return *pool;
}

QThreadPool& userInitiated()
{
    static QThreadPool* const pool = makePool(QThread::NormalPriority, 4);
    return *pool;
}

}  // namespace WorkQueues
