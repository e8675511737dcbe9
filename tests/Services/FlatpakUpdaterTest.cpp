#include "Services/FlatpakUpdater.h"

#include "Support/TempHome.h"
#include "Support/ToolStubs.h"

#include <gtest/gtest.h>

#include <filesystem>

TEST(FlatpakUpdater, JoinsTheUpdatesWithWhatIsInstalled)
{
    const auto packages = FlatpakUpdater::parseOutdated(
        "org.mozilla.firefox\t119.0\tFirefox\n"
        "org.gimp.GIMP\t\tGNU Image Manipulation Program\n"
        "com.example.Same\t1\tcom.example.Same\n",
        "Application ID\tVersion\n"          // a heading, should one be printed
        "org.mozilla.firefox\t120.0\n"
        "org.gimp.GIMP\n"
        "org.gimp.GIMP\t2.10.36\n"           // the same app twice (two branches)
        "com.example.Same\t2\r\n"
        "org.example.NotInstalled\t3\n");
    ASSERT_EQ(packages.size(), 4u);
    EXPECT_EQ(packages[0].id(), "flatpak:org.mozilla.firefox");
    EXPECT_EQ(packages[0].displayName(), "Firefox");
    EXPECT_EQ(packages[0].installed + " -> " + packages[0].current, "119.0 -> 120.0");
    EXPECT_EQ(packages[1].installed + " -> " + packages[1].current, "? -> ?");
    EXPECT_EQ(packages[2].displayName(), "com.example.Same");
    EXPECT_EQ(packages[2].current, "2");
    EXPECT_EQ(packages[3].installed, "?");
    EXPECT_TRUE(packages[3].isApp());
    EXPECT_TRUE(FlatpakUpdater::parseOutdated("", "").empty());
}

TEST(FlatpakUpdater, UpdatesOneAppInTheUsersOwnInstallation)
{
    TempHome home;
    ToolStubs stubs(home.root() + "/stubs", home.home());
    stubs.install("flatpak", R"(case "$1" in
  list) printf 'org.mozilla.firefox\t119.0\tFirefox\n' ;;
  remote-ls) printf 'org.mozilla.firefox\t120.0\n' ;;
esac)");
    ASSERT_TRUE(FlatpakUpdater::isInstalled());
    ASSERT_EQ(FlatpakUpdater::outdated().size(), 1u);
    OutdatedPackage package;
    package.kind = OutdatedPackage::Kind::flatpakApp;
    package.name = "org.x; touch " + home.root() + "/owned";
    FlatpakUpdater::upgrade(package);
    EXPECT_FALSE(std::filesystem::exists(home.root() + "/owned"));
    EXPECT_EQ(stubs.calls("flatpak"),
              (std::vector<std::string>{"[list][--user][--app][--columns=application,version,name]",
                                        "[remote-ls][--updates][--user][--app][--columns=application,version]",
                                        "[update][--user][-y][--noninteractive][" + package.name + "]"}));
}
