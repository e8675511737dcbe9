#include "Platform/Utf8.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

TEST(Utf8Escape, WritesOnlyWhatIsNotTextAndTheBackslash)
{
    struct Case {
        std::string bytes;
        std::string text;
    };
    const Case cases[] = {
        {"", ""},
        {"plain name.txt", "plain name.txt"},
        {"caf\xc3\xa9 \xf0\x9f\x93\x81", "caf\xc3\xa9 \xf0\x9f\x93\x81"},  // UTF-8 stays as it is
        {"latin1 caf\xe9", "latin1 caf\\xe9"},
        {"\xff\xfe", "\\xff\\xfe"},
        {"\xc3", "\\xc3"},                        // a sequence cut short
        {"\xe2\x82", "\\xe2\\x82"},
        {"\xc0\xaf", "\\xc0\\xaf"},               // an overlong slash
        {"\xed\xa0\x80", "\\xed\\xa0\\x80"},      // an encoded surrogate
        {"a\\b", "a\\\\b"},
        {"\\xff", "\\\\xff"},                     // a name that looks like an escape
        {std::string("nul\0byte", 8), std::string("nul\0byte", 8)},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(Utf8::escaped(bytes), text) << testing::PrintToString(bytes);
        EXPECT_TRUE(Utf8::isValid(Utf8::escaped(bytes)));
        EXPECT_EQ(Utf8::unescaped(text), bytes) << text;
    }
}

TEST(Utf8Escape, ReadsStrayBackslashesAsWritten)
{
    const std::pair<std::string, std::string> cases[] = {
        {"C:\\Temp", "C:\\Temp"}, {"end\\", "end\\"}, {"\\x4", "\\x4"}, {"\\xg0", "\\xg0"},
        {"\\X41", "\\X41"},       {"\\x4A", "J"},     {"\\\\\\", "\\\\"},
    };
    for (const auto& [text, bytes] : cases)
        EXPECT_EQ(Utf8::unescaped(text), bytes) << text;
}

TEST(Utf8Escape, EveryByteStringComesBackTheSame)
{
    std::mt19937 random(13);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> length(0, 40);
    for (int round = 0; round < 20000; ++round) {
        std::string bytes(static_cast<std::size_t>(length(random)), '\0');
        for (char& c : bytes)
            c = static_cast<char>(round % 3 == 0 ? "\\x0a\xc3\xff"[byte(random) % 6] : byte(random));
        const std::string text = Utf8::escaped(bytes);
        ASSERT_TRUE(Utf8::isValid(text)) << testing::PrintToString(bytes);
        ASSERT_EQ(Utf8::unescaped(text), bytes) << testing::PrintToString(bytes);
    }
}
