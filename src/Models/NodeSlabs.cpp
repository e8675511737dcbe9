#include "Models/NodeSlabs.h"

#include "Platform/AlignedPages.h"

#include <atomic>
#include <cstdint>
#include <new>

namespace NodeSlabs {
namespace {

// Slabs are aligned to their size, so a record finds its slab by masking its address.
constexpr std::size_t slabBytes = 64 * 1024;

// While a thread fills a slab, the count of live records starts at `filling` and only goes down
// as records are freed; it can't reach 0 however many are. When the thread moves on, it adds
// the number it cut minus `filling`, leaving exactly the records still alive: one atomic step per
// slab rather than one per record.
constexpr std::uint32_t filling = 1u << 31;

struct Slab {
    std::atomic<std::uint32_t> live{filling};
};

constexpr std::size_t headerBytes = (sizeof(Slab) + 7) & ~std::size_t(7);
static_assert(largestCut + headerBytes <= slabBytes);

std::atomic<std::size_t> slabsMapped{0};

void release(Slab* slab, std::uint32_t dropped)
{
    if (slab->live.fetch_sub(dropped, std::memory_order_acq_rel) == dropped) {
        slab->~Slab();
        AlignedPages::unmap(slab, slabBytes);
        slabsMapped.fetch_sub(1, std::memory_order_relaxed);
    }
}

class Filler {
public:
    ~Filler() { leave(); }

    void* take(std::size_t bytes)
    {
        bytes = (bytes + 7) & ~std::size_t(7);
        if (!slab_ || used_ + bytes > slabBytes)
            refill();
        void* record = reinterpret_cast<char*>(slab_) + used_;
        used_ += bytes;
        ++cut_;
        return record;
    }

private:
    void refill()
    {
        leave();
        slab_ = new (AlignedPages::map(slabBytes)) Slab;
        slabsMapped.fetch_add(1, std::memory_order_relaxed);
        used_ = headerBytes;
        cut_ = 0;
    }

    // Unsigned arithmetic: takes `filling` back and counts the records cut.
    void leave()
    {
        if (slab_)
            release(slab_, filling - cut_);
        slab_ = nullptr;
    }

    Slab* slab_ = nullptr;
    std::size_t used_ = 0;
    std::uint32_t cut_ = 0;
};

thread_local Filler filler;

}  // namespace

void* take(std::size_t bytes)
{
    return filler.take(bytes);
}

void give(void* record)
{
    release(reinterpret_cast<Slab*>(reinterpret_cast<std::uintptr_t>(record) & ~(slabBytes - 1)), 1);
}

std::size_t mappedBytes()
{
    return slabsMapped.load(std::memory_order_relaxed) * slabBytes;
}

}  // namespace NodeSlabs
