// A writer killed at any moment leaves the settings file either as it was or as one complete
// write made it: never empty, never cut short, never unreadable. Hundreds of kills at random
// points of a process that writes settings and history without pause.

#include "Platform/DefaultsStore.h"
#include "Services/CleanHistoryStore.h"
#include "Support/TempHome.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>

namespace fs = std::filesystem;

namespace {

pid_t startWriter(const std::string& path)
{
    pid_t child = -1;
    std::string program = MOPWELL_DEFAULTS_WRITER;
    std::string argument = path;
    char* arguments[] = {program.data(), argument.data(), nullptr};
    if (posix_spawn(&child, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        return -1;
    return child;
}

// The step the file shows, checked for being one whole state of the writer's sequence.
testing::AssertionResult isWholeState(const std::string& path)
{
    DefaultsStore store(path);
    if (store.setAsidePath())
        return testing::AssertionFailure() << "the file could not be parsed";
    const auto step = static_cast<std::int64_t>(store.number("refreshInterval").value_or(0));
    const auto data = store.data(CleanHistoryStore::historyKey);
    const auto history = data ? CleanHistoryStore::decode(std::string_view(reinterpret_cast<const char*>(data->data()), data->size()))
                              : std::optional<std::vector<CleanRecord>>(std::vector<CleanRecord>{});
    if (!history)
        return testing::AssertionFailure() << "the history could not be decoded";
    const std::int64_t newest = history->empty() ? 0 : history->front().freed;
    for (std::size_t i = 0; i < history->size(); ++i) {
        if ((*history)[i].freed != newest - static_cast<std::int64_t>(i))
            return testing::AssertionFailure() << "record " << i << " out of sequence";
    }
    const std::int64_t total = CleanHistoryStore::load(store).total;
    // Within one step the three keys are written in turn: the history may lag the interval by
    // one write, the total the history.
    if ((newest != step && newest != step - 1) || (total != newest && total != newest - 1))
        return testing::AssertionFailure() << "step " << step << ", newest " << newest << ", total " << total;
    return testing::AssertionSuccess();
}

}  // namespace

TEST_F(TempHomeTest, AWriterKilledAtAnyMomentLeavesTheOldFileOrTheNew)
{
    std::mt19937 random(2026);
    std::uniform_int_distribution<int> delayMicroseconds(0, 20'000);
    int kills = 0;
    int sawWrites = 0;
    for (int round = 0; round < 300; ++round) {
        const std::string path = tempHome.root() + "/round" + std::to_string(round) + "/defaults.plist";
        fs::create_directories(fs::path(path).parent_path());
        const pid_t writer = startWriter(path);
        ASSERT_GT(writer, 0);
        // Most kills land while the writer is writing, however slowly it starts (a sanitized build
        // takes a while); every tenth lands wherever the start-up happens to be.
        if (round % 10 != 0) {
            const auto started = std::chrono::steady_clock::now();
            while (!fs::exists(path) && std::chrono::steady_clock::now() - started < std::chrono::seconds(10))
                std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        std::this_thread::sleep_for(std::chrono::microseconds(delayMicroseconds(random)));
        kill(writer, SIGKILL);
        int status = 0;
        waitpid(writer, &status, 0);
        kills += WIFSIGNALED(status) ? 1 : 0;

        if (!fs::exists(path))
            continue;  // killed before its first write: the old state, no file
        ASSERT_GT(fs::file_size(path), 0u) << "round " << round;
        ASSERT_TRUE(isWholeState(path)) << "round " << round;
        sawWrites += DefaultsStore(path).contains("refreshInterval") ? 1 : 0;

        // The lock died with the writer: the next writer gets it at once.
        DefaultsStore next(path);
        next.set("checked", true);
        EXPECT_TRUE(next.lastWriteSucceeded());
        fs::remove_all(fs::path(path).parent_path());
    }
    EXPECT_EQ(kills, 300);
    EXPECT_GT(sawWrites, 200);  // most kills came in the middle of writing, not before it
}
