#include "Platform/Trash.h"
#include "Services/LinuxApps.h"
#include "Services/Scanner.h"
#include "Services/Uninstaller.h"
#include "Support/TempHome.h"
#include "Support/ToolStubs.h"
#include "Support/TreeBuilder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

// The Linux profile over a seeded home: an AppImage, an unpacked application folder and a
// per-user Flatpak app, each with leftovers, beside decoys that must not be taken.
namespace {

constexpr auto linux = PlatformProfile::linuxDesktop;

using Rows = std::vector<std::pair<std::string, std::string>>;  // label, path below the home

class UninstallerLinux : public TempHomeTest {
protected:
    const std::string H = tempHome.home();
    const std::string photoTool = H + "/Applications/PhotoTool-2.1-x86_64.AppImage";
    const std::string notes = H + "/.local/opt/Notes";
    const std::string paint = H + "/.local/share/flatpak/app/org.example.Paint";

    void SetUp() override
    {
        TreeBuilder::writeFile(photoTool, 40'000);
        entry("appimagekit-phototool.desktop", "Name=PhotoTool\nExec=\"" + photoTool +
                                                   "\" %U\nStartupWMClass=phototool\nIcon=phototool\n");
        for (const char* leftover : {".config/phototool/settings.ini", ".cache/phototool/c", ".local/state/phototool/s",
                                     ".local/share/icons/hicolor/256x256/apps/phototool.png",
                                     ".config/autostart/phototool-tray.desktop", ".config/PhotoTool/x",
                                     // decoys: another app's name that merely starts the same,
                                     // another case, an icon of another name
                                     ".config/phototools/y", ".config/PhotoToolbox/y", ".cache/PHOTOTOOL/z",
                                     ".local/share/icons/hicolor/48x48/apps/phototool-old.png"})
            TreeBuilder::writeFile(H + "/" + leftover, 3'000);

        TreeBuilder::writeFile(notes + "/bin/notes", 30'000);
        TreeBuilder::writeFile(notes + "/lib/libnotes.so", 60'000);
        entry("notes.desktop", "Name=Notes\nExec=" + notes + "/bin/notes %F\n");
        entry("notes-new-window.desktop", "Name=New Note\nExec=env GDK_BACKEND=x11 " + notes + "/bin/notes --new\n");
        for (const char* leftover : {".config/notes/n", ".local/share/Notes/db", ".local/share/applications-old/x"})
            TreeBuilder::writeFile(H + "/" + leftover, 2'000);

        TreeBuilder::writeFile(paint + "/current/active/files/bin/paint", 90'000);
        TreeBuilder::writeFile(H + "/.local/share/flatpak/exports/share/applications/org.example.Paint.desktop",
                               0);
        std::ofstream(H + "/.local/share/flatpak/exports/share/applications/org.example.Paint.desktop")
            << "[Desktop Entry]\nType=Application\nName=Paint\nExec=/usr/bin/flatpak run org.example.Paint\n"
               "X-Flatpak=org.example.Paint\nIcon=org.example.Paint\n";
        entry("org.example.Paint.desktop", "Name=Paint (mine)\nExec=flatpak run org.example.Paint\nX-Flatpak=org.example.Paint\n");
        TreeBuilder::writeFile(H + "/.var/app/org.example.Paint/config/paint.conf", 4'000);

        // Not the user's to remove here, or not apps at all.
        entry("firefox.desktop", "Name=Firefox\nExec=/usr/bin/firefox %u\n");
        entry("gone.desktop", "Name=Gone\nExec=" + H + "/Applications/Gone.AppImage\n");
        entry("hidden.desktop", "Name=Hidden\nExec=" + photoTool + "\nHidden=true\n");
        entry("link.desktop", "Name=Link\nExec=" + photoTool + "\nType=Link\n", false);
        entry("climbing.desktop", "Name=Climbing\nExec=" + H + "/Applications/../.ssh/agent\n");
    }

    void entry(const std::string& file, const std::string& keys, bool application = true)
    {
        tempHome.writeFile(".local/share/applications/" + file,
                           "[Desktop Entry]\n" + std::string(application ? "Type=Application\n" : "") + keys);
    }
    Rows rows(const std::vector<UninstallItem>& items) const
    {
        Rows result;
        for (const UninstallItem& item : items)
            result.emplace_back(item.label, item.path.substr(H.size() + 1));
        return result;
    }
};

}  // namespace

TEST_F(UninstallerLinux, ListsTheAppsInTheHomeByNameOnceEach)
{
    std::vector<std::tuple<std::string, std::optional<std::string>, std::string>> listed;
    for (const AppInfo& app : LinuxApps::installed())
        listed.emplace_back(app.name, app.bundleID, app.appPath);
    const decltype(listed) expected = {
        {"Notes", "notes", notes},
        {"Paint (mine)", "org.example.Paint", paint},
        {"PhotoTool", "phototool", photoTool},
    };
    EXPECT_EQ(listed, expected);
}

TEST_F(UninstallerLinux, InspectKnowsAnAppByItsFileItsEntryOrItsFlatpakFolder)
{
    struct Case {
        std::string path;
        std::string name;
        std::optional<std::string> id;
        std::string appPath;
    };
    TreeBuilder::writeFile(H + "/Downloads/Thing.AppImage", 100);
    const std::vector<Case> cases = {
        {photoTool, "PhotoTool", "phototool", photoTool},
        {H + "/.local/share/applications/notes.desktop", "Notes", "notes", notes},
        {notes, "Notes", "notes", notes},
        {paint, "Paint (mine)", "org.example.Paint", paint},
        {H + "/Downloads/Thing.AppImage", "Thing", std::nullopt, H + "/Downloads/Thing.AppImage"},
    };
    for (const Case& c : cases) {
        const AppInfo app = Uninstaller::inspect(c.path, linux);
        EXPECT_EQ(app.name, c.name) << c.path;
        EXPECT_EQ(app.bundleID, c.id) << c.path;
        EXPECT_EQ(app.appPath, c.appPath) << c.path;
    }
}

TEST_F(UninstallerLinux, LeftoversFollowTheXdgTableWithExactNamesOnly)
{
    struct Case {
        std::string path;
        Rows expected;
    };
    const std::vector<Case> cases = {
        {photoTool,
         {{"Application", "Applications/PhotoTool-2.1-x86_64.AppImage"},
          {"Menu entry", ".local/share/applications/appimagekit-phototool.desktop"},
          {"Menu entry", ".local/share/applications/hidden.desktop"},
          {"Preferences", ".config/phototool"},
          {"App cache", ".cache/phototool"},
          {"Saved state", ".local/state/phototool"},
          {"Icon", ".local/share/icons/hicolor/256x256/apps/phototool.png"},
          {"Launch agent", ".config/autostart/phototool-tray.desktop"},
          {"Preferences", ".config/PhotoTool"}}},
        {notes,
         {{"Application", ".local/opt/Notes"},
          {"Menu entry", ".local/share/applications/notes.desktop"},
          {"Menu entry", ".local/share/applications/notes-new-window.desktop"},
          {"Preferences", ".config/notes"},
          {"Application support", ".local/share/Notes"}}},
        {paint,
         {{"Application", ".local/share/flatpak/app/org.example.Paint"},
          {"Menu entry", ".local/share/applications/org.example.Paint.desktop"},
          {"Container", ".var/app/org.example.Paint"}}},
    };
    for (const Case& c : cases) {
        const auto items = Uninstaller::leftovers(Uninstaller::inspect(c.path, linux), linux);
        EXPECT_EQ(rows(items), c.expected) << c.path;
    }
}

TEST_F(UninstallerLinux, KeysThatNameSharedFoldersOrClimbOutAreNotUsed)
{
    tempHome.makeFolder(".local/share/icons/hicolor");
    tempHome.makeFolder(".config/autostart");
    TreeBuilder::writeFile(H + "/.local/share/flatpak/repo/objects", 500);
    TreeBuilder::writeFile(H + "/Applications/tool", 100);
    for (const char* key : {"applications", "icons", "autostart", "flatpak", "Trash", "..", "."}) {
        AppInfo app;
        app.name = key;
        app.bundleID = key;
        app.appPath = H + "/Applications/tool";
        EXPECT_EQ(rows(Uninstaller::leftovers(app, linux)), (Rows{{"Application", "Applications/tool"}})) << key;
    }
}

TEST_F(UninstallerLinux, RefusesWhatLiesOutsideTheHomeIsntTheUsersOrIsASharedFolder)
{
    const std::string outside = tempHome.root() + "/elsewhere.AppImage";
    TreeBuilder::writeFile(outside, 10);
    TreeBuilder::writeFile(H + "/Applications/Foreign.AppImage", 10);
    ASSERT_EQ(chown((H + "/Applications/Foreign.AppImage").c_str(), getuid() + 4242, getgid()), 0);
    fs::create_directory_symlink(tempHome.root(), H + "/Applications/escape");
    using R = LinuxApps::Refusal;
    const std::vector<std::pair<std::string, std::optional<R>>> cases = {
        {photoTool, std::nullopt},
        {notes, std::nullopt},
        {paint, std::nullopt},
        {"/usr/bin/firefox", R::systemApp},
        {outside, R::systemApp},
        {H + "/Applications/escape/elsewhere.AppImage", R::systemApp},
        {H + "/Applications/Foreign.AppImage", R::systemApp},
        {"relative/app", R::systemApp},
        {H + "/Applications/..", R::systemApp},
        {H + "/Applications/./Foreign.AppImage", R::systemApp},
        {H, R::sharedFolder},
        {H + "/.local", R::sharedFolder},
        {H + "/.config", R::sharedFolder},
        {H + "/Applications", R::sharedFolder},
        {H + "/.local/share/flatpak/app", R::sharedFolder},
    };
    for (const auto& [path, refusal] : cases)
        EXPECT_EQ(LinuxApps::refusal(path), refusal) << path;
    EXPECT_TRUE(Uninstaller::isProtectedSystemApp(outside, linux));
    EXPECT_FALSE(Uninstaller::isProtectedSystemApp(photoTool, linux));
}

TEST_F(UninstallerLinux, AFlatpakGoesThroughTheToolAndItsDataThroughTheTrashElseNothingIsFreed)
{
    ToolStubs stubs{tempHome.root() + "/stubs", H};
    stubs.install("flatpak", "rm -rf '" + paint + "'");
    const std::string data = H + "/.var/app/org.example.Paint";
    const std::int64_t expected = Scanner::directorySize(paint) + Scanner::directorySize(data);
    const auto result = Uninstaller::remove({paint, data, H + "/.config", tempHome.root() + "/outside"}, linux);

    EXPECT_EQ(stubs.calls("flatpak"), std::vector<std::string>{"[uninstall][--user][--noninteractive][org.example.Paint]"});
    EXPECT_EQ(result.freed, expected);
    ASSERT_EQ(result.trashed.size(), 1u);
    EXPECT_EQ(result.trashed[0].original, data);
    EXPECT_TRUE(Trash::putBack(result.trashed[0].trashPath, data));
    EXPECT_TRUE(fs::exists(H + "/.config/phototool"));

    // A tool that fails (the app is running), or none at all: the app stays and nothing is freed.
    TreeBuilder::writeFile(paint + "/current/active/files/bin/paint", 90'000);
    stubs.install("flatpak", "echo 'error: app is running' >&2; exit 1");
    EXPECT_EQ(Uninstaller::remove({paint}, linux), Uninstaller::RemoveResult{});
    stubs.clear();
    setenv("PATH", stubs.folder().c_str(), 1);  // restored when the stubs go
    EXPECT_EQ(Uninstaller::remove({paint}, linux), Uninstaller::RemoveResult{});
    EXPECT_TRUE(fs::exists(paint));
}
