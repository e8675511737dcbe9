#pragma once

#include "Platform/AlignedPages.h"

#include <cstddef>
#include <new>

// For the buffers a walk grows as it goes deeper or meets a larger folder. Past a few pages a
// buffer is mapped from the system on its own, so the smaller one it outgrew goes back to the
// system the moment its contents are moved; from the general allocator, every size a buffer
// passed through would stay resident in the heap until the process ends, about a tenth of the
// peak memory of a walk thousands of levels deep.
template <typename T>
class PageAllocator {
public:
    using value_type = T;

    PageAllocator() = default;
    template <typename U>
    PageAllocator(const PageAllocator<U>&) noexcept
    {
    }

    T* allocate(std::size_t count)
    {
        const std::size_t bytes = count * sizeof(T);
        return static_cast<T*>(bytes >= smallestMapped ? AlignedPages::mapPages(bytes) : ::operator new(bytes));
    }

    void deallocate(T* memory, std::size_t count) noexcept
    {
        const std::size_t bytes = count * sizeof(T);
        if (bytes >= smallestMapped)
            AlignedPages::unmap(memory, bytes);
        else
            ::operator delete(memory, bytes);
    }

    friend bool operator==(const PageAllocator&, const PageAllocator&) { return true; }

    // Below this a buffer is cheaper to take from the allocator, and what it leaves behind small.
    static constexpr std::size_t smallestMapped = 16384;
};

// Gives a buffer's room back once it holds less than a quarter of it, so the memory a deep part
// of a tree needed goes when the walk has climbed out of it rather than when the walk ends. Room
// is given back on a quarter and taken on full, so the copies stay a fixed share of the pushes.
template <typename Buffer>
void releaseUnused(Buffer& buffer)
{
    constexpr std::size_t worthReleasing = 4 * PageAllocator<char>::smallestMapped;
    if (buffer.capacity() * sizeof(typename Buffer::value_type) >= worthReleasing &&
        buffer.size() < buffer.capacity() / 4)
        buffer.shrink_to_fit();
}
