#include "Services/Updater.h"

#include <gtest/gtest.h>

TEST(Updater, ADevelopmentBuildSaysSoAndChecksNothing)
{
    Updater development{QString()};
    EXPECT_FALSE(development.isConfigured());
    EXPECT_EQ(development.statusText(), "Dev build");
    EXPECT_FALSE(development.canCheckForUpdates());

    Updater released{QStringLiteral("https://updates.example/feed.xml")};
    EXPECT_TRUE(released.isConfigured());
    EXPECT_EQ(released.statusText(), "");
    EXPECT_EQ(Updater::compiledFeedAddress(), "");  // this build was given no feed
}
