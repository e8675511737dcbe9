#include "Platform/PageAllocator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

// A buffer that grew large gives its room back once it holds less than a quarter of it, with its
// contents; one still a quarter full keeps its room, as does one too small to be worth a copy.
TEST(PageAllocatorTest, BuffersGiveTheirRoomBackOnceMostlyEmpty)
{
    std::vector<std::uint64_t, PageAllocator<std::uint64_t>> buffer;
    for (std::uint64_t i = 0; i < 100000; ++i)
        buffer.push_back(i);
    const std::size_t room = buffer.capacity();

    buffer.resize(room / 4);
    releaseUnused(buffer);
    EXPECT_EQ(buffer.capacity(), room);

    buffer.resize(room / 4 - 1);
    releaseUnused(buffer);
    EXPECT_EQ(buffer.capacity(), buffer.size());
    for (std::uint64_t i = 0; i < buffer.size(); ++i)
        ASSERT_EQ(buffer[i], i);
    buffer.push_back(0);  // and grows again from there

    std::basic_string<char, std::char_traits<char>, PageAllocator<char>> small(4000, 'x');
    small.resize(1);
    releaseUnused(small);
    EXPECT_GE(small.capacity(), 4000u);
}
