#include "Services/SnapshotManager.h"

#include "Support/PathsOf.h"
#include "Support/TempHome.h"
#include "Support/ToolStubs.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

const char* const timeMachineListing =
    "Snapshots for disk /:\n"
    "com.apple.TimeMachine.2024-01-05-101112.local\n"
    "com.apple.TimeMachine.2024-02-10-080000.local\n";

const char* const snapperConfigs = R"({"configs": [{"config": "root", "subvolume": "/"},
                                                   {"config": "home", "subvolume": "/home"}]})";

class SnapshotManagerTest : public TempHomeTest {
protected:
    ToolStubs stubs{tempHome.root() + "/stubs", tempHome.home()};
    SnapshotManager::Tools tools;

    void SetUp() override
    {
        tools.tmutil = stubs.install("tmutil", std::string("cat <<'END'\n") + timeMachineListing + "END");
        stubs.install("snapper", R"(case "$*" in
  *list-configs*) cat <<'END'
)" + std::string(snapperConfigs) + R"(
END
  ;;
  *"-c root list"*) echo '{"root": [{"number": 0, "description": "current"},
      {"number": 7, "date": "2024-01-20 09:00:00", "description": "timeline", "used-space": 4000}]}' ;;
  *delete*) ;;
  *) echo "No permissions." >&2; exit 1 ;;
esac)");
    }
};

}  // namespace

TEST_F(SnapshotManagerTest, ListsBothToolsNewestFirstAndSkipsAConfigurationThatRefuses)
{
    const auto snapshots = SnapshotManager::list(tools);
    EXPECT_EQ(stringsOf(snapshots, &LocalSnapshot::name),
              (std::vector<std::string>{"com.apple.TimeMachine.2024-02-10-080000.local", "root #7 — timeline",
                                        "com.apple.TimeMachine.2024-01-05-101112.local"}));
    EXPECT_EQ(stubs.calls("tmutil"), (std::vector<std::string>{"[listlocalsnapshots][/]"}));
    EXPECT_EQ(stubs.calls("snapper"), (std::vector<std::string>{"[--jsonout][list-configs]",
                                                                "[--jsonout][-c][root][list]",
                                                                "[--jsonout][-c][home][list]"}));
    EXPECT_EQ(SnapshotManager::purgeableBytes(snapshots), 4000);
}

TEST_F(SnapshotManagerTest, MissingOrFailingToolsGiveAnEmptyList)
{
    stubs.clear();
    tools.tmutil = tempHome.root() + "/nowhere/tmutil";
    EXPECT_TRUE(SnapshotManager::list(tools).empty());
    tools.tmutil = stubs.install("tmutil", std::string("cat <<'END'\n") + timeMachineListing + "END\nexit 1");
    EXPECT_TRUE(SnapshotManager::list(tools).empty());
}

TEST_F(SnapshotManagerTest, RemovesEverythingWithOneAdministratorCommand)
{
    std::vector<LocalSnapshot> snapshots = {LocalSnapshot::timeMachine("tm", "2024-01-05-101112"),
                                            LocalSnapshot::snapper("root", 7, "2024-01-20-090000"),
                                            LocalSnapshot::snapper("home", 3, "2024-01-19-090000"),
                                            LocalSnapshot::snapper("root", 9, "2024-01-21-090000"),
                                            LocalSnapshot::timeMachine("odd", "2024-01-05-10 ; touch owned")};
    EXPECT_EQ(SnapshotManager::deleteCommand(snapshots, tools),
              tools.tmutil + " deletelocalsnapshots 2024-01-05-101112; " + tools.tmutil
                  + " deletelocalsnapshots '2024-01-05-10 ; touch owned'; snapper -c root delete --sync 7 9; "
                    "snapper -c home delete --sync 3");

    const std::string pkexec = stubs.install("pkexec", "exec \"$@\"");
    // Nothing was really freed; whatever else happens on the disk meanwhile, never below 0.
    EXPECT_GE(SnapshotManager::deleteSnapshots(snapshots, tools), 0);
    ASSERT_EQ(stubs.calls("pkexec").size(), 1u);
    EXPECT_EQ(stubs.calls("pkexec")[0], "[/bin/sh][-c][" + SnapshotManager::deleteCommand(snapshots, tools) + "]");
    EXPECT_EQ(stubs.calls("snapper"), (std::vector<std::string>{"[-c][root][delete][--sync][7][9]",
                                                                "[-c][home][delete][--sync][3]"}));
    EXPECT_FALSE(std::filesystem::exists(tempHome.home() + "/owned"));
}

// A dismissed password dialog is the snapshots window's test, and the words for a failure that
// says nothing AdminShellTest's; here, that a failure carries what the tool said.
TEST_F(SnapshotManagerTest, AFailedRequestSaysWhatTheToolSaidAndNothingToRemoveAsksForNothing)
{
    EXPECT_EQ(SnapshotManager::deleteSnapshots({}, tools), 0);
    EXPECT_TRUE(stubs.calls("pkexec").empty());

    stubs.install("pkexec", "echo 'Snapshot 7 is in use.' >&2; exit 1");
    try {
        SnapshotManager::deleteSnapshots({LocalSnapshot::snapper("root", 7, "2024-01-20-090000")}, tools);
        ADD_FAILURE() << "a failed removal did not throw";
    } catch (const SnapshotError& error) {
        EXPECT_EQ(error.kind(), SnapshotError::Kind::failed);
        EXPECT_EQ(error.message(), "Snapshot 7 is in use.");
    }
}
