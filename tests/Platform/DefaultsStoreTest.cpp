#include "Platform/DefaultsStore.h"
#include "Support/TempHome.h"

#include <filesystem>
#include <fstream>
#include <plist/plist.h>

namespace fs = std::filesystem;

namespace {

std::string readText(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> filesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

TEST_F(TempHomeTest, StandardPathFollowsTheConfigFolder)
{
    EXPECT_EQ(DefaultsStore::standardPath(), tempHome.configHome() + "/mopwell/defaults.plist");
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(DefaultsStore::standardPath(), tempHome.home() + "/.config/mopwell/defaults.plist");
}

TEST_F(TempHomeTest, EveryTypeSurvivesAReopenWithItsTypeIntact)
{
    const std::string path = tempHome.configHome() + "/mopwell/defaults.plist";
    const auto date = Clock::TimePoint{} + std::chrono::seconds{1'790'000'000} + std::chrono::milliseconds{250};
    {
        DefaultsStore store(path);
        store.set("real", 2.5);
        store.set("flag", true);
        store.set("count", std::int64_t{42});
        store.set("text", std::string("Grüße — ok"));
        store.set("list", std::vector<std::string>{"a", "b c"});
        store.set("blob", DefaultsStore::Data{0, 1, 2, 255});
        store.set("when", date);
        store.set("gone", true);
        store.remove("gone");
        EXPECT_TRUE(store.lastWriteSucceeded());
    }
    DefaultsStore store(path);
    EXPECT_EQ(store.object("real"), DefaultsStore::Value(2.5));
    EXPECT_EQ(store.object("flag"), DefaultsStore::Value(true));
    EXPECT_EQ(store.object("count"), DefaultsStore::Value(std::int64_t{42}));
    EXPECT_EQ(store.string("text"), "Grüße — ok");
    EXPECT_EQ(store.stringArray("list"), (std::vector<std::string>{"a", "b c"}));
    EXPECT_EQ(store.data("blob"), (DefaultsStore::Data{0, 1, 2, 255}));
    EXPECT_EQ(store.date("when"), date);
    EXPECT_FALSE(store.contains("gone"));

    // Typed reads refuse other types instead of converting them.
    EXPECT_EQ(store.boolean("count"), std::nullopt);
    EXPECT_EQ(store.string("count"), std::nullopt);
    EXPECT_EQ(store.number("flag"), std::nullopt);
    EXPECT_EQ(store.number("count"), 42.0);
    EXPECT_EQ(store.stringArray("text"), std::nullopt);
    EXPECT_EQ(store.date("real"), std::nullopt);

    // Writes leave exactly the one file behind: no temporary files.
    EXPECT_EQ(filesIn(tempHome.configHome() + "/mopwell"), std::vector<std::string>{"defaults.plist"});
}

TEST_F(TempHomeTest, LenientBooleanReadsFollowTheStoredValue)
{
    DefaultsStore store(tempHome.root() + "/d.plist");
    store.set("yes", std::string("YES"));
    store.set("one", std::string(" 01"));
    store.set("no", std::string("nope"));
    store.set("number", std::int64_t{7});
    store.set("zero", 0.0);
    EXPECT_TRUE(store.boolValue("yes"));
    EXPECT_TRUE(store.boolValue("one"));
    EXPECT_FALSE(store.boolValue("no"));
    EXPECT_TRUE(store.boolValue("number"));
    EXPECT_FALSE(store.boolValue("zero"));
    EXPECT_FALSE(store.boolValue("missing"));
}

TEST_F(TempHomeTest, MixedArraysAndDictionariesAreKeptButNotTyped)
{
    const std::string path = tempHome.root() + "/d.plist";
    std::ofstream(path) << R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
<key>mixed</key><array><string>a</string><integer>3</integer></array>
<key>nested</key><dict><key>k</key><string>v</string></dict>
</dict></plist>)";
    DefaultsStore store(path);
    EXPECT_EQ(store.object("mixed"), DefaultsStore::Value(DefaultsStore::Other{}));
    EXPECT_EQ(store.stringArray("mixed"), std::nullopt);
    store.set("added", 1.0);
    DefaultsStore reopened(path);
    EXPECT_TRUE(reopened.contains("nested"));
    EXPECT_TRUE(reopened.contains("mixed"));
}

TEST_F(TempHomeTest, BinaryPropertyListsAreRead)
{
    plist_t root = plist_new_dict();
    plist_dict_set_item(root, "refreshInterval", plist_new_real(7.5));
    char* bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    const std::string path = tempHome.root() + "/binary.plist";
    std::ofstream(path, std::ios::binary).write(bytes, length);
    plist_to_bin_free(bytes);
    plist_free(root);

    EXPECT_EQ(DefaultsStore(path).number("refreshInterval"), 7.5);
}

TEST_F(TempHomeTest, ADamagedFileIsSetAsideAndTheStoreStartsEmpty)
{
    const std::string path = tempHome.root() + "/defaults.plist";
    std::ofstream(path) << "<plist><dict><key>half";
    DefaultsStore store(path);
    EXPECT_FALSE(store.contains("half"));
    ASSERT_TRUE(store.setAsidePath().has_value());
    EXPECT_EQ(readText(*store.setAsidePath()), "<plist><dict><key>half");

    store.set("refreshInterval", 3.0);
    EXPECT_EQ(DefaultsStore(path).number("refreshInterval"), 3.0);
    EXPECT_EQ(DefaultsStore(path).setAsidePath(), std::nullopt);
}

TEST_F(TempHomeTest, AFileThatIsNotADictionaryOrCannotBeReadIsSetAside)
{
    const std::string arrayPath = tempHome.root() + "/array.plist";
    std::ofstream(arrayPath) << R"(<plist version="1.0"><array><string>x</string></array></plist>)";
    EXPECT_TRUE(DefaultsStore(arrayPath).setAsidePath().has_value());

    // A folder where the file should be: it exists but can't be read as a file.
    const std::string folderPath = tempHome.root() + "/folder.plist";
    fs::create_directory(folderPath);
    DefaultsStore store(folderPath);
    ASSERT_TRUE(store.setAsidePath().has_value());
    EXPECT_TRUE(fs::is_directory(*store.setAsidePath()));
    store.set("k", true);
    EXPECT_TRUE(store.lastWriteSucceeded());
    EXPECT_EQ(DefaultsStore(folderPath).boolean("k"), true);
}
