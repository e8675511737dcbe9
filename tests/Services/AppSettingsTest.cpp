#include "Platform/DefaultsStore.h"
#include "Services/AppSettings.h"
#include "Support/TempHome.h"

#include <QSignalSpy>

namespace {

class AppSettingsTest : public TempHomeTest {
protected:
    std::string path() const { return tempHome.configHome() + "/mopwell/defaults.plist"; }
    std::shared_ptr<DefaultsStore> store() const { return std::make_shared<DefaultsStore>(path()); }
    // Writes raw values as another program (or an older version) might have left them.
    void seed(const std::function<void(DefaultsStore&)>& write) const
    {
        DefaultsStore raw(path());
        write(raw);
    }
};

}  // namespace

TEST_F(AppSettingsTest, ValuesOfTheWrongTypeFallBackToTheirDefaultsButFlagsAreLenient)
{
    seed([](DefaultsStore& raw) {
        raw.set("developerMode", std::string("YES"));
        raw.set("sortBySize", std::int64_t{1});
        raw.set("hasCompletedOnboarding", std::string("no"));
        raw.set("refreshInterval", std::string("fast"));
        raw.set("lowSpaceThresholdGB", true);
        raw.set("lowSpaceAlertsEnabled", std::string("NO"));
        raw.set("moveToTrash", std::int64_t{5});
        raw.set("cleanMailDownloads", 0.0);
        raw.set("customFolders", std::string("/not/a/list"));
        raw.set("cleanupSchedule", std::string("hourly"));
        raw.set("menuBarDisplay", std::int64_t{2});
        raw.set("lastAutoCleanup", std::string("yesterday"));
        raw.set("finderMinAgeDays", std::int64_t{14});
    });
    AppSettings settings(store());
    EXPECT_EQ(settings.refreshInterval(), 5.0);
    EXPECT_EQ(settings.lowSpaceThresholdGB(), 10.0);
    EXPECT_TRUE(settings.lowSpaceAlertsEnabled());
    EXPECT_TRUE(settings.moveToTrash());
    EXPECT_TRUE(settings.cleanMailDownloads());
    EXPECT_TRUE(settings.customFolders().isEmpty());
    EXPECT_EQ(settings.cleanupSchedule(), CleanupSchedule::off);
    EXPECT_EQ(settings.menuBarDisplay(), MenuBarDisplay::percent);
    EXPECT_EQ(settings.lastAutoCleanup(), std::nullopt);
    EXPECT_EQ(settings.finderMinAgeDays(), 14.0);  // a whole number is still a number
    EXPECT_TRUE(settings.developerMode());
    EXPECT_TRUE(settings.sortBySize());
    EXPECT_FALSE(settings.hasCompletedOnboarding());

    DefaultsStore after(path());
    // An unknown schedule stays stored until the setting is next changed...
    EXPECT_EQ(after.string("cleanupSchedule"), "hourly");
    // ...but a last-cleanup value that isn't a date is removed at once.
    EXPECT_FALSE(after.contains("lastAutoCleanup"));
}

TEST_F(AppSettingsTest, ProjectRootsDefaultOnlyWhenTheKeyIsAbsent)
{
    const QString home = QString::fromStdString(tempHome.home());
    EXPECT_EQ(AppSettings(store()).projectRoots(), (QStringList{home + "/src", home + "/dev"}));
    seed([](DefaultsStore& raw) { raw.set("projectRoots", std::vector<std::string>{}); });
    EXPECT_TRUE(AppSettings(store()).projectRoots().isEmpty());

    seed([](DefaultsStore& raw) { raw.set("projectRoots", 1.0); });
    EXPECT_TRUE(AppSettings(store()).projectRoots().isEmpty());
}

TEST_F(AppSettingsTest, EveryChangeIsPublishedAndWrittenAtOnce)
{
    AppSettings settings(store());
    QSignalSpy intervalSpy(&settings, &AppSettings::refreshIntervalChanged);
    const auto cleaned = Clock::TimePoint{} + std::chrono::seconds{1'800'000'000};
    settings.setRefreshInterval(0.5);  // no clamp here: callers clamp where they use it
    settings.setCustomFolders({"/data/old", "/data/tmp"});
    settings.setCleanupSchedule(CleanupSchedule::weekly);
    settings.setMenuBarDisplayRawValue("free");
    settings.setLastAutoCleanup(cleaned);
    settings.setCleanMusicCache(true);
    settings.setProjectRoots({});
    EXPECT_EQ(intervalSpy.count(), 1);

    AppSettings reread(store());
    EXPECT_EQ(reread.refreshInterval(), 0.5);
    EXPECT_EQ(reread.customFolders(), (QStringList{"/data/old", "/data/tmp"}));
    EXPECT_EQ(reread.cleanupSchedule(), CleanupSchedule::weekly);
    EXPECT_EQ(reread.cleanupScheduleRawValue(), "weekly");
    EXPECT_EQ(reread.menuBarDisplay(), MenuBarDisplay::free);
    EXPECT_EQ(reread.lastAutoCleanup(), cleaned);
    EXPECT_TRUE(reread.cleanMusicCache());
    EXPECT_TRUE(reread.projectRoots().isEmpty());

    reread.setLastAutoCleanup(std::nullopt);
    EXPECT_FALSE(DefaultsStore(path()).contains("lastAutoCleanup"));
}

TEST_F(AppSettingsTest, EnablingAndDisablingTargetsRewritesTheSet)
{
    AppSettings settings(store());
    QSignalSpy spy(&settings, &AppSettings::disabledTargetIDsChanged);
    settings.setEnabled(false, "logs");
    settings.setEnabled(false, "chrome");
    settings.setEnabled(false, "logs");
    EXPECT_FALSE(settings.isEnabled("logs"));
    EXPECT_TRUE(settings.isEnabled("trash"));
    EXPECT_EQ(DefaultsStore(path()).stringArray("disabledTargetIDs"), (std::vector<std::string>{"chrome", "logs"}));

    // Enabling an id that was never disabled still publishes and writes the set.
    seed([](DefaultsStore& raw) { raw.remove("disabledTargetIDs"); });
    settings.setEnabled(true, "never-mentioned");
    EXPECT_EQ(spy.count(), 4);
    EXPECT_EQ(DefaultsStore(path()).stringArray("disabledTargetIDs"), (std::vector<std::string>{"chrome", "logs"}));
}

TEST_F(AppSettingsTest, ThresholdBytesUseDecimalGigabytesTruncated)
{
    AppSettings settings(store());
    settings.setLowSpaceThresholdGB(2.5);
    EXPECT_EQ(settings.lowSpaceThresholdBytes(), 2'500'000'000);
    settings.setLowSpaceThresholdGB(0.0000000019);
    EXPECT_EQ(settings.lowSpaceThresholdBytes(), 1);
}
