#include "Platform/Subprocess.h"
#include "Support/TempHome.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

using namespace std::chrono_literals;
using SubprocessTest = TempHomeTest;

namespace {

Subprocess::Options shellScript(const std::string& script)
{
    Subprocess::Options options;
    options.executable = "/bin/sh";
    options.arguments = {"-c", script};
    return options;
}

// In the user's language, as the messages under test are.
std::string reason(int error)
{
    return std::generic_category().message(error);
}

struct TimedResult {
    Subprocess::Result result;
    double seconds = 0;
};

TimedResult timedRun(const Subprocess::Options& options)
{
    const auto start = std::chrono::steady_clock::now();
    TimedResult timed{Subprocess::run(options)};
    timed.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return timed;
}

}  // namespace

TEST_F(SubprocessTest, ReportsStatusAndBothStreamsInOrder)
{
    const auto mixed = Subprocess::run(shellScript("printf one; printf two >&2; printf three; exit 5"));
    EXPECT_TRUE(mixed.launched);
    EXPECT_TRUE(mixed.launchError.empty());
    EXPECT_FALSE(mixed.timedOut);
    EXPECT_EQ(mixed.status, 5);
    EXPECT_EQ(mixed.output, "onetwothree");

    // A signal reads as shells report it, never as a success.
    EXPECT_EQ(Subprocess::run(shellScript("echo partial; kill -KILL $$")).status, 128 + SIGKILL);

    // More than a pipe buffer holds: the reading must keep up while the program writes.
    const auto large = Subprocess::run(shellScript("head -c 1000000 /dev/zero | tr '\\0' a"));
    EXPECT_EQ(large.status, 0);
    EXPECT_EQ(large.output, std::string(1000000, 'a'));

    // Standard input is empty rather than the caller's, so a reading program can't hang.
    EXPECT_EQ(Subprocess::run(shellScript("cat; echo done")).output, "done\n");

    auto inHome = shellScript("pwd -P");
    inHome.workingFolder = tempHome.home();
    EXPECT_EQ(Subprocess::run(inHome).output, tempHome.home() + "\n");
}

TEST_F(SubprocessTest, ChildHoldsOnlyItsOwnEndsOfThePipe)
{
    // Both ends are close-on-exec in the parent, so the pipe appears in the child as standard
    // output and standard error only; a stray copy would keep the pipe from reaching its end.
    const auto result = Subprocess::run(shellScript(
        "readlink /proc/$$/fd/0; pipe=$(readlink /proc/$$/fd/1); count=0; "
        "for fd in /proc/$$/fd/*; do [ \"$(readlink \"$fd\")\" = \"$pipe\" ] && count=$((count + 1)); done; "
        "echo $count"));
    EXPECT_EQ(result.output, "/dev/null\n2\n");
}

TEST_F(SubprocessTest, LaunchFailuresNameTheirCause)
{
    Subprocess::Options missing;
    missing.executable = tempHome.home() + "/no-such-program";
    const auto notFound = Subprocess::run(missing);
    EXPECT_FALSE(notFound.launched);
    EXPECT_EQ(notFound.status, -1);
    EXPECT_TRUE(notFound.output.empty());
    EXPECT_EQ(notFound.launchError, missing.executable + ": " + reason(ENOENT));

    Subprocess::Options notExecutable;
    notExecutable.executable = tempHome.writeFile("script.sh", "#!/bin/sh\necho hi\n");
    std::filesystem::permissions(notExecutable.executable, std::filesystem::perms(0644));
    EXPECT_EQ(Subprocess::run(notExecutable).launchError, notExecutable.executable + ": " + reason(EACCES));

    auto badFolder = shellScript("true");
    badFolder.workingFolder = tempHome.home() + "/gone";
    const auto folder = Subprocess::run(badFolder);
    EXPECT_FALSE(folder.launched);
    EXPECT_EQ(folder.launchError, "cannot enter " + badFolder.workingFolder + ": " + reason(ENOENT));
}

TEST_F(SubprocessTest, TimeOutOutlastsProgramsThatResistOrHideFromIt)
{
    // Ignores SIGTERM, so only the SIGKILL after the grace period ends it.
    auto stubborn = shellScript("trap '' TERM; echo started; sleep 30");
    stubborn.timeout = 200ms;
    stubborn.killGrace = 300ms;
    const auto killed = timedRun(stubborn);
    EXPECT_TRUE(killed.result.timedOut);
    EXPECT_EQ(killed.result.status, 128 + SIGKILL);
    EXPECT_EQ(killed.result.output, "started\n");
    EXPECT_LT(killed.seconds, 2.5);

    // Closed its output early: the limit still holds while waiting for the exit.
    auto silent = shellScript("exec >/dev/null 2>&1; sleep 30");
    silent.timeout = 200ms;
    const auto waited = timedRun(silent);
    EXPECT_TRUE(waited.result.timedOut);
    EXPECT_EQ(waited.result.status, 128 + SIGTERM);
    EXPECT_LT(waited.seconds, 2.5);

    // Never stops writing: the pipe is always readable, yet the limit is noticed.
    auto endless = shellScript("yes");
    endless.timeout = 200ms;
    const auto flooded = timedRun(endless);
    EXPECT_TRUE(flooded.result.timedOut);
    EXPECT_EQ(flooded.result.status, 128 + SIGTERM);
    EXPECT_FALSE(flooded.result.output.empty());
    EXPECT_LT(flooded.seconds, 2.5);
}

TEST_F(SubprocessTest, ProcessThatLeftTheGroupCannotHoldTheCallForever)
{
    // A new session is out of reach of the group's signals and keeps the pipe open; reading
    // stops after the last grace period all the same.
    auto escaped = shellScript("setsid sleep 30 & echo $!");
    escaped.timeout = 200ms;
    escaped.killGrace = 200ms;
    const auto run = timedRun(escaped);
    const int leftover = std::atoi(run.result.output.c_str());
    if (leftover > 0)
        ::kill(leftover, SIGKILL);
    EXPECT_GT(leftover, 0);
    EXPECT_TRUE(run.result.timedOut);
    EXPECT_EQ(run.result.status, 0);  // the shell itself had finished in time
    EXPECT_LT(run.seconds, 2.5);
}
