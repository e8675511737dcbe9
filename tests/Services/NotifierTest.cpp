#include "Platform/Bundle.h"
#include "Platform/NotificationCenter.h"
#include "Services/Notifier.h"
#include "Support/NotificationServiceTest.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

class NotifierTest : public NotificationServiceTest {
protected:
    void SetUp() override
    {
        NotificationServiceTest::SetUp();
        Notifier::setCenter(center.get());
        Bundle::setMainIdentifier(Bundle::applicationIdentifier);
    }

    void TearDown() override
    {
        Bundle::setMainIdentifier(std::nullopt);
        Notifier::setCenter(nullptr);
    }

    const FakeNotificationServer::Notification& waitForNotification(qsizetype count)
    {
        EXPECT_TRUE(server->waitForNotifications(count));
        return server->received().last();
    }
};

}  // namespace

TEST_F(NotifierTest, TheLowSpaceAlertOffersCleanUpNowAndReplacesTheLastOne)
{
    Notifier::requestAuthorization();
    Notifier::notifyLowSpace(1'500'000'000);
    const auto first = waitForNotification(1);
    EXPECT_EQ(first.appName, "Mopwell");
    EXPECT_EQ(first.summary, "Low disk space");
    EXPECT_EQ(first.body, "Only 1.5 GB available. Click “Clean Up Now” to free up space.");
    ASSERT_EQ(first.actions.size(), 4);
    EXPECT_EQ(first.actions[0], "default");
    EXPECT_EQ(first.actions.mid(2), (QStringList{"CLEAN_NOW", "Clean Up Now"}));
    EXPECT_TRUE(first.hints.contains("sound-name"));
    EXPECT_FALSE(first.hints.contains("suppress-sound"));
    EXPECT_EQ(first.hints.value("desktop-entry"), "org.mopwell.Mopwell");

    Notifier::notifyLowSpace(999'000'000);
    const auto second = waitForNotification(2);
    EXPECT_EQ(second.body, "Only 999 MB available. Click “Clean Up Now” to free up space.");
    EXPECT_EQ(second.replacesId, first.id);

    // Both the action and a click on the body lead to the shell's clean-up handler.
    QSignalSpy responses(&Notifier::center(), &NotificationCenter::responded);
    server->invokeAction(second.id, "CLEAN_NOW");
    server->invokeAction(second.id, "default");
    ASSERT_TRUE(QTest::qWaitFor([&] { return responses.size() == 2; }, 5000));
    EXPECT_EQ(responses[0], (QVariantList{"LOWSPACE", "CLEAN_NOW"}));
    EXPECT_EQ(responses[1], (QVariantList{"LOWSPACE", "default"}));
}

TEST_F(NotifierTest, TheAutomaticCleanReportSaysWhatWasFreedOrThatThereWasNothing)
{
    Notifier::requestAuthorization();
    Notifier::notifyLowSpace(1'000);
    const auto alert = waitForNotification(1);

    Notifier::notifyAutoCleanup(1'234'000'000);
    const auto freed = waitForNotification(2);
    EXPECT_EQ(freed.summary, "Mopwell cleaned up");
    EXPECT_EQ(freed.body, "Freed 1.23 GB automatically. Items are in the Trash.");
    EXPECT_TRUE(freed.actions.isEmpty());
    EXPECT_EQ(freed.hints.value("suppress-sound"), true);
    EXPECT_FALSE(freed.hints.contains("sound-name"));
    EXPECT_EQ(freed.replacesId, 0u);  // the low-space alert stays

    Notifier::notifyAutoCleanup(1);
    EXPECT_EQ(waitForNotification(3).body, "Freed 1 byte automatically. Items are in the Trash.");
    Notifier::notifyAutoCleanup(0);
    const auto nothing = waitForNotification(4);
    EXPECT_EQ(nothing.body, "Nothing to clean — you're already tidy.");
    EXPECT_EQ(nothing.replacesId, freed.id);
    Notifier::notifyAutoCleanup(-4096);
    EXPECT_EQ(waitForNotification(5).body, "Nothing to clean — you're already tidy.");
    EXPECT_NE(server->received().last().id, alert.id);
}

TEST_F(NotifierTest, WithoutAnApplicationIdentifierNothingIsRegisteredOrPosted)
{
    Bundle::setMainIdentifier(std::nullopt);
    Notifier::requestAuthorization();
    Notifier::notifyLowSpace(1'000);
    Notifier::notifyAutoCleanup(1'000);
    EXPECT_TRUE(Notifier::center().categories().isEmpty());

    // Whatever had gone out would arrive before this.
    Bundle::setMainIdentifier(Bundle::applicationIdentifier);
    Notifier::notifyAutoCleanup(0);
    waitForNotification(1);
    QTest::qWait(50);
    ASSERT_EQ(server->received().size(), 1);
    EXPECT_EQ(server->received()[0].body, "Nothing to clean — you're already tidy.");
}
