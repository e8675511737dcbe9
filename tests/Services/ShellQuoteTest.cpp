#include "Services/ShellQuote.h"

#include "Services/ShellRunner.h"
#include "Support/TempHome.h"

#include <gtest/gtest.h>

#include <filesystem>

TEST(ShellQuote, LeavesPlainWordsAndQuotesTheRest)
{
    struct Case {
        const char* text;
        const char* word;
    };
    for (const Case& c : {Case{"openssl@3", "openssl@3"}, Case{"org.mozilla.firefox", "org.mozilla.firefox"},
                          Case{"2024-01-05-101112", "2024-01-05-101112"}, Case{"", "''"},
                          Case{"a b", "'a b'"}, Case{"x;y", "'x;y'"}, Case{"it's", "'it'\\''s'"},
                          Case{"~", "'~'"}, Case{"$(id)", "'$(id)'"}}) {
        EXPECT_EQ(ShellQuote::word(c.text), c.word) << c.text;
    }
}

TEST(ShellQuote, EveryByteReachesTheProgramAsOneArgument)
{
    TempHome home;
    std::string awkward = "x; touch owned $(touch owned) `touch owned` \"q\" 'q' \\ \t*?[a] ~ \n end";
    for (int byte = 1; byte < 128; ++byte)
        awkward += static_cast<char>(byte);
    awkward += "é ü";
    const ShellResult result = ShellRunner::runLogin("printf '%s|' " + ShellQuote::word(awkward), 10);
    EXPECT_EQ(result, (ShellResult{0, awkward + "|"}));
    EXPECT_FALSE(std::filesystem::exists(home.home() + "/owned"));
}
