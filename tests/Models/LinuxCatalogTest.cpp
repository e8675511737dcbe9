#include "Models/CleanupCatalog.h"
#include "Models/LinuxCatalog.h"
#include "Platform/Paths.h"
#include "Support/CatalogRows.h"
#include "Support/TempHome.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <set>

using ::testing::ElementsAre;
using ::testing::IsSupersetOf;

namespace {

const std::set<std::string> macOnly = {"musiccache", "maildownloads", "safari", "derived",
                                       "devicesupport", "sims", "pods"};
const std::set<std::string> linuxOnly = {"thumbnails", "flatpakcaches", "chromium"};

using CatalogRows::find;
using CatalogRows::idsOf;

// Every folder a row measures or leaves out, "~" expanded.
std::vector<std::string> foldersOf(const CleanupTarget& target)
{
    std::vector<std::string> folders;
    if (const auto* paths = std::get_if<PathsKind>(&target.kind)) {
        folders = paths->paths;
        folders.insert(folders.end(), paths->excluded.begin(), paths->excluded.end());
    } else if (const auto* command = std::get_if<CommandKind>(&target.kind)) {
        folders = command->fallbackPaths;
    }
    for (auto& folder : folders)
        folder = Paths::expandingTilde(folder);
    return folders;
}

bool isInside(const std::string& path, const std::string& folder)
{
    return path == folder || path.starts_with(folder + "/");
}

class LinuxCatalogTest : public TempHomeTest {
protected:
    std::string H = tempHome.home();

    void SetUp() override { tempHome.makeFolder(".var/app/org.gnome.Maps/cache"); }

    // Why a folder must never be a catalog path, or none when it may be.
    std::optional<std::string> userDataIn(const std::string& path) const
    {
        // The home and the folders people keep their own files in, and what holds them.
        for (const char* folder : {"", "/Documents", "/Desktop", "/Downloads", "/Pictures", "/Music", "/Videos",
                                   "/.config", "/.local/share", "/.local", "/.mozilla", "/.var/app", "/snap"}) {
            if (isInside(H + folder, path))
                return std::string("holds ") + (*folder ? folder : "the home");
        }
        // Settings, profiles and app data, whatever lies below them.
        for (const char* folder : {"/.config", "/.mozilla", "/.local/share/keyrings", "/.ssh", "/.gnupg"}) {
            if (isInside(path, H + folder))
                return std::string("inside ") + folder;
        }
        if (path.find("/.mozilla") != std::string::npos)
            return std::string("a browser profile");
        // Below a Flatpak app or a snap only their cache folders are caches.
        if (path.starts_with(H + "/.var/app/") && path.find("/cache") == std::string::npos)
            return std::string("a Flatpak app's own files");
        if (path.starts_with(H + "/snap/") && path.find("/common/.cache/") == std::string::npos)
            return std::string("a snap's own files");
        return std::nullopt;
    }

    void expectEveryFolderIsACache(const std::vector<CleanupTarget>& table) const
    {
        for (const auto& target : table) {
            for (const auto& folder : foldersOf(target)) {
                EXPECT_TRUE(folder.starts_with("/")) << target.id << ": " << folder;
                EXPECT_TRUE(folder.starts_with(H + "/") && folder.size() > H.size() + 1) << target.id << ": " << folder;
                EXPECT_EQ(userDataIn(folder), std::nullopt) << target.id << ": " << folder;
            }
        }
    }
};

}  // namespace

TEST_F(LinuxCatalogTest, RowsKeepTheMacIdsSectionsAndOrderWhereTheyHaveACounterpart)
{
    const auto mac = CleanupCatalog::builtIn(PlatformProfile::macOS);
    const auto table = CleanupCatalog::builtIn(PlatformProfile::linuxDesktop);
    const auto ids = idsOf(table);
    EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), ids.size()) << "ids are unique";

    std::vector<std::string> counterparts;
    for (const auto& row : mac) {
        if (macOnly.contains(row.id)) {
            EXPECT_THROW(find(table, row.id), std::out_of_range) << row.id << " can't exist on Linux";
            continue;
        }
        counterparts.push_back(row.id);
        EXPECT_EQ(find(table, row.id).category, row.category) << row.id;
        EXPECT_EQ(find(table, row.id).kind.index(), row.kind.index()) << row.id;
    }
    std::vector<std::string> shared;
    for (const auto& id : ids) {
        if (!linuxOnly.contains(id))
            shared.push_back(id);
    }
    EXPECT_EQ(shared, counterparts) << "the rows both have come in the same order";
    EXPECT_THAT(ids, IsSupersetOf(linuxOnly));

    // Sections stay in panel order, and the new rows sit in theirs.
    for (std::size_t i = 1; i < table.size(); ++i)
        EXPECT_LE(table[i - 1].category, table[i].category) << table[i].id;
    EXPECT_EQ(find(table, "thumbnails").category, CleanupCategory::recommended);
    EXPECT_EQ(find(table, "chromium").category, CleanupCategory::browsers);
    for (const auto& row : table)
        EXPECT_TRUE(row.isBuiltIn) << row.id;
}

TEST_F(LinuxCatalogTest, EveryFolderIsACacheStrictlyInsideTheHome)
{
    expectEveryFolderIsACache(CleanupCatalog::builtIn(PlatformProfile::linuxDesktop));

    // Wherever the base folders are moved to inside the home, the rule holds too.
    setenv("XDG_CACHE_HOME", (H + "/var/cache").c_str(), 1);
    setenv("XDG_DATA_HOME", (H + "/var/data").c_str(), 1);
    setenv("XDG_STATE_HOME", (H + "/var/state").c_str(), 1);
    expectEveryFolderIsACache(CleanupCatalog::builtIn(PlatformProfile::linuxDesktop));

    // And in the live list, exclusions included, in either mode.
    TargetListSettings settings;
    settings.cleanSavedState = true;
    expectEveryFolderIsACache(CleanupCatalog::liveTargets(settings, PlatformProfile::linuxDesktop));
    settings.developerMode = true;
    settings.projectRoots = {};
    expectEveryFolderIsACache(CleanupCatalog::liveTargets(settings, PlatformProfile::linuxDesktop));
}

TEST_F(LinuxCatalogTest, RowsFollowTheBaseFoldersTheirOwnersFollow)
{
    auto folders = [](const std::string& id) { return foldersOf(find(CleanupCatalog::builtIn(PlatformProfile::linuxDesktop), id)); };
    EXPECT_THAT(folders("trash"), ElementsAre(H + "/.local/share/Trash"));
    EXPECT_EQ(folders("appcaches").front(), H + "/.cache");
    EXPECT_THAT(folders("firefox"),
                ElementsAre(H + "/.cache/mozilla/firefox", H + "/.var/app/org.mozilla.firefox/cache/mozilla/firefox",
                            H + "/snap/firefox/common/.cache/mozilla/firefox"));

    setenv("XDG_CACHE_HOME", (H + "/elsewhere").c_str(), 1);
    setenv("XDG_DATA_HOME", "relative/data", 1);  // not absolute: ignored, as the rules ask
    EXPECT_EQ(folders("appcaches").front(), H + "/elsewhere");
    EXPECT_EQ(folders("pip"), std::vector<std::string>{H + "/elsewhere/pip"});
    EXPECT_EQ(folders("thumbnails"), (std::vector<std::string>{H + "/elsewhere/thumbnails", H + "/.thumbnails"}));
    EXPECT_EQ(folders("trash"), std::vector<std::string>{H + "/.local/share/Trash"});
    EXPECT_EQ(folders("pnpm").front(), H + "/.local/share/pnpm/store");
    // Puppeteer and Selenium keep ~/.cache whatever the variable says.
    EXPECT_EQ(folders("ml").front(), H + "/.cache/puppeteer");
    EXPECT_EQ(folders("ml")[1], H + "/elsewhere/huggingface/hub");
}

TEST_F(LinuxCatalogTest, FlatpakCachesAreListedPerAppAndOnlyWhenThereAreAny)
{
    tempHome.makeFolder(".var/app/com.example.Alpha/cache");
    tempHome.makeFolder(".var/app/org.example.NoCache/data");
    tempHome.makeFolder("elsewhere/cache");
    std::filesystem::create_directory_symlink(H + "/elsewhere", H + "/.var/app/org.example.Linked");
    tempHome.makeFolder(".var/app/org.example.LinkedCache");
    std::filesystem::create_directory_symlink(H + "/Documents", H + "/.var/app/org.example.LinkedCache/cache");
    EXPECT_THAT(LinuxCatalog::flatpakCacheFolders(),
                ElementsAre("~/.var/app/com.example.Alpha/cache", "~/.var/app/org.gnome.Maps/cache"));

    std::filesystem::remove_all(H + "/.var");
    const auto ids = idsOf(CleanupCatalog::builtIn(PlatformProfile::linuxDesktop));
    EXPECT_EQ(std::count(ids.begin(), ids.end(), "flatpakcaches"), 0) << "an always-empty row is left out";
}

TEST_F(LinuxCatalogTest, TheModeAndTheOptionalCachesGateTheRowsThatExist)
{
    TargetListSettings settings;
    settings.cleanMusicCache = true;  // no such row here: nothing to let through
    EXPECT_THAT(idsOf(CleanupCatalog::liveTargets(settings, PlatformProfile::linuxDesktop)),
                ElementsAre("trash", "appcaches", "logs", "thumbnails", "flatpakcaches", "chrome", "chromium", "firefox"));

    settings.cleanSavedState = true;
    settings.developerMode = true;
    settings.projectRoots = {H + "/src"};
    settings.customFolders = {H + "/scratch"};
    const auto ids = idsOf(CleanupCatalog::liveTargets(settings, PlatformProfile::linuxDesktop));
    ASSERT_EQ(ids.size(), 9u + 14u + 5u + 1u);
    EXPECT_EQ(ids[3], "savedstate");
    EXPECT_EQ(ids[9], "gradle");
    EXPECT_EQ(ids[22], "ml");
    EXPECT_THAT(std::vector<std::string>(ids.begin() + 23, ids.end()),
                ElementsAre("node_modules", "next_build", "rust_target", "pycache", "venv", "custom:" + H + "/scratch"));
}

TEST_F(LinuxCatalogTest, NestedRowsLeaveTheirFoldersToTheInnerRowSoBytesCountOnce)
{
    auto excludedBy = [](const std::vector<CleanupTarget>& live, const std::string& id) {
        return std::get<PathsKind>(find(live, id).kind).excluded;
    };
    TargetListSettings settings;
    settings.customFolders = {H + "/.cache/my-tool"};
    auto live = CleanupCatalog::liveTargets(settings, PlatformProfile::linuxDesktop);
    // The saved sessions stay excluded while their setting is off: turning it off keeps them.
    EXPECT_THAT(excludedBy(live, "appcaches"),
                ElementsAre("~/.cache/huggingface/token", "~/.cache/huggingface/stored_tokens", "~/.cache/thumbnails",
                            "~/.cache/google-chrome", "~/.cache/chromium", "~/.cache/mozilla/firefox",
                            H + "/.cache/my-tool", "~/.cache/sessions"));
    EXPECT_THAT(excludedBy(live, "flatpakcaches"), ElementsAre());
    EXPECT_THAT(excludedBy(live, "thumbnails"), ElementsAre());

    // In developer mode the tools' own caches are theirs; in simple mode the cache row takes them.
    tempHome.makeFolder(".var/app/org.mozilla.firefox/cache");
    settings.developerMode = true;
    live = CleanupCatalog::liveTargets(settings, PlatformProfile::linuxDesktop);
    const auto appcaches = excludedBy(live, "appcaches");
    EXPECT_THAT(appcaches, IsSupersetOf({"~/.cache/pip", "~/.cache/yarn", "~/.cache/huggingface/hub", "~/.cache/puppeteer"}));
    EXPECT_THAT(excludedBy(live, "flatpakcaches"), ElementsAre("~/.var/app/org.mozilla.firefox/cache/mozilla/firefox"));

    // A Mac's rows keep their overlaps as they are.
    for (const auto& target : CleanupCatalog::liveTargets(settings, PlatformProfile::macOS)) {
        if (const auto* paths = std::get_if<PathsKind>(&target.kind)) {
            EXPECT_TRUE(paths->excluded.empty()) << target.id;
        }
    }
}
