#include "Platform/AlignedPages.h"

#include <cstdint>
#include <new>
#include <sys/mman.h>

namespace AlignedPages {
namespace {

char* mapped(std::size_t bytes)
{
    void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    return static_cast<char*>(memory);
}

}  // namespace

// New mappings mostly lie just below the last one, so a run of them usually comes aligned at the
// first try; otherwise twice the size is mapped and trimmed to an aligned block.
void* map(std::size_t bytes)
{
    char* memory = mapped(bytes);
    if (reinterpret_cast<std::uintptr_t>(memory) % bytes == 0)
        return memory;
    munmap(memory, bytes);
    char* wide = mapped(2 * bytes);
    const std::size_t head = (bytes - reinterpret_cast<std::uintptr_t>(wide) % bytes) % bytes;
    if (head > 0)
        munmap(wide, head);
    munmap(wide + head + bytes, bytes - head);
    return wide + head;
}

void* mapPages(std::size_t bytes)
{
    return mapped(bytes);
}

void unmap(void* memory, std::size_t bytes)
{
    munmap(memory, bytes);
}

}  // namespace AlignedPages
