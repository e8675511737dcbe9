#include "Platform/DefaultsStore.h"
#include "Services/Updater.h"
#include "Support/EventLoop.h"
#include "Support/FeedServer.h"
#include "Support/TempHome.h"

#include <QSignalSpy>

namespace {

QByteArray feedOffering(const QByteArray& version, const QByteArray& shortVersion)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>
  <item>
    <title>Mopwell )" + shortVersion + R"(</title>
    <sparkle:releaseNotesLink>https://mopwell.org/notes/)" + shortVersion + R"(</sparkle:releaseNotesLink>
    <enclosure url="https://mopwell.org/download/Mopwell-)" + shortVersion + R"(.tar.gz"
      sparkle:version=")" + version + R"(" sparkle:shortVersionString=")" + shortVersion + R"("/>
  </item>
</channel></rss>)";
}

class UpdaterTest : public TempHomeTest {
protected:
    std::shared_ptr<DefaultsStore> store = std::make_shared<DefaultsStore>(tempHome.configHome() + "/mopwell/defaults.plist");
    FeedServer server;
    const Updater::Build build{"1.4", "140"};

    std::unique_ptr<Updater> updater(const QString& feed)
    {
        return std::make_unique<Updater>(store, feed, build);
    }
    static bool settled(const Updater& updater) { return updater.state() != Updater::State::checking; }

    void TearDown() override { Clock::setNowForTesting(std::nullopt); }
};

}  // namespace

// What the settings and About windows show of a build with and without a feed is their test.
TEST_F(UpdaterTest, ADevelopmentBuildChecksNothing)
{
    Updater development(store, QString(), build);
    development.checkForUpdates();
    development.checkIfDue();
    EXPECT_EQ(development.state(), Updater::State::idle);
    EXPECT_EQ(Updater::compiledFeedAddress(), "");  // this build was given no feed
}

TEST_F(UpdaterTest, ACheckComparesTheNewestReleaseWithThisBuild)
{
    struct Case {
        const char* name;
        QByteArray body;
        int status;
        Updater::State state;
        QString latest;
    };
    const Case cases[] = {
        {"newer", feedOffering("150", "1.5"), 200, Updater::State::available, "1.5"},
        {"equal", feedOffering("140", "1.4"), 200, Updater::State::upToDate, "1.4"},
        {"older", feedOffering("139", "1.3.9"), 200, Updater::State::upToDate, "1.3.9"},
        {"malformed version", feedOffering("1.5-beta", "1.5 beta"), 200, Updater::State::failed, ""},
        {"not a feed", "<html>Moved</html>", 200, Updater::State::failed, ""},
        {"server error", "", 500, Updater::State::failed, ""},
    };
    for (const auto& [name, body, status, state, latest] : cases) {
        SCOPED_TRACE(name);
        server.answer(body, status);
        const auto checker = updater(server.address());
        QSignalSpy shown(checker.get(), &Updater::presentationRequested);
        checker->checkForUpdates();
        EXPECT_EQ(checker->state(), Updater::State::checking);
        EXPECT_FALSE(checker->canCheckForUpdates());  // one check at a time
        EXPECT_EQ(shown.count(), 1);                  // the user sees the check whatever it finds
        ASSERT_TRUE(EventLoop::waitUntil([&] { return settled(*checker); }));
        EXPECT_EQ(checker->state(), state);
        EXPECT_TRUE(checker->canCheckForUpdates());
        EXPECT_EQ(shown.count(), 1);
        if (state == Updater::State::failed) {
            EXPECT_FALSE(checker->errorText().isEmpty());
            EXPECT_TRUE(checker->downloadUrl().isEmpty());
            continue;
        }
        EXPECT_EQ(checker->latestVersion(), latest);
        EXPECT_EQ(checker->downloadUrl().toString(), "https://mopwell.org/download/Mopwell-" + latest + ".tar.gz");
        EXPECT_EQ(checker->releaseNotesUrl().toString(), "https://mopwell.org/notes/" + latest);
    }
}

TEST_F(UpdaterTest, AFeedOutsideHttpsIsNeverFetched)
{
    const auto checker = updater(QStringLiteral("http://updates.mopwell.org/appcast.xml"));
    checker->checkForUpdates();
    EXPECT_EQ(checker->state(), Updater::State::failed);
    EXPECT_EQ(checker->errorText(), "The update feed isn't at a secure (HTTPS) address.");
}

TEST_F(UpdaterTest, AutomaticChecksRunAtMostOnceADayAndSpeakOnlyOfNewReleases)
{
    server.answer(feedOffering("140", "1.4"));
    const auto start = Clock::TimePoint{} + std::chrono::hours(24 * 20000);
    Clock::setNowForTesting(start);
    const auto checker = updater(server.address());
    QSignalSpy shown(checker.get(), &Updater::presentationRequested);
    EXPECT_TRUE(checker->automaticallyChecksForUpdates());

    checker->checkIfDue();
    ASSERT_TRUE(EventLoop::waitUntil([&] { return server.requests() == 1 && settled(*checker); }));
    EXPECT_EQ(checker->state(), Updater::State::upToDate);
    EXPECT_EQ(shown.count(), 0);  // nothing new: nothing to say

    Clock::setNowForTesting(start + std::chrono::hours(23) + std::chrono::minutes(59));
    checker->checkIfDue();
    EXPECT_TRUE(settled(*checker));

    server.answer(feedOffering("150", "1.5"));
    Clock::setNowForTesting(start + std::chrono::hours(24));
    checker->checkIfDue();
    ASSERT_TRUE(EventLoop::waitUntil([&] { return server.requests() == 2 && settled(*checker); }));
    EXPECT_EQ(checker->state(), Updater::State::available);
    EXPECT_EQ(shown.count(), 1);

    // The choice and the time of the last check outlive the application.
    checker->setAutomaticallyChecksForUpdates(false);
    const auto later = updater(server.address());
    EXPECT_FALSE(later->automaticallyChecksForUpdates());
    Clock::setNowForTesting(start + std::chrono::hours(72));
    later->checkIfDue();
    EXPECT_EQ(later->state(), Updater::State::idle);
    later->setAutomaticallyChecksForUpdates(true);
    Clock::setNowForTesting(start + std::chrono::hours(47));
    later->checkIfDue();
    EXPECT_EQ(later->state(), Updater::State::idle);  // the last check, at 24 hours, is too recent
    EXPECT_EQ(server.requests(), 2);
}
