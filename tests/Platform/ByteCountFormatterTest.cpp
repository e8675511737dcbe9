#include "Platform/ByteCountFormatter.h"

#include <gtest/gtest.h>

TEST(ByteCountFormatter, FileStyleUsesDecimalUnitsAndDropsTrailingZeros)
{
    const std::pair<std::int64_t, const char*> cases[] = {
        {0, "Zero KB"},
        {1, "1 byte"},
        {2, "2 bytes"},
        {999, "999 bytes"},
        {1000, "1 KB"},
        {1499, "1 KB"},
        {1500, "2 KB"},
        {4096, "4 KB"},
        {999'499, "999 KB"},
        {999'999, "1 MB"},      // rounds up into the next unit rather than "1,000 KB"
        {1'000'000, "1 MB"},
        {1'250'000, "1.3 MB"},
        {12'340'000, "12.3 MB"},
        {1'000'000'000, "1 GB"},
        {1'500'000'000, "1.5 GB"},
        {1'234'567'890, "1.23 GB"},
        {10'000'000'000, "10 GB"},
        {999'996'000'000, "1 TB"},
        {2'345'000'000'000, "2.35 TB"},
        {-1, "-1 byte"},
        {-2'500'000, "-2.5 MB"},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(ByteCountFormatter::string(bytes), text) << bytes;
}

TEST(ByteCountFormatter, MenuBarStyleIsNumericInMegabytesAndUp)
{
    const std::pair<std::int64_t, const char*> cases[] = {
        {0, "0 MB"},
        {40'000, "0 MB"},
        {512'300'000, "512.3 MB"},
        {999'990'000, "1 GB"},
        {1'000'000'000, "1 GB"},
        {123'456'000'000, "123.46 GB"},
        {3'000'000'000'000, "3 TB"},
        {1'500'000'000'000'000, "1,500 TB"},  // no unit above terabytes
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(ByteCountFormatter::menuBarString(bytes), text) << bytes;
}
