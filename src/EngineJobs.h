#pragma once

#include "Models/CleanupTarget.h"
#include "Services/CleanOutcome.h"
#include "Services/Scanner.h"

#include <QFuture>

#include <cstdint>
#include <optional>

// The engine's blocking calls, started on the low-priority pool for the model's flows to await.
// The jobs own copies of what they work on, never the model.
namespace EngineJobs {

QFuture<std::optional<std::int64_t>> measure(const CleanupTarget& target, Scanner::Progress onProgress = {});
QFuture<CleanOutcome> clean(const CleanupTarget& target, bool moveToTrash);

}  // namespace EngineJobs
