#include "Services/AutostartEntries.h"

#include "Platform/AtomicFile.h"
#include "Support/StartupItemRows.h"
#include "Support/TempHome.h"

#include <gtest/gtest.h>

namespace {

class AutostartEntriesTest : public TempHomeTest {
protected:
    std::string entry(const std::string& relative, const std::string& contents)
    {
        return tempHome.writeFile(".config/autostart/" + relative, contents);
    }
};

}  // namespace

TEST_F(AutostartEntriesTest, ListsEntriesWithTheirNameAndProgram)
{
    EXPECT_TRUE(AutostartEntries::list().empty());
    entry("syncthing.desktop", "[Desktop Entry]\nName=Syncthing\nExec=\"/opt/sync thing/run\" --no-browser\n");
    entry("nextcloud.desktop", "[Desktop Entry]\nName=nextcloud\nExec=env FOO=1 nextcloud --background\n");
    entry("hidden.desktop", "[Desktop Entry]\nName=Hidden one\nExec=hid\nHidden=true\n");
    entry("gnome-off.desktop", "[Desktop Entry]\nName=Gnome off\nExec=go\nX-GNOME-Autostart-enabled=false\n");
    entry("garbage.desktop", "\x01\x02 not an entry");
    entry("readme.txt", "[Desktop Entry]\nName=not listed\n");
    entry("Disabled/old.desktop", "[Desktop Entry]\nName=Old\nExec=old\n");
    EXPECT_EQ(startupItemRows(AutostartEntries::list()), (std::vector<std::string>{
                                                  "garbage | — | on",
                                                  "Gnome off | go | off",
                                                  "Hidden one | hid | off",
                                                  "nextcloud | env | on",
                                                  "Syncthing | /opt/sync thing/run | on",
                                                  "Old | old | off",
                                              }));
}

// Moving an entry aside and back, and never over one of the same name, is the startup items
// window's test.
TEST_F(AutostartEntriesTest, SwitchingOnAHiddenEntryUnhidesItInPlace)
{
    const std::string path = entry("h.desktop", "[Desktop Entry]\nName=H\nHidden=true\nExec=h\n");
    ASSERT_TRUE(AutostartEntries::setEnabled(true, AutostartEntries::list().front()));
    EXPECT_EQ(AtomicFile::read(path).contents, "[Desktop Entry]\nName=H\nHidden=false\nExec=h\n");
    EXPECT_TRUE(AutostartEntries::list().front().enabled);
}

TEST(AutostartEntryText, ShownChangesOnlyTheKeysThatHideIt)
{
    struct Case {
        const char* text;
        bool hidden;
        const char* shown;
    };
    for (const Case& c : {
             Case{"[Desktop Entry]\nHidden=true\n", true, "[Desktop Entry]\nHidden=false\n"},
             Case{"[Desktop Entry]\nHidden = true", true, "[Desktop Entry]\nHidden=false"},
             Case{"[Desktop Entry]\nX-GNOME-Autostart-enabled=false\nName=x\n", true,
                  "[Desktop Entry]\nX-GNOME-Autostart-enabled=true\nName=x\n"},
             Case{"# Hidden=true\n[Desktop Entry]\nName=x\n", false, "# Hidden=true\n[Desktop Entry]\nName=x\n"},
             Case{"[Desktop Entry]\nName=x\n[Desktop Action a]\nHidden=true\n", false,
                  "[Desktop Entry]\nName=x\n[Desktop Action a]\nHidden=true\n"},
         }) {
        EXPECT_EQ(AutostartEntries::isHidden(c.text), c.hidden) << c.text;
        EXPECT_EQ(AutostartEntries::shown(c.text), c.shown) << c.text;
    }
}
