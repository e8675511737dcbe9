#include "EngineJobs.h"

#include "Services/Cleaner.h"
#include "WorkQueues.h"

#include <QtConcurrent/QtConcurrentRun>

// The lambdas live here rather than inside the coroutines that await them: this compiler destroys
// captured values twice when the lambda is made inside a coroutine body.
namespace EngineJobs {

QFuture<std::optional<std::int64_t>> measure(const CleanupTarget& target, Scanner::Progress onProgress)
{
    return QtConcurrent::run(&WorkQueues::utility(), [target, onProgress = std::move(onProgress)] {
        return Scanner::size(target, onProgress);
    });
}

QFuture<CleanOutcome> clean(const CleanupTarget& target, bool moveToTrash)
{
    return QtConcurrent::run(&WorkQueues::utility(), [target, moveToTrash] { return Cleaner::clean(target, moveToTrash); });
}

}  // namespace EngineJobs
