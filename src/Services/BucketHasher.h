#pragma once

#include "Models/ScannedFile.h"
#include "Services/CancelToken.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The digests of one size bucket of the duplicate scan. How the bytes are read is its own
// business; what it answers is what hashing every file in full, one after another, would answer
// for the purpose of finding copies: a digest per file that can have a twin in the bucket.
namespace BucketHasher {

struct Options {
    // Leaves unread a file whose length or first or last block matches no other file of the
    // bucket: nothing can be a copy of it, so its digest could never join a group.
    bool setAsideByEnds = true;
    // Hashes only the first of the files that may be copies of each other and compares the rest
    // with it byte by byte, which reads faster than it hashes; a file that differs is hashed
    // itself. Equal bytes have equal digests, so every file gets the digest hashing would give.
    bool compareWithFirst = true;
    // Files hashed at once; 0 means one per core, at most four.
    unsigned threads = 0;
};

// What the hashing cost, for the benchmark; updated from several threads.
struct Counters {
    std::atomic<std::int64_t> filesHashed{0};
    std::atomic<std::int64_t> bytesHashed{0};
    std::atomic<std::int64_t> filesSetAside{0};
    std::atomic<std::int64_t> filesCompared{0};
};

// Fills `digests` with one entry per file of `files`: its SHA-256, or none when it can't be read
// or was set aside. Files are taken in order; a cancellation stops the taking of further files
// and lets those in hand finish. False when it stopped before every file was taken.
bool digests(const std::vector<ScannedFile>& files, const CancelToken* token, const Options& options,
             std::vector<std::optional<std::string>>& digests, Counters* counters = nullptr);

}  // namespace BucketHasher
