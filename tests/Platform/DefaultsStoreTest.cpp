#include "Platform/DefaultsStore.h"
#include "Support/DroppedCapabilities.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <plist/plist.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

using TreeBuilder::contentsOf;
using TreeBuilder::namesIn;

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

    // Writes leave the file and the lock writers share behind: no temporary files.
    EXPECT_EQ(namesIn(tempHome.configHome() + "/mopwell"),
              (std::vector<std::string>{"defaults.plist", "defaults.plist.lock"}));
}

TEST_F(TempHomeTest, LenientBooleanReadsFollowTheStoredValue)
{
    DefaultsStore store(tempHome.root() + "/d.plist");
    const std::vector<std::pair<DefaultsStore::Value, bool>> cases = {
        {std::string("YES"), true}, {std::string(" 01"), true}, {std::string("nope"), false},
        {std::int64_t{7}, true},    {0.0, false},
    };
    for (const auto& [value, expected] : cases) {
        store.set("key", value);
        EXPECT_EQ(store.boolValue("key"), expected);
    }
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

TEST_F(TempHomeTest, ADamagedFileOrOneThatIsNotADictionaryIsSetAsideAndTheStoreStartsEmpty)
{
    const std::string path = tempHome.root() + "/defaults.plist";
    for (const char* text : {"<plist><dict><key>half", R"(<plist version="1.0"><array><string>x</string></array></plist>)"}) {
        std::ofstream(path) << text;
        DefaultsStore store(path);
        EXPECT_FALSE(store.contains("half"));
        ASSERT_TRUE(store.setAsidePath().has_value());
        EXPECT_EQ(contentsOf(*store.setAsidePath()), text);

        store.set("refreshInterval", 3.0);
        EXPECT_EQ(DefaultsStore(path).number("refreshInterval"), 3.0);
        EXPECT_EQ(DefaultsStore(path).setAsidePath(), std::nullopt);
    }
}

TEST_F(TempHomeTest, AFileThatCannotBeOpenedIsLeftAloneAndTriedAgainAtTheNextWrite)
{
    // A permission slip, too many open files or an I/O error say nothing about the file: it
    // stays where it is, the values held in memory are used, and each write tries again.
    const std::string path = tempHome.root() + "/defaults.plist";
    {
        DefaultsStore original(path);
        original.set("refreshInterval", 9.0);
        original.set("developerMode", true);
    }
    const auto size = fs::file_size(path);
    const auto movedAside = [&] {
        const auto names = namesIn(tempHome.root());
        return std::any_of(names.begin(), names.end(), [](const std::string& name) {
            return name.find("unreadable") != std::string::npos || name.find("damaged") != std::string::npos;
        });
    };
    chmod(path.c_str(), 0);
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        DefaultsStore store(path);
        EXPECT_EQ(store.setAsidePath(), std::nullopt);
        EXPECT_FALSE(store.contains("refreshInterval"));
        store.set("moveToTrash", false);
        EXPECT_FALSE(store.lastWriteSucceeded());
        EXPECT_EQ(store.boolean("moveToTrash"), false);  // kept in memory
        EXPECT_FALSE(movedAside());
        EXPECT_EQ(fs::file_size(path), size);  // the user's file, untouched

        // Readable again: the next write reads the user's values back in and keeps them.
        chmod(path.c_str(), 0600);
        store.set("sortBySize", true);
        EXPECT_TRUE(store.lastWriteSucceeded());
    }
    chmod(path.c_str(), 0600);
    DefaultsStore reopened(path);
    EXPECT_EQ(reopened.number("refreshInterval"), 9.0);
    EXPECT_EQ(reopened.boolean("developerMode"), true);
    EXPECT_EQ(reopened.boolean("moveToTrash"), false);
    EXPECT_EQ(reopened.boolean("sortBySize"), true);

    // A folder where the file should be can't be read as a file either; it is not moved.
    const std::string folderPath = tempHome.root() + "/folder.plist";
    fs::create_directory(folderPath);
    DefaultsStore store(folderPath);
    EXPECT_EQ(store.setAsidePath(), std::nullopt);
    store.set("k", true);
    EXPECT_FALSE(store.lastWriteSucceeded());
    EXPECT_TRUE(fs::is_directory(folderPath));
    EXPECT_EQ(store.boolean("k"), true);
    EXPECT_FALSE(movedAside());
}

TEST_F(TempHomeTest, TwoWritersMergeTheirKeys)
{
    // Two stores over one file, as two processes would hold it: each write reads the file again
    // under a lock, so neither drops the other's keys.
    const std::string path = tempHome.root() + "/defaults.plist";
    DefaultsStore first(path);
    DefaultsStore second(path);
    first.set("refreshInterval", 3.0);
    second.set("developerMode", true);
    first.set("moveToTrash", false);
    second.remove("refreshInterval");
    first.set("sortBySize", true);

    DefaultsStore reopened(path);
    EXPECT_FALSE(reopened.contains("refreshInterval"));  // a removal isn't undone by the other
    EXPECT_EQ(reopened.boolean("developerMode"), true);
    EXPECT_EQ(reopened.boolean("moveToTrash"), false);
    EXPECT_EQ(reopened.boolean("sortBySize"), true);
    EXPECT_EQ(first.boolean("developerMode"), true);  // what the other wrote is seen at the next write
}

TEST_F(TempHomeTest, StringsThatAreNotUtf8AreKeptByteForByte)
{
    // A custom folder or a disk-map root with a Latin-1 name: cut short, it would name another
    // folder.
    const std::string path = tempHome.root() + "/defaults.plist";
    const std::string folder = "/home/u/caf\xe9 \xff";
    // And a NUL, which the library's C strings would cut at.
    const std::vector<std::string> folders = {folder, "/home/u/back\\slash", "/home/u/\\x41",
                                              std::string("nul\0inside", 10)};
    {
        DefaultsStore store(path);
        store.set("diskMapRoot", folder);
        store.set("customFolders", folders);
    }
    DefaultsStore reopened(path);
    EXPECT_EQ(reopened.string("diskMapRoot"), folder);
    EXPECT_EQ(reopened.stringArray("customFolders"), folders);
}
