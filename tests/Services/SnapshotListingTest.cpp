#include "Services/SnapshotListing.h"

#include "Support/PathsOf.h"

#include <gtest/gtest.h>

TEST(SnapshotListing, ReadsTimeMachineLinesAndPassesOverTheRest)
{
    const auto snapshots = SnapshotListing::parseTimeMachine(
        "Snapshots for disk /:\n"
        "com.apple.TimeMachine.2024-01-05-101112.local\n"
        "\n"
        "  \tcom.apple.TimeMachine.2024-01-06-090000.local \t\n"
        "com.apple.TimeMachine.2024-01-07-080000\n"   // no ".local": the whole tail is the stamp
        "com.apple.TimeMachine.\n"                    // an empty stamp
        "com.apple.TimeMachine..local\n"              // empty once the suffix is gone
        "com.apple.os.update-ABCDEF\n"
        "com.apple.TimeMachine.not a date.local");
    ASSERT_EQ(snapshots.size(), 4u);
    EXPECT_EQ(snapshots[0].name, "com.apple.TimeMachine.2024-01-05-101112.local");
    EXPECT_EQ(snapshots[1].name, "com.apple.TimeMachine.2024-01-06-090000.local");
    EXPECT_EQ(stringsOf(snapshots, &LocalSnapshot::timestamp),
              (std::vector<std::string>{"2024-01-05-101112", "2024-01-06-090000", "2024-01-07-080000", "not a date"}));
    EXPECT_FALSE(snapshots[0].isSnapper());
    EXPECT_TRUE(SnapshotListing::parseTimeMachine("").empty());
}

TEST(SnapshotListing, ReadsSnapperConfigurationsAndSnapshots)
{
    EXPECT_EQ(SnapshotListing::parseSnapperConfigs(
                  R"({"configs": [{"config": "root", "subvolume": "/"}, {"subvolume": "/x"},
                                  {"config": "home", "subvolume": "/home"}, 7]})"),
              (std::vector<std::string>{"root", "home"}));

    const auto snapshots = SnapshotListing::parseSnapperList(R"({"root": [
        {"number": 0, "default": false, "active": false, "date": "", "description": "current", "used-space": null},
        {"number": 1, "default": false, "active": false, "date": "2024-06-01 12:00:00",
         "description": "first boot", "used-space": 12345678, "userdata": null},
        {"number": 2, "default": true, "active": false, "date": "2024-06-02 12:00:00", "description": "default"},
        {"number": 3, "default": false, "active": true, "date": "2024-06-03 12:00:00", "description": "active"},
        {"number": 4, "date": "2024-06-04 08:30:05", "description": "", "used-space": -5},
        {"number": "5", "date": "2024-06-05 08:30:05"},
        {"number": 6, "date": "yesterday", "description": "timeline"}
    ]})", "root");
    ASSERT_EQ(snapshots.size(), 3u);
    EXPECT_EQ(snapshots[0].name, "root #1 — first boot");
    EXPECT_EQ(snapshots[0].timestamp, "2024-06-01-120000");
    EXPECT_EQ(snapshots[0].snapperConfig, "root");
    EXPECT_EQ(snapshots[0].snapperNumber, 1);
    EXPECT_EQ(snapshots[0].exclusiveBytes, 12345678);
    EXPECT_EQ(snapshots[1].name, "root #4");
    EXPECT_EQ(snapshots[1].timestamp, "2024-06-04-083005");
    EXPECT_EQ(snapshots[1].exclusiveBytes, std::nullopt);
    EXPECT_EQ(snapshots[2].timestamp, "yesterday");
}

TEST(SnapshotListing, AnythingButTheExpectedJsonGivesNothing)
{
    for (const char* text : {"", "not json", "[]", "{\"configs\": {}}", "{\"root\": 3}", "{\"other\": []}", "null",
                             "{\"root\": [\"x\", null, {\"number\": 1e300}]}"}) {
        EXPECT_TRUE(SnapshotListing::parseSnapperList(text, "root").empty()) << text;
        EXPECT_TRUE(SnapshotListing::parseSnapperConfigs(text).empty()) << text;
    }
}

TEST(SnapshotListing, SortsNewestFirstKeepingEqualStampsInOrder)
{
    std::vector<LocalSnapshot> snapshots = {
        LocalSnapshot::timeMachine("a", "2024-01-05-101112"), LocalSnapshot::timeMachine("b", "2024-03-01-000000"),
        LocalSnapshot::timeMachine("c", "2024-01-05-101112"), LocalSnapshot::timeMachine("d", "2023-12-31-235959")};
    SnapshotListing::sortNewestFirst(snapshots);
    EXPECT_EQ(stringsOf(snapshots, &LocalSnapshot::name), (std::vector<std::string>{"b", "a", "c", "d"}));
}
