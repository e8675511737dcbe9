#include "Services/AppcastFeed.h"

#include <gtest/gtest.h>

namespace {

QByteArray feed(const QByteArray& items)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
  <channel><title>Mopwell</title>)" +
           items + "</channel></rss>";
}

}  // namespace

TEST(AppcastFeed, VersionsCompareNumberByNumber)
{
    struct Case {
        const char* a;
        const char* b;
        int order;
    };
    const Case cases[] = {
        {"1.10", "1.9", 1},       // numbers, not text
        {"2", "10", -1},
        {"1.0", "1", 0},          // a missing number counts as zero
        {"1.0.0", "1.0", 0},
        {"1.0.1", "1", 1},
        {"0.1.0", "0.1.0", 0},
        {"99999999999999999999999", "1", 1},  // too long to hold still sorts as the largest
    };
    for (const auto& [a, b, order] : cases) {
        const int result = AppcastFeed::compareVersions(a, b);
        EXPECT_EQ((result > 0) - (result < 0), order) << a << " vs " << b;
        EXPECT_EQ(AppcastFeed::compareVersions(b, a) > 0, order < 0) << b << " vs " << a;
    }
    for (const char* good : {"1", "0.1.0", "2024.12.31"})
        EXPECT_TRUE(AppcastFeed::isWellFormedVersion(good)) << good;
    for (const char* bad : {"", "v2", "1..2", "1.", ".1", "2.0b1", "1,5", " 1"})
        EXPECT_FALSE(AppcastFeed::isWellFormedVersion(bad)) << bad;
}

TEST(AppcastFeed, ReadsVersionsAndLinksFromElementsOrTheEnclosure)
{
    const auto items = AppcastFeed::parse(feed(R"(
    <item>
      <title>Mopwell 2.1</title>
      <sparkle:version>210</sparkle:version>
      <sparkle:shortVersionString>2.1</sparkle:shortVersionString>
      <sparkle:releaseNotesLink>https://mopwell.org/notes/2.1.html</sparkle:releaseNotesLink>
      <enclosure url="https://mopwell.org/download/Mopwell-2.1.tar.gz" length="1000" type="application/octet-stream"/>
    </item>
    <item>
      <title>Mopwell 2.0</title>
      <link>https://mopwell.org/download/</link>
      <enclosure url="https://mopwell.org/download/Mopwell-2.0.tar.gz" sparkle:version="200" sparkle:shortVersionString="2.0"/>
    </item>
    <item>
      <sparkle:version>150</sparkle:version>
      <link>https://mopwell.org/download/1.5</link>
    </item>)"));
    ASSERT_TRUE(items);
    ASSERT_EQ(items->size(), 3u);
    EXPECT_EQ((*items)[0].version, "210");
    EXPECT_EQ((*items)[0].shortVersion, "2.1");
    EXPECT_EQ((*items)[0].releaseNotes.toString(), "https://mopwell.org/notes/2.1.html");
    EXPECT_EQ((*items)[0].download.toString(), "https://mopwell.org/download/Mopwell-2.1.tar.gz");
    EXPECT_EQ((*items)[1].version, "200");
    EXPECT_EQ((*items)[1].shortVersion, "2.0");
    EXPECT_EQ((*items)[1].download.toString(), "https://mopwell.org/download/Mopwell-2.0.tar.gz");
    EXPECT_TRUE((*items)[1].releaseNotes.isEmpty());
    // Without a short version the version is shown; without an enclosure the link is the download.
    EXPECT_EQ((*items)[2].shortVersion, "150");
    EXPECT_EQ((*items)[2].download.toString(), "https://mopwell.org/download/1.5");
    EXPECT_EQ(AppcastFeed::newest(*items)->shortVersion, "2.1");
}

TEST(AppcastFeed, LeavesOutItemsItCannotTrustOrCompare)
{
    const auto items = AppcastFeed::parse(feed(R"(
    <item><sparkle:version>3.0beta</sparkle:version><link>https://mopwell.org/a</link></item>
    <item><link>https://mopwell.org/no-version</link></item>
    <item><sparkle:version>4</sparkle:version><link>http://mopwell.org/plain-http</link></item>
    <item><sparkle:version>5</sparkle:version><link>file:///etc/passwd</link></item>
    <item><sparkle:version>6</sparkle:version><link>javascript:alert(1)</link></item>
    <item><sparkle:version>2</sparkle:version><link>http://127.0.0.1:8000/try-out</link>
      <sparkle:releaseNotesLink>ftp://mopwell.org/notes</sparkle:releaseNotesLink></item>)"));
    ASSERT_TRUE(items);
    ASSERT_EQ(items->size(), 1u);
    EXPECT_EQ(items->front().version, "2");
    EXPECT_TRUE(items->front().releaseNotes.isEmpty());  // only the notes link was untrustworthy

    EXPECT_TRUE(AppcastFeed::parse(feed(""))->empty());
    EXPECT_FALSE(AppcastFeed::newest({}));
    for (const char* broken : {"", "not xml at all", "<html><body>Not Found</body></html>",
                               "<rss><channel><item><sparkle:version>2</sparkle:version>",
                               "<rss><channel><item></rss>"})
        EXPECT_FALSE(AppcastFeed::parse(broken)) << broken;
}
