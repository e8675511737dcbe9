#pragma once

#include <QThreadPool>

// The two pools background work runs on. The model's flows await futures from these and resume
// on the main thread.
namespace WorkQueues {

// Low priority: sizing and cleaning, which the user doesn't wait on.
QThreadPool& utility();
// Normal priority: scans a window is waiting for (disk map, duplicates, projects).
QThreadPool& userInitiated();

}  // namespace WorkQueues
