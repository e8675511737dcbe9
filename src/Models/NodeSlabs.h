#pragma once

#include <cstddef>

// Where the disk map's node records live. A walk makes hundreds of thousands of small records
// that are freed together when the map lets go of its tree; one allocation each costs more than
// building the record, and the allocator's header and rounding add a sixth to its size. So small
// records are cut one after the other from 64 KB slabs, each thread filling a slab of its own,
// and a slab goes back to the system once its last record is freed, on whatever thread that is.
// Slabs are mapped from the system directly, not taken from the allocator's arenas, so a tree's
// memory leaves the process when the tree goes instead of staying behind in the arena of the
// thread that built it. Large records (a folder of thousands of entries) are allocated on their
// own.
namespace NodeSlabs {

// Records at most this large come from a slab.
constexpr std::size_t largestCut = 1024;

// Memory for a record of `bytes` (at most largestCut), 8-byte aligned.
void* take(std::size_t bytes);

// Gives back what take() returned; any thread may call it.
void give(void* record);

// The bytes of the slabs mapped now, those being filled included.
std::size_t mappedBytes();

}  // namespace NodeSlabs
