#include "Services/CleanHistoryStore.h"

#include "Platform/DefaultsStore.h"
#include "Support/TempHome.h"

#include <nlohmann/json.hpp>

using nlohmann::json;

namespace {

class CleanHistoryStoreTest : public TempHomeTest {
protected:
    std::string path() const { return tempHome.configHome() + "/mopwell/defaults.plist"; }

    // Each call opens the file afresh, as the next start of the application would.
    CleanHistoryStore::Loaded loadAfterRestart() const
    {
        DefaultsStore reopened(path());
        return CleanHistoryStore::load(reopened);
    }

    static DefaultsStore::Data bytes(const std::string& text) { return {text.begin(), text.end()}; }

    static CleanRecord record(std::int64_t freed, int secondsAgo)
    {
        CleanRecord made = CleanRecord::make("target " + std::to_string(freed), freed, true);
        made.date -= std::chrono::seconds(secondsAgo);
        return made;
    }

    static std::string storedRecordText(const char* id)
    {
        return std::string(R"({"id": ")") + id + R"(", "targetName": "Trash", "freed": 1, "date": 0, "trashed": true})";
    }

    DefaultsStore defaults{path()};
};

}  // namespace

TEST_F(CleanHistoryStoreTest, HistoryAndTotalSurviveARestart)
{
    CleanRecord restorable = CleanRecord::make("App cache files", 123'456, true,
                                               {{"/h/Library/Caches/a", "/h/.local/share/Trash/files/a"},
                                                {"/h/Library/Caches/ü b", "/h/.local/share/Trash/files/ü b.2"}});
    restorable.restored = true;
    const std::vector<CleanRecord> history = {restorable, record(99, 60), CleanRecord::make("Docker prune", 7, false)};
    const std::int64_t total = (std::int64_t{1} << 53) + 1;  // would be rounded if read as a double

    CleanHistoryStore::save(defaults, history, total);

    const auto loaded = loadAfterRestart();
    EXPECT_EQ(loaded.history, history);
    EXPECT_EQ(loaded.total, total);

    // Clearing the list keeps the lifetime figure.
    CleanHistoryStore::save(defaults, {}, total);
    const auto cleared = loadAfterRestart();
    EXPECT_TRUE(cleared.history.empty());
    EXPECT_EQ(cleared.total, total);
}

TEST_F(CleanHistoryStoreTest, OnlyTheFiftyNewestAreStored)
{
    std::vector<CleanRecord> history;
    for (int i = 0; i < 51; ++i)
        history.push_back(record(i + 1, i));  // newest first

    CleanHistoryStore::save(defaults, history, 1000);

    const auto data = defaults.data(CleanHistoryStore::historyKey);
    ASSERT_TRUE(data);
    const auto stored = CleanHistoryStore::decode(std::string(data->begin(), data->end()));
    ASSERT_TRUE(stored);
    EXPECT_EQ(*stored, std::vector<CleanRecord>(history.begin(), history.begin() + 50));

    const auto loaded = loadAfterRestart();
    ASSERT_EQ(loaded.history.size(), CleanHistoryStore::maximumStored);
    EXPECT_EQ(loaded.history.front().id, history.front().id);
    EXPECT_EQ(loaded.history.back().id, history[49].id);
}

TEST_F(CleanHistoryStoreTest, AHistoryThatIsNotAJsonArrayOfGoodRecordsInDataReadsEmptyButKeepsTheTotal)
{
    const std::string good = storedRecordText("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    const std::string valid = "[" + good + "]";
    defaults.set(CleanHistoryStore::totalKey, std::int64_t{9});
    defaults.set(CleanHistoryStore::historyKey, bytes(valid));
    ASSERT_EQ(CleanHistoryStore::load(defaults).history.size(), 1u);

    // One malformed record among good ones empties the whole history. Which records are
    // malformed is CleanRecordTest's.
    json missingKey = json::parse(good);
    missingKey.erase("trashed");
    const std::vector<DefaultsStore::Value> unusable = {
        valid,  // the right text, but as a string rather than data
        bytes("not json"), bytes(valid.substr(0, valid.size() - 1)),
        bytes(good),  // a record, not an array
        bytes("[\"Trash\"]"), bytes("[{\"targetName\": \"\xff\"}]"), std::int64_t{5},
        bytes("[" + good + "," + missingKey.dump() + "]"),
    };
    for (std::size_t i = 0; i < unusable.size(); ++i) {
        defaults.set(CleanHistoryStore::historyKey, unusable[i]);
        const auto loaded = CleanHistoryStore::load(defaults);
        EXPECT_TRUE(loaded.history.empty()) << "case " << i;
        EXPECT_EQ(loaded.total, 9);
    }
}

TEST_F(CleanHistoryStoreTest, TotalIsZeroUnlessNumericAndRealsKeepTheirIntegerPart)
{
    const std::vector<CleanRecord> history = {record(10, 0)};
    CleanHistoryStore::save(defaults, history, 10);

    const std::vector<std::pair<DefaultsStore::Value, std::int64_t>> cases = {
        {std::string("1234"), 0}, {true, 0}, {1234.9, 1234}, {1e300, 0}, {std::int64_t{77}, 77},
    };
    for (const auto& [stored, expected] : cases) {
        defaults.set(CleanHistoryStore::totalKey, stored);
        const auto loaded = CleanHistoryStore::load(defaults);
        EXPECT_EQ(loaded.total, expected);
        EXPECT_EQ(loaded.history, history);
    }

    defaults.remove(CleanHistoryStore::totalKey);
    EXPECT_EQ(CleanHistoryStore::load(defaults).total, 0);
    defaults.remove(CleanHistoryStore::historyKey);
    EXPECT_TRUE(CleanHistoryStore::load(defaults).history.empty());
}

TEST_F(CleanHistoryStoreTest, NamesThatAreNotUtf8ComeBackByteForByte)
{
    // Ordinary on Linux: a name from an old Latin-1 archive, a cut sequence, a backslash.
    CleanRecord odd = record(6, 0);
    odd.targetName = "caf\xe9 \xc3\x28 \\ name";
    odd.items = std::vector<TrashedItem>{{"/home/u/caf\xe9/\xff\xfe.txt", "/home/u/.local/share/Trash/files/\xff\xfe.txt"}};
    const std::vector<CleanRecord> saved = {odd, record(5, 0)};
    CleanHistoryStore::save(defaults, saved, 11);

    const auto loaded = loadAfterRestart();
    EXPECT_EQ(loaded.history, saved);
    EXPECT_EQ(loaded.total, 11);

    // Later saves go on working with the odd record among the newest.
    const std::vector<CleanRecord> more = {record(7, 0), odd, record(5, 0)};
    CleanHistoryStore::save(defaults, more, 18);
    EXPECT_EQ(loadAfterRestart().history, more);
}
