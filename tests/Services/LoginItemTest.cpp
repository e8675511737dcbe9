#include "Platform/Bundle.h"
#include "Platform/DesktopEntry.h"
#include "Services/AutostartEntries.h"
#include "Services/LoginItem.h"
#include "Support/TempHome.h"

#include <filesystem>

namespace {

class LoginItemTest : public TempHomeTest {
protected:
    void SetUp() override { Bundle::setMainIdentifier(std::string(Bundle::applicationIdentifier)); }
    void TearDown() override { Bundle::setMainIdentifier(std::nullopt); }

    std::string entry() const { return tempHome.configHome() + "/autostart/org.mopwell.Mopwell.desktop"; }

    // The program the session would start from the entry; "%%" is the entry's way to write "%".
    static std::vector<std::string> startedProgram(const std::string& path)
    {
        auto arguments = DesktopEntry::read(path).value_or(DesktopEntry()).execArguments();
        for (auto& argument : arguments) {
            for (auto at = argument.find("%%"); at != std::string::npos; at = argument.find("%%", at + 1))
                argument.erase(at, 1);
        }
        return arguments;
    }

    static QString failureOf(bool enabled, const std::string& executable)
    {
        try {
            LoginItem::setEnabled(enabled, executable);
        } catch (const LoginItem::Error& error) {
            return error.localizedDescription();
        }
        return {};
    }
};

}  // namespace

TEST_F(LoginItemTest, SwitchingOnWritesAnAutostartEntryForTheRunningProgramAndOffRemovesIt)
{
    EXPECT_EQ(LoginItem::entryPath(), entry());
    EXPECT_FALSE(LoginItem::isEnabled());
    LoginItem::setEnabled(true);
    EXPECT_TRUE(LoginItem::isEnabled());
    EXPECT_EQ(startedProgram(entry()), std::vector<std::string>{LoginItem::runningExecutable()});
    EXPECT_TRUE(std::filesystem::path(LoginItem::runningExecutable()).is_absolute());
    const auto written = DesktopEntry::read(entry());
    EXPECT_EQ(written->string("Type"), "Application");
    EXPECT_EQ(written->string("Name"), "Mopwell");
    EXPECT_EQ(written->string("Icon"), "org.mopwell.Mopwell");
    // The startup items window lists it like any other entry, switched on.
    const auto items = AutostartEntries::list();
    ASSERT_EQ(items.size(), 1u);
    EXPECT_TRUE(items.front().enabled);

    LoginItem::setEnabled(false);
    EXPECT_FALSE(std::filesystem::exists(entry()));
    EXPECT_FALSE(LoginItem::isEnabled());
    LoginItem::setEnabled(false);  // already off: nothing to do, nothing to complain about
}

TEST_F(LoginItemTest, AnyProgramPathStartsTheSameFile)
{
    for (const std::string path : {"/opt/My Apps/mopwell", "/opt/a\"b$c`d\\e/mopwell", "/opt/100%/mopwell",
                                   "/opt/x;y&z|(w)/mopwell", "/opt/Größe/#1 'mop'/mopwell", "/usr/bin/mopwell"}) {
        LoginItem::setEnabled(true, path);
        EXPECT_EQ(startedProgram(entry()), std::vector<std::string>{path}) << path;
        EXPECT_TRUE(LoginItem::isEnabled()) << path;
    }
    // A path that isn't text can't be written into an entry, which is text.
    LoginItem::setEnabled(false);
    EXPECT_EQ(failureOf(true, "/opt/caf\xe9/mopwell"), "Couldn't find Mopwell's own program file to start at login.");
    EXPECT_FALSE(std::filesystem::exists(entry()));
}

TEST_F(LoginItemTest, TheStateIsReadBackFromTheFile)
{
    LoginItem::setEnabled(true, "/usr/bin/mopwell");
    // Switched off in the desktop's own settings, which mark the entry rather than remove it.
    tempHome.writeFile(".config/autostart/org.mopwell.Mopwell.desktop",
                       "[Desktop Entry]\nType=Application\nExec=/usr/bin/mopwell\nX-GNOME-Autostart-enabled=false\n");
    EXPECT_FALSE(LoginItem::isEnabled());
    tempHome.writeFile(".config/autostart/org.mopwell.Mopwell.desktop", "[Desktop Entry]\nType=Application\n");
    EXPECT_FALSE(LoginItem::isEnabled());  // starts nothing

    // Switched off in the startup items window, which moves it aside; switching on here must not
    // leave that copy behind to come back as a second entry.
    LoginItem::setEnabled(true, "/usr/bin/mopwell");
    ASSERT_TRUE(AutostartEntries::setEnabled(false, AutostartEntries::list().front()));
    EXPECT_FALSE(LoginItem::isEnabled());
    LoginItem::setEnabled(true, "/usr/bin/mopwell");
    EXPECT_TRUE(LoginItem::isEnabled());
    EXPECT_EQ(AutostartEntries::list().size(), 1u);
    ASSERT_TRUE(AutostartEntries::setEnabled(false, AutostartEntries::list().front()));
    LoginItem::setEnabled(false);
    EXPECT_TRUE(AutostartEntries::list().empty());
}

// A failure to write the entry, and the switch shown off without an identity, are the settings
// window's tests; here, that nothing is written without one either.
TEST_F(LoginItemTest, WithoutAnIdentityNothingIsWritten)
{
    Bundle::setMainIdentifier(std::nullopt);
    EXPECT_EQ(failureOf(true, "/usr/bin/mopwell"), "Starting at login is only available in the installed application.");
    EXPECT_FALSE(std::filesystem::exists(entry()));
}
