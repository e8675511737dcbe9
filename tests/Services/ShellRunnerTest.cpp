#include "Platform/LoginShell.h"
#include "Platform/Utf8.h"
#include "Services/ShellRunner.h"
#include "Support/TempHome.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/types.h>
#include <system_error>
#include <thread>

namespace fs = std::filesystem;
using ShellRunnerTest = TempHomeTest;

namespace {

// A process that has ended but not yet been reaped still answers kill(pid, 0), and the
// reaper of orphans may be slow or absent in containers; its state in /proc tells.
bool isRunning(pid_t pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    if (!std::getline(stat, line))
        return false;
    const auto close = line.rfind(')');
    const char state = close != std::string::npos && close + 2 < line.size() ? line[close + 2] : 'X';
    return state != 'Z' && state != 'X';
}

// The pipe closes a moment before an ending process turns into a zombie, so allow it that.
bool endsSoon(pid_t pid)
{
    const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    while (isRunning(pid)) {
        if (std::chrono::steady_clock::now() > giveUp)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

TEST_F(ShellRunnerTest, ReportsStatusAndInterleavedOutputDroppingOutputThatIsNotUtf8)
{
    const std::vector<std::pair<std::string, ShellResult>> cases = {
        {"exit 3", {3, ""}},
        {"echo one; echo two >&2; echo three", {0, "one\ntwo\nthree\n"}},
        {"printf 'ok\\377'; exit 4", {4, ""}},
        {"printf 'caf\\303\\251'", {0, "caf\xC3\xA9"}},
    };
    for (const auto& [command, expected] : cases)
        EXPECT_EQ(ShellRunner::runLogin(command, 10), expected) << command;

    const auto missing = ShellRunner::runLogin("mopwell-no-such-command", 10);
    EXPECT_EQ(missing.status, 127);
    EXPECT_NE(missing.output.find("mopwell-no-such-command"), std::string::npos) << missing.output;
    const std::string reason = std::generic_category().message(ENOENT);
    EXPECT_EQ(ShellRunner::runLoginWith("/nonexistent/mopwell-shell", "true", 10),
              (ShellResult{-1, "Failed to launch: /nonexistent/mopwell-shell: " + reason}));
}

TEST_F(ShellRunnerTest, RunsFromTheHomeFolderWithTheInheritedEnvironment)
{
    tempHome.writeFile("notes.txt", "kept at home\n");
    setenv("MOPWELL_SHELL_PROBE", "inherited", 1);
    const auto result = ShellRunner::runLogin("cat notes.txt; pwd -P; echo \"$MOPWELL_SHELL_PROBE\"", 10);
    unsetenv("MOPWELL_SHELL_PROBE");
    EXPECT_EQ(result, (ShellResult{0, "kept at home\n" + tempHome.home() + "\ninherited\n"}));
}

TEST_F(ShellRunnerTest, FindsToolsOnTheProfileSearchPath)
{
    const std::string tool = tempHome.writeFile("tools/mopwell-probe", "#!/bin/sh\necho probe ran\n");
    fs::permissions(tool, fs::perms(0755));
    const char* inherited = std::getenv("PATH");
    ASSERT_EQ(std::string(inherited ? inherited : "").find(tempHome.home()), std::string::npos);

    // The login files of sh, bash and zsh, whichever this user's shell is.
    const std::string profile = "PATH=\"$HOME/tools:$PATH\"; export PATH\n";
    for (const char* name : {".profile", ".bash_profile", ".zprofile"})
        tempHome.writeFile(name, profile);

    EXPECT_EQ(ShellRunner::runLogin("mopwell-probe", 10), (ShellResult{0, "probe ran\n"}))
        << "login shell: " << Platform::loginShell();
}

TEST_F(ShellRunnerTest, TimeOutEndsTheCommandAndWhatItLeftInTheBackgroundKeepingWhatItWrote)
{
    // The background job holds the pipe open; the time-out must end it too, or the call would
    // wait for it.
    const auto start = std::chrono::steady_clock::now();
    const auto result = ShellRunner::runLogin("echo before; (sleep 30; echo late) & echo $!; sleep 30; echo after", 1);
    const double seconds = secondsSince(start);
    EXPECT_GE(seconds, 1.0);
    EXPECT_LT(seconds, 3.0);
    EXPECT_NE(result.status, 0);
    ASSERT_TRUE(result.output.starts_with("before\n")) << result.output;
    const pid_t background = std::atoi(result.output.c_str() + 7);
    ASSERT_GT(background, 0) << result.output;
    EXPECT_EQ(result.output, "before\n" + std::to_string(background) + "\n");
    EXPECT_TRUE(endsSoon(background));
}

TEST(ShellOutputUtf8, AcceptsOnlyWellFormedSequences)
{
    using namespace std::string_view_literals;
    for (const auto valid : {""sv, "plain"sv, "a\0b"sv, "caf\xC3\xA9"sv, "\xE2\x82\xAC"sv,
                             "\xF0\x9F\x98\x80"sv, "\xF4\x8F\xBF\xBF"sv, "\xED\x9F\xBF"sv})
        EXPECT_TRUE(Utf8::isValid(valid)) << ::testing::PrintToString(valid);

    for (const auto invalid : {
             "\x80"sv,              // continuation without a lead
             "caf\xC3"sv,           // cut short at the end
             "\xE2\x82x"sv,         // cut short in the middle
             "\xC0\xAF"sv,          // overlong "/"
             "\xE0\x80\xAF"sv,      // overlong in three bytes
             "\xF0\x80\x80\xAF"sv,  // overlong in four bytes
             "\xED\xA0\x80"sv,      // surrogate
             "\xF4\x90\x80\x80"sv,  // above U+10FFFF
             "\xF5\x80\x80\x80"sv, "\xFF"sv})
        EXPECT_FALSE(Utf8::isValid(invalid)) << ::testing::PrintToString(invalid);
}
