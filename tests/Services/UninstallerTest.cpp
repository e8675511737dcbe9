#include "Platform/Trash.h"
#include "Services/Scanner.h"
#include "Services/Uninstaller.h"
#include "Support/DroppedCapabilities.h"
#include "Support/TempHome.h"
#include "Support/TreeBuilder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <utility>

namespace fs = std::filesystem;

// The bundle profile, as it behaves on a Mac, over bundles built in a temporary home.
namespace {

constexpr auto mac = PlatformProfile::macOS;

using Rows = std::vector<std::pair<std::string, std::string>>;  // label, path below the home

AppInfo appNamed(std::string name, std::optional<std::string> id, std::string path)
{
    AppInfo app;
    app.name = std::move(name);
    app.bundleID = std::move(id);
    app.appPath = std::move(path);
    return app;
}

std::string infoPlist(const std::string& entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + entries + "</dict></plist>\n";
}

class UninstallerBundles : public TempHomeTest {
protected:
    const std::string H = tempHome.home();

    std::string bundle(const std::string& relative, const std::string& plistEntries)
    {
        tempHome.writeFile(relative + "/Contents/Info.plist", infoPlist(plistEntries));
        TreeBuilder::writeFile(H + "/" + relative + "/Contents/MacOS/tool", 20'000);
        return H + "/" + relative;
    }
    std::string folder(const std::string& relative)
    {
        TreeBuilder::writeFile(H + "/" + relative + "/data", 5'000);
        return H + "/" + relative;
    }
    Rows rows(const std::vector<UninstallItem>& items) const
    {
        Rows result;
        for (const UninstallItem& item : items)
            result.emplace_back(item.label, item.path.starts_with(H + "/") ? item.path.substr(H.size() + 1) : item.path);
        return result;
    }
};

}  // namespace

TEST_F(UninstallerBundles, InspectTakesTheBundleNameAndIdentifierElseTheFileName)
{
    struct Case {
        std::string path;
        std::string plist;  // none: no bundle at all
        std::string name;
        std::optional<std::string> id;
    };
    const std::vector<Case> cases = {
        {"A/Tool.app", "<key>CFBundleName</key><string>Tool Pro</string><key>CFBundleIdentifier</key><string>com.x.tool</string>",
         "Tool Pro", "com.x.tool"},
        {"B/Web.app.app", "<key>CFBundleIdentifier</key><string>com.x.web</string>", "Web", "com.x.web"},
        {"C/Odd.app", "<key>CFBundleName</key><integer>4</integer>", "Odd", std::nullopt},
        {"D/Gone.app", "", "Gone", std::nullopt},
    };
    for (const Case& c : cases) {
        if (!c.plist.empty())
            bundle(c.path, c.plist);
        const AppInfo app = Uninstaller::inspect(H + "/" + c.path, mac);
        EXPECT_EQ(app.name, c.name) << c.path;
        EXPECT_EQ(app.bundleID, c.id) << c.path;
        EXPECT_EQ(app.appPath, H + "/" + c.path);
    }
}

TEST_F(UninstallerBundles, LeftoversFollowTheTableInOrderWithTheBundleFirst)
{
    const std::string app = bundle("Apps/Tool.app", "<key>CFBundleName</key><string>Tool</string>"
                                                    "<key>CFBundleIdentifier</key><string>com.x.tool</string>");
    const Rows expected = {
        {"Application", "Apps/Tool.app"},
        {"Preferences", "Library/Preferences/com.x.tool.plist"},
        {"App cache", "Library/Caches/com.x.tool"},
        {"Application support", "Library/Application Support/com.x.tool"},
        {"Container", "Library/Containers/com.x.tool"},
        {"Saved state", "Library/Saved Application State/com.x.tool.savedState"},
        {"Logs", "Library/Logs/com.x.tool"},
        {"Web storage", "Library/HTTPStorages/com.x.tool"},
        {"WebKit data", "Library/WebKit/com.x.tool"},
        {"Cookies", "Library/Cookies/com.x.tool.binarycookies"},
        {"App scripts", "Library/Application Scripts/com.x.tool"},
        {"Group container", "Library/Group Containers/TEAM.com.x.tool.shared"},
        {"Launch agent", "Library/LaunchAgents/com.x.tool.helper.plist"},
        {"Application support", "Library/Application Support/Tool"},
        {"App cache", "Library/Caches/Tool"},
        {"Logs", "Library/Logs/Tool"},
    };
    // Created in reverse so that nothing depends on creation order.
    for (auto row = expected.rbegin(); row != expected.rend() - 1; ++row)
        folder(row->second);
    // Near misses: another case, another app whose identifier extends this one's, a name prefix.
    folder("Library/LaunchAgents/com.x.TOOL.plist");
    folder("Library/Caches/com.x.toolbox");
    folder("Library/Caches/Tools");
    folder("Library/Group Containers/com.x.too");

    const auto items = Uninstaller::leftovers(Uninstaller::inspect(app, mac), mac);
    EXPECT_EQ(rows(items), expected);
    EXPECT_TRUE(items.front().isBundle);
    std::set<Uuid> ids;
    for (const UninstallItem& item : items) {
        EXPECT_EQ(item.size, Scanner::directorySize(item.path)) << item.path;
        EXPECT_EQ(item.isBundle, &item == &items.front());
        ids.insert(item.id);
    }
    EXPECT_EQ(ids.size(), items.size());
}

TEST_F(UninstallerBundles, WhatTheIdentifierAndNameLeadToDecidesTheRows)
{
    folder("Library/Caches/com.x.same");
    folder("Library/Application Support/com.x.same");
    folder("Library/Logs/Plain");
    folder("Library/Application Support/Plain");
    folder("Library/Caches/com.x.plain");
    folder("Library/Caches/..hidden");
    struct Case {
        std::string title;
        AppInfo app;
        Rows expected;
    };
    const std::vector<Case> cases = {
        {"no identifier: bundle and name folders only",
         appNamed("Plain", std::nullopt, H + "/Plain.app"),
         {{"Application support", "Library/Application Support/Plain"}, {"Logs", "Library/Logs/Plain"}}},
        {"name equal to the identifier: each folder once, under its identifier label",
         appNamed("com.x.same", "com.x.same", H + "/gone.app"),
         {{"App cache", "Library/Caches/com.x.same"}, {"Application support", "Library/Application Support/com.x.same"}}},
        {"names that climb out of the library are not used",
         appNamed("..", "../..", H + "/gone.app"),
         {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(rows(Uninstaller::leftovers(c.app, mac)), c.expected) << c.title;

    const std::string lonely = bundle("Lonely.app", "<key>CFBundleIdentifier</key><string>com.x.lonely</string>");
    EXPECT_EQ(rows(Uninstaller::leftovers(Uninstaller::inspect(lonely, mac), mac)), (Rows{{"Application", "Lonely.app"}}));
}

TEST_F(UninstallerBundles, RemoveCountsOnlyWhatReachedTheTrashAndKeepsWhatMovedBeforeAFailure)
{
    const std::string first = folder("Library/Caches/one");
    const std::string locked = folder("Locked/stuck");
    const std::string last = folder("Library/Logs/two");
    const std::int64_t firstSize = Scanner::directorySize(first);
    const std::int64_t lastSize = Scanner::directorySize(last);
    ASSERT_GT(Scanner::directorySize(locked), 0);
    fs::create_directories(Trash::homeTrashFolder());
    chmod((H + "/Locked").c_str(), 0555);
    Uninstaller::RemoveResult result;
    {
        DroppedCapabilities dropped;
        MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped);
        result = Uninstaller::remove({first, locked, H + "/missing", last}, mac);
    }
    chmod((H + "/Locked").c_str(), 0755);
    EXPECT_EQ(result.freed, firstSize + lastSize);
    ASSERT_EQ(result.trashed.size(), 2u);
    EXPECT_EQ(result.trashed[0].original, first);
    EXPECT_EQ(result.trashed[1].original, last);
    EXPECT_TRUE(fs::exists(result.trashed[0].trashPath));
    EXPECT_TRUE(fs::exists(locked));
    EXPECT_FALSE(fs::exists(first));
}

TEST(Uninstaller, RefusesSystemAppsOnlyByTheirExactPlaces)
{
    const std::vector<std::pair<std::string, bool>> cases = {
        {"/System/Applications/Mail.app", true},
        {"/System/Library/CoreServices/Finder.app", true},
        {"/Applications/Safari.app", true},
        {"/Applications/Safari Technology Preview.app", false},
        {"/Applications/SafariTools.app", false},
        {"/Applications/Notes.app", false},
        {"/SystemTools/Thing.app", false},
        {"/Users/me/System/Thing.app", false},
    };
    for (const auto& [path, refused] : cases)
        EXPECT_EQ(Uninstaller::isProtectedSystemApp(path, mac), refused) << path;
}
