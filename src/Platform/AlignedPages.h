#pragma once

#include <cstddef>

// Memory taken from the system in whole pages rather than from the allocator, for stores that
// want it back in the system the moment they let go of it: an allocator keeps what is freed in
// its arenas, where a thread that built a large structure leaves it behind.
namespace AlignedPages {

// `bytes` of zeroed memory aligned to `bytes`, a power of two and a multiple of the page size.
// Throws std::bad_alloc when the system has none.
void* map(std::size_t bytes);

// `bytes` of zeroed memory at a page boundary, of any size.
void* mapPages(std::size_t bytes);

// Gives back what map(bytes) or mapPages(bytes) returned.
void unmap(void* memory, std::size_t bytes);

}  // namespace AlignedPages
