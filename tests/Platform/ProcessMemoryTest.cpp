#include "Platform/ProcessMemory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

#include <unistd.h>

namespace {

long residentBytes()
{
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

}  // namespace

// What a closed window leaves: most of many small blocks freed, a few still alive between them,
// so the heap cannot simply shrink from its end.
TEST(ProcessMemory, GivesBackThePagesOfBlocksFreedBetweenLiveOnes)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer's allocator stands in for the C library's";
#endif
    constexpr std::size_t blockSize = 4000, blocks = 8000;  // some 32 MB
    std::vector<std::unique_ptr<char[]>> heap(blocks);
    for (auto& block : heap) {
        block.reset(new char[blockSize]);
        std::memset(block.get(), 1, blockSize);
    }
    for (std::size_t i = 0; i < blocks; ++i) {
        if (i % 32 != 31)
            heap[i].reset();
    }
    const long before = residentBytes();
    ProcessMemory::releaseFreePages();
    EXPECT_LT(residentBytes(), before - 16 * 1024 * 1024);
}
