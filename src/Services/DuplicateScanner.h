#pragma once

#include "Models/FileScanResult.h"
#include "Services/BucketHasher.h"
#include "Services/CancelToken.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// One walk of a folder tree that answers two questions: which are its largest files, and which
// files have byte-for-byte the same contents. Hidden entries are left out, links are never
// followed, and a file's size is what it takes on disk.
namespace DuplicateScanner {

// At most this many files in `largest`.
inline constexpr std::size_t largestCap = 100;
// Smaller files never take part in duplicate detection: 999,999 bytes don't, 1,000,000 do.
inline constexpr std::int64_t duplicateFloor = 1'000'000;
// One progress report for every this many files.
inline constexpr std::int64_t progressStep = 500;

using Progress = std::function<void(std::int64_t filesSeen)>;
using ResultHandler = std::function<void(const FileScanResult& result)>;

struct Options {
    BucketHasher::Options hashing;
    BucketHasher::Counters* counters = nullptr;
};

// Blocks until done; the caller puts it on a background thread, where both callbacks run.
// `onProgress` gets the count of files found at every 500th file and once after the walk.
// `onResult` gets a picture that replaces the last: the largest files with no groups as soon as
// the walk ends, then after each size (largest first) that yields copies the groups so far, most
// space to gain first, and a final picture, with or without groups. `root` may begin with "~".
//
// A root that can't be opened as a folder gives no call at all. A cancellation during the walk
// ends the scan with no result; during the hashing, the last picture delivered stands.
void scan(const std::string& root, const std::shared_ptr<CancelToken>& token, const Progress& onProgress,
          const ResultHandler& onResult, const Options& options = {});

// The steps between the walk and the hashing, for the scan and its tests.

// The first `largestCap` files by descending size; equal sizes keep their order in `all`.
std::vector<ScannedFile> largest(const std::vector<ScannedFile>& all);

// The files at or above the floor gathered by size, larger sizes first, each bucket in the order
// of `all`. Sizes met only once are left out: such a file can't have a copy.
std::vector<std::vector<ScannedFile>> candidateBuckets(const std::vector<ScannedFile>& all);

// Descending by reclaimable space; equal amounts keep their order.
std::vector<DuplicateGroup> sortedGroups(std::vector<DuplicateGroup> groups);

// The groups of one bucket: files with equal digests, in the order their digest first appears;
// files without a digest are left out, and digests with a single file give no group.
std::vector<DuplicateGroup> groupsOf(const std::vector<ScannedFile>& bucket,
                                     const std::vector<std::optional<std::string>>& digests);

}  // namespace DuplicateScanner
