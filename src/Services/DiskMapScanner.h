#pragma once

#include "Models/DiskNode.h"
#include "Platform/DirectoryWalker.h"
#include "Platform/PlatformProfile.h"
#include "Services/CancelToken.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// Walks one folder into a tree of DiskNode for the disk map. Links are never followed (a link is
// measured as the small file it is), and a file with several hard links counts once per link.
// Each folder keeps its 60 largest entries of at least 0.4 % of its size; the rest hang below one
// "(smaller items)" node at the end of its children.
namespace DiskMapScanner {

using Progress = std::function<void(std::int64_t bytesSeen)>;
using ChildHandler = std::function<void(const DiskNode& entry)>;

// Whether entries whose names begin with "." are walked. A Mac keeps the space apps use in
// ~/Library, in plain sight, and its map leaves hidden entries out; a Linux desktop keeps it in
// dot-folders (~/.cache, ~/.local/share, ~/.var/app), which a map must show to be any use.
enum class HiddenEntries { skipped, included };

constexpr HiddenEntries hiddenEntriesOn(PlatformProfile profile)
{
    return profile == PlatformProfile::macOS ? HiddenEntries::skipped : HiddenEntries::included;
}

// Blocks until the walk ends; the caller puts it on a background thread. Both callbacks run on a
// thread of the scan's own, then on the calling thread once a large walk has moved building the
// tree there; one at a time either way, all before the call returns, and they must not block.
// `onProgress` gets the bytes seen so far as folders finish, at most every 50 ms, and always just
// before `onChild` gets a finished folder of the root. `onChild` gets each finished entry of the
// root in listing order, so the map can be drawn while the walk goes on. `root` may begin with
// "~".
//
// Never fails: a root that is a file comes back as a file node, one that can't be listed as an
// empty folder, and a cancelled scan returns what it gathered, with every folder's size the sum
// of what it holds (the caller is expected to drop it).
//
// On a tree the cache doesn't hold, helper threads read ahead of the walk; what the walk finds,
// and so the tree and the order of the streamed entries, is the same with or without them.
DiskNode scanStreaming(const std::string& root, const std::shared_ptr<CancelToken>& token,
                       const Progress& onProgress, const ChildHandler& onChild,
                       HiddenEntries hidden = hiddenEntriesOn(currentPlatformProfile()),
                       DirectoryWalker::ReadAheadMode readAhead = DirectoryWalker::ReadAheadMode::whenCold);

// The folding rule, given a folder's entries largest first and its size: entries from the 61st
// on, and those below 0.4 % of `parentTotal` (truncated to whole bytes), move below one
// "(smaller items)" node appended last, whose id is the largest entry's id + "#other". Small
// entries of 0 bytes in all are dropped, and a folder of 0 bytes shows nothing.
std::vector<DiskNode> prune(const DiskNode::Path& folder, std::vector<DiskNode> sortedEntries,
                            std::int64_t parentTotal);

}  // namespace DiskMapScanner
