#include "Services/LaunchAgentManager.h"

#include "Support/StartupItemRows.h"
#include "Support/TempHome.h"
#include "Support/ToolStubs.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <plist/plist.h>

namespace fs = std::filesystem;

namespace {

std::string plist(const std::string& body)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>)" + body + "</dict></plist>\n";
}

class LaunchAgentManagerTest : public TempHomeTest {
protected:
    ToolStubs stubs{tempHome.root() + "/stubs", tempHome.home()};
    LaunchAgentManager::Tools tools;

    void SetUp() override
    {
        // Notes where the file is at the moment launchctl is asked.
        tools.launchctl = stubs.install("launchctl", "if [ -e \"$2\" ]; then echo present; else echo absent; fi >> "
                                                         + stubs.folder() + "/launchctl.calls");
    }
    std::string agent(const std::string& relative, const std::string& contents)
    {
        return tempHome.writeFile("Library/LaunchAgents/" + relative, contents);
    }
};

}  // namespace

TEST_F(LaunchAgentManagerTest, ListsLiveThenSwitchedOffAgentsEachSortedByLabel)
{
    EXPECT_TRUE(LaunchAgentManager::list().empty());  // no folder yet
    agent("com.b.plist", plist("<key>Label</key><string>beta</string><key>Program</key><string>/opt/b</string>"));
    agent("com.a.plist", plist("<key>Label</key><string>Alpha</string><key>ProgramArguments</key>"
                               "<array><string>/opt/a</string><string>--now</string></array>"));
    agent("broken.plist", "this is no property list");
    agent("notes.txt", plist("<key>Label</key><string>not listed</string>"));
    agent("Disabled/com.c.plist", plist("<key>Label</key><string>Charlie</string>"
                                        "<key>ProgramArguments</key><array><integer>1</integer></array>"));
    EXPECT_EQ(startupItemRows(LaunchAgentManager::list()), (std::vector<std::string>{
                                                    "Alpha | /opt/a | on",
                                                    "beta | /opt/b | on",
                                                    "broken | — | on",
                                                    "Charlie | — | off",
                                                }));
}

TEST(LaunchAgentPlist, ReadsBinaryPropertyListsToo)
{
    plist_t root = plist_new_dict();
    plist_dict_set_item(root, "Label", plist_new_string("x.y"));
    plist_t arguments = plist_new_array();
    plist_array_append_item(arguments, plist_new_string("/usr/bin/x"));
    plist_dict_set_item(root, "ProgramArguments", arguments);
    char* bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    const std::string binary(bytes, length);
    std::free(bytes);
    plist_free(root);
    ASSERT_TRUE(binary.starts_with("bplist00"));

    const auto summary = LaunchAgentManager::parsePlist(binary);
    EXPECT_EQ(summary.label, "x.y");
    EXPECT_EQ(summary.program, "/usr/bin/x");
    EXPECT_EQ(LaunchAgentManager::parsePlist(plist("<key>Label</key><integer>3</integer>")).label, std::nullopt);
    EXPECT_EQ(LaunchAgentManager::parsePlist("<plist><array/></plist>").label, std::nullopt);
}

TEST_F(LaunchAgentManagerTest, SwitchingOffAndOnMovesTheFileAroundLaunchctl)
{
    const std::string live = agent("com.a.plist", plist("<key>Label</key><string>a</string>"));
    const std::string off = tempHome.home() + "/Library/LaunchAgents/Disabled/com.a.plist";
    ASSERT_FALSE(fs::exists(LaunchAgentManager::disabledFolder()));

    ASSERT_TRUE(LaunchAgentManager::setEnabled(false, LaunchAgentManager::list().front(), tools));
    EXPECT_TRUE(fs::exists(off));
    EXPECT_FALSE(fs::exists(live));
    ASSERT_TRUE(LaunchAgentManager::setEnabled(true, LaunchAgentManager::list().front(), tools));
    EXPECT_TRUE(fs::exists(live));
    EXPECT_FALSE(fs::exists(off));
    // Unloaded from where it was while it was still there; loaded from where it went once there.
    EXPECT_EQ(stubs.calls("launchctl"),
              (std::vector<std::string>{"[unload][" + live + "]", "present", "[load][" + live + "]", "present"}));
    // Asking for the state it already has does nothing.
    EXPECT_TRUE(LaunchAgentManager::setEnabled(true, LaunchAgentManager::list().front(), tools));
    EXPECT_EQ(stubs.calls("launchctl").size(), 4u);
}

TEST_F(LaunchAgentManagerTest, NeverOverwritesAFileOfTheSameName)
{
    agent("com.a.plist", plist("<key>Label</key><string>live</string>"));
    agent("Disabled/com.a.plist", plist("<key>Label</key><string>switched off</string>"));
    const auto items = LaunchAgentManager::list();
    ASSERT_EQ(items.size(), 2u);
    EXPECT_FALSE(LaunchAgentManager::setEnabled(true, items[1], tools));
    EXPECT_FALSE(LaunchAgentManager::setEnabled(false, items[0], tools));
    EXPECT_EQ(startupItemRows(LaunchAgentManager::list()), (std::vector<std::string>{"live | — | on", "switched off | — | off"}));
}
