#include "Models/CleanRecord.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>

using nlohmann::json;

namespace {

constexpr const char* knownId = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";

Clock::TimePoint sinceReference(std::chrono::microseconds offset)
{
    return Clock::TimePoint(std::chrono::seconds(CleanRecord::referenceDateUnixSeconds)) + offset;
}

// A well-formed stored record, to be broken one key at a time.
json storedRecord()
{
    return json::parse(R"({"id": "e621e1f8-c36c-495a-93fc-0c247a3e6e5f", "targetName": "npm cache",
                           "freed": 2048, "date": 10.5, "trashed": false})");
}

}  // namespace

TEST(UuidTest, RandomIdsAreUniqueVersionFourWithTheStandardVariant)
{
    std::set<Uuid> seen;
    for (int i = 0; i < 5000; ++i) {
        const Uuid id = Uuid::random();
        ASSERT_TRUE(seen.insert(id).second) << "repeated id " << id.string();
        ASSERT_EQ(id.version(), 4);
        ASSERT_EQ(id.bytes()[8] & 0xC0, 0x80);
    }
}

TEST(UuidTest, TextIsCanonicalUpperCaseAndParsesEitherCase)
{
    const auto id = Uuid::parse(knownId);
    ASSERT_TRUE(id);
    EXPECT_EQ(id->string(), knownId);
    EXPECT_EQ(Uuid::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"), id);

    for (const char* bad : {"", "E621E1F8C36C495A93FC0C247A3E6E5F", "{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}",
                            "E621E1F8-C36C-495A-93FC-0C247A3E6E5G", "E621E1F-8C36C-495A-93FC-0C247A3E6E5F"})
        EXPECT_FALSE(Uuid::parse(bad)) << bad;
}

TEST(CleanRecordTest, EncodesTheStoredFormExactly)
{
    CleanRecord record;
    record.id = *Uuid::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f");
    record.targetName = "Xcode DerivedData";
    record.freed = 5'000'000'000;
    record.date = sinceReference(std::chrono::milliseconds(10'500));
    record.trashed = true;

    EXPECT_EQ(record.toJson(), json::parse(R"({"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F",
        "targetName": "Xcode DerivedData", "freed": 5000000000, "date": 10.5, "trashed": true})"));
    EXPECT_TRUE(record.toJson()["freed"].is_number_integer());

    record.items = std::vector<TrashedItem>{{"/home/a/Library/Caches/x", "/home/a/.local/share/Trash/files/x"}};
    record.restored = true;
    const json full = record.toJson();
    EXPECT_EQ(full["items"], json::parse(R"([{"original": "/home/a/Library/Caches/x",
                                             "trashPath": "/home/a/.local/share/Trash/files/x"}])"));
    EXPECT_EQ(full["restored"], true);
}

TEST(CleanRecordTest, DecodesWithOptionalKeysAbsentOrPresent)
{
    const auto plain = CleanRecord::fromJson(storedRecord());
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->id.string(), knownId);
    EXPECT_EQ(plain->targetName, "npm cache");
    EXPECT_EQ(plain->freed, 2048);
    EXPECT_EQ(plain->date, sinceReference(std::chrono::milliseconds(10'500)));
    EXPECT_FALSE(plain->trashed);
    EXPECT_EQ(plain->items, std::nullopt);
    EXPECT_EQ(plain->restored, std::nullopt);

    json full = storedRecord();
    full["items"] = json::parse(R"([{"original": "/a", "trashPath": "/t/a"}, {"original": "/b", "trashPath": "/t/b"}])");
    full["restored"] = true;
    full["date"] = 780'000'000.123456;
    const auto decoded = CleanRecord::fromJson(full);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->items, (std::vector<TrashedItem>{{"/a", "/t/a"}, {"/b", "/t/b"}}));
    EXPECT_EQ(decoded->restored, true);
    EXPECT_EQ(decoded->date, sinceReference(std::chrono::microseconds(780'000'000'123'456)));

    // A present-day date with whole microseconds comes back equal after the round trip.
    EXPECT_EQ(CleanRecord::fromJson(decoded->toJson()), decoded);

    const CleanRecord made = CleanRecord::make("Trash", 10, true);
    EXPECT_EQ(made.items, std::nullopt);  // never an empty list
    EXPECT_NE(CleanRecord::make("Trash", 10, true).id, made.id);
    EXPECT_EQ(CleanRecord::fromJson(made.toJson()), made);
}

TEST(CleanRecordTest, RejectsMissingOrMistypedKeys)
{
    for (const char* key : {"id", "targetName", "freed", "date", "trashed"}) {
        json missing = storedRecord();
        missing.erase(key);
        EXPECT_FALSE(CleanRecord::fromJson(missing)) << "without " << key;
        json null = storedRecord();
        null[key] = nullptr;
        EXPECT_FALSE(CleanRecord::fromJson(null)) << key << " null";
    }
    const std::vector<std::pair<const char*, json>> wrong = {
        {"id", "not-a-uuid"}, {"id", 7}, {"targetName", 3}, {"freed", "2048"}, {"freed", 1.5},
        {"date", "2024-01-01"}, {"trashed", 1}, {"restored", "yes"}, {"items", "/a"},
        {"items", json::array({"/a"})}, {"items", json::parse(R"([{"original": "/a"}])")},
        {"items", json::parse(R"([{"original": "/a", "trashPath": 4}])")},
    };
    for (const auto& [key, value] : wrong) {
        json record = storedRecord();
        record[key] = value;
        EXPECT_FALSE(CleanRecord::fromJson(record)) << key << " = " << value.dump();
    }
    EXPECT_FALSE(CleanRecord::fromJson(json::array()));
}
