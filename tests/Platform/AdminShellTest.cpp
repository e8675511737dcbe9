#include "Platform/AdminShell.h"

#include "Support/TempHome.h"
#include "Support/ToolStubs.h"

#include <gtest/gtest.h>

namespace {

// How AppleScript reads a quoted string back: a backslash takes the next character as it is.
std::string unquotedAppleScript(const std::string& escaped)
{
    std::string text;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] == '\\' && i + 1 < escaped.size())
            ++i;
        text += escaped[i];
    }
    return text;
}

using AdminShellTest = TempHomeTest;

}  // namespace

TEST(AdminShell, EscapesBackslashesBeforeQuotesForAppleScript)
{
    struct Case {
        std::string command;
        std::string escaped;
    };
    for (const Case& c : {Case{"tmutil deletelocalsnapshots 2024", "tmutil deletelocalsnapshots 2024"},
                          Case{R"(echo "a")", R"(echo \"a\")"},
                          Case{R"(echo a\b)", R"(echo a\\b)"},
                          Case{R"(echo \")", R"(echo \\\")"},
                          Case{R"(\\")", R"(\\\\\")"}}) {
        EXPECT_EQ(AdminShell::escapedForAppleScript(c.command), c.escaped) << c.command;
        EXPECT_EQ(unquotedAppleScript(AdminShell::escapedForAppleScript(c.command)), c.command);
    }
    EXPECT_EQ(AdminShell::appleScriptSource(R"(say "hi")"),
              R"(do shell script "say \"hi\"" with administrator privileges)");
}

TEST_F(AdminShellTest, TheLineReachesTheShellUnchanged)
{
    ToolStubs stubs(tempHome.root() + "/stubs", tempHome.home());
    stubs.install("pkexec", "exec \"$@\"");
    const std::string line = R"(printf '%s|' "double \" quote" 'back\slash' "dollar \$HOME"; echo)";
    EXPECT_EQ(AdminShell::run(line),
              (AdminShell::Result{true, false, "double \" quote|back\\slash|dollar $HOME|\n"}));
    EXPECT_EQ(stubs.calls("pkexec"), (std::vector<std::string>{"[/bin/sh][-c][" + line + "]"}));
}

TEST_F(AdminShellTest, ReportsCancelledFailedAndMissing)
{
    ToolStubs stubs(tempHome.root() + "/stubs", tempHome.home());
    stubs.install("pkexec", "exit 126");
    EXPECT_TRUE(AdminShell::run("true").cancelled);
    EXPECT_FALSE(AdminShell::run("true").success);

    stubs.install("pkexec", "exec \"$@\"");
    EXPECT_EQ(AdminShell::run("echo '  it broke ' >&2; exit 4"), (AdminShell::Result{false, false, "it broke"}));
    EXPECT_EQ(AdminShell::run("exit 4"), (AdminShell::Result{false, false, "Authorization failed."}));

    stubs.clear();
    const auto missing = AdminShell::run("true");
    EXPECT_FALSE(missing.success);
    EXPECT_FALSE(missing.cancelled);
    EXPECT_NE(missing.output.find("pkexec"), std::string::npos);
}
