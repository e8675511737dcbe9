#include "Platform/ByteCountFormatter.h"
#include "Platform/DefaultsStore.h"
#include "Services/AppLanguage.h"
#include "Support/EventLoop.h"
#include "Support/TempHome.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <filesystem>
#include <fstream>

namespace {

class AppLanguageTest : public TempHomeTest {
protected:
    DefaultsStore store{tempHome.configHome() + "/mopwell/defaults.plist"};
};

}  // namespace

TEST(AppLanguage, EnglishLeadsTheLanguagesTheBuildShips)
{
    EXPECT_EQ(AppLanguage::available({"de"}), (QStringList{"en", "de"}));
    EXPECT_EQ(AppLanguage::available({"fr", "de", "en", "de"}), (QStringList{"en", "de", "fr"}));
    EXPECT_EQ(AppLanguage::available({}), QStringList{"en"});
}

// The languages this build ships, each named in itself, are the settings window's test.
TEST(AppLanguage, ALanguageIsNamedWithoutItsRegionOrElseByItsCode)
{
    EXPECT_EQ(AppLanguage::displayName("pt_BR"), "Português");
    EXPECT_EQ(AppLanguage::displayName("zz"), "zz");
    EXPECT_EQ(AppLanguage::displayName(""), "");
}

TEST_F(AppLanguageTest, SettingStoresOneCodeAndReportsAChange)
{
    EXPECT_EQ(AppLanguage::current(store), "");
    EXPECT_FALSE(AppLanguage::set(store, ""));  // nothing stored is already the desktop's choice
    EXPECT_FALSE(store.contains(AppLanguage::key));
    EXPECT_TRUE(AppLanguage::set(store, "de"));
    EXPECT_EQ(store.stringArray(AppLanguage::key), (std::vector<std::string>{"de"}));
    EXPECT_FALSE(AppLanguage::set(store, "de"));
    EXPECT_TRUE(AppLanguage::set(store, "fr"));
    EXPECT_EQ(DefaultsStore(store.path()).stringArray(AppLanguage::key), (std::vector<std::string>{"fr"}));
    EXPECT_TRUE(AppLanguage::set(store, ""));
    EXPECT_FALSE(store.contains(AppLanguage::key));

    // Only the first of a list counts, and a list of anything but text counts as nothing.
    store.set(AppLanguage::key, std::vector<std::string>{"fr", "de"});
    EXPECT_EQ(AppLanguage::current(store), "fr");
    store.set(AppLanguage::key, std::vector<std::string>{});
    EXPECT_EQ(AppLanguage::current(store), "");
    store.set(AppLanguage::key, std::string("de"));
    EXPECT_EQ(AppLanguage::current(store), "");
}

TEST(AppLanguage, TheStoredChoiceWinsOverTheDesktopsLanguages)
{
    const QStringList shipped{"de", "fr"};
    struct Case {
        const char* stored;
        QStringList desktop;
        const char* shown;
    };
    const Case cases[] = {
        {"", {"de-AT", "en-US"}, "de"},
        {"", {"es-ES", "fr-CA", "de"}, "fr"},   // the first the build has a translation for
        {"", {"en-GB", "de-DE"}, "en"},         // English is one of them, needing none
        {"", {"es-ES"}, "en"},
        {"", {}, "en"},
        {"en", {"de-DE"}, "en"},
        {"fr", {"de-DE"}, "fr"},
        {"it", {"de-DE"}, "de"},                 // a stored language this build lacks
        {"../../etc/x", {"fr"}, "fr"},
    };
    for (const auto& [stored, desktop, shown] : cases)
        EXPECT_EQ(AppLanguage::resolved(stored, desktop, shipped), shown) << stored << " " << desktop.join(',').toStdString();
}

TEST_F(AppLanguageTest, TheStoredLanguageIsInstalledWithItsWaysOfWritingNumbers)
{
    AppLanguage::set(store, "de");
    AppLanguage::install(store);
    EXPECT_EQ(QCoreApplication::translate("AboutView", "Recent cleanups"), "Letzte Bereinigungen");
    EXPECT_EQ(ByteCountFormatter::string(1'500'000), "1,5 MB");
    EXPECT_EQ(ByteCountFormatter::string(0), "Null KB");
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 1), "1.234,5");

    // Reset for the tests after this one.
    QLocale::setDefault(QLocale::c());
    ByteCountFormatter::setWording({});
    for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>())
        QCoreApplication::removeTranslator(translator);
    EXPECT_EQ(ByteCountFormatter::string(1'500'000), "1.5 MB");
}

TEST(AppLanguage, RelaunchStartsTheNewCopyBeforeQuitting)
{
    TempHome home;
    const std::string marker = home.root() + "/started";
    const std::string program = home.writeFile("relaunch.sh", "#!/bin/sh\necho \"$@\" > '" + marker + "'\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    bool quit = false;
    AppLanguage::relaunch(QString::fromStdString(program), [&] { quit = true; });
    EXPECT_FALSE(quit);  // not before the event loop gets to it
    // The new copy writes its arguments when it gets to it; the file may exist a moment earlier.
    std::string arguments;
    EXPECT_TRUE(EventLoop::waitUntil([&] {
        std::ifstream started(marker);
        return quit && std::getline(started, arguments) && !arguments.empty();
    }));
    EXPECT_EQ(arguments, AppLanguage::relaunchArgument);

    quit = false;
    AppLanguage::relaunch(QString::fromStdString(home.root() + "/missing"), [&] { quit = true; });
    EXPECT_TRUE(EventLoop::waitUntil([&] { return quit; }));  // quits whether or not the start worked
}
