#include "Platform/NotificationCenter.h"
#include "Support/NotificationServiceTest.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

NotificationRequest request(const QString& identifier, const QString& body, const QString& category = {})
{
    return NotificationRequest{identifier, QStringLiteral("Title"), body, NotificationRequest::Sound::none, category};
}

class NotificationCenterTest : public NotificationServiceTest {
protected:
    void SetUp() override
    {
        NotificationServiceTest::SetUp();
        center->setCategories({{QStringLiteral("ALERT"), {{QStringLiteral("FIX"), QStringLiteral("Fix It")}}}});
    }

    // Posts and waits until the server has it; returns the id the server gave it.
    uint deliver(const NotificationRequest& notification)
    {
        const qsizetype before = server->received().size();
        center->post(notification);
        EXPECT_TRUE(server->waitForNotifications(before + 1));
        return server->received().isEmpty() ? 0 : server->received().last().id;
    }
};

}  // namespace

TEST_F(NotificationCenterTest, ANewerRequestReplacesTheShownNotificationOfItsIdentifierOnly)
{
    const uint first = deliver(request("a", "one"));
    deliver(request("a", "two"));
    deliver(request("b", "three"));
    ASSERT_EQ(server->received().size(), 3);
    EXPECT_EQ(server->received()[0].replacesId, 0u);
    EXPECT_EQ(server->received()[1].replacesId, first);
    EXPECT_EQ(server->received()[2].replacesId, 0u);

    // Once the user dismissed it there is nothing left to replace.
    server->closeNotification(first);
    deliver(request("b", "barrier"));
    deliver(request("a", "four"));
    EXPECT_EQ(server->received().last().replacesId, 0u);
    EXPECT_NE(server->received().last().id, first);
}

TEST_F(NotificationCenterTest, RequestsPostedBeforeTheServerAnsweredStillReplaceAndOnlyTheNewestWaits)
{
    center->post(request("a", "one"));
    center->post(request("a", "two"));
    center->post(request("a", "three"));
    ASSERT_TRUE(server->waitForNotifications(2));
    QTest::qWait(50);  // a third Notify would arrive right behind the second

    ASSERT_EQ(server->received().size(), 2);
    EXPECT_EQ(server->received()[0].body, "one");
    EXPECT_EQ(server->received()[1].body, "three");
    EXPECT_EQ(server->received()[1].replacesId, server->received()[0].id);
}

TEST_F(NotificationCenterTest, ClicksOnItsOwnNotificationsAreReportedWithTheirCategory)
{
    QSignalSpy responses(center.get(), &NotificationCenter::responded);
    const uint alert = deliver(request("alert", "body", "ALERT"));
    const QStringList actions = server->received().last().actions;
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0], "default");  // a click on the body counts as a response
    EXPECT_EQ(actions.mid(2), (QStringList{"FIX", "Fix It"}));
    const uint plain = deliver(request("plain", "body"));
    EXPECT_TRUE(server->received().last().actions.isEmpty());

    // Another client using the interface is not the notification server.
    FakeNotificationServer impostor(bus.connect());
    impostor.invokeAction(alert, "FIX");
    server->invokeAction(alert + plain + 100, "FIX");  // not one of ours
    server->invokeAction(alert, "FIX");
    // A server may report the click after it closed the notification.
    server->closeNotification(alert);
    server->invokeAction(alert, "default");
    ASSERT_TRUE(QTest::qWaitFor([&] { return responses.size() >= 2; }, 5000));
    QTest::qWait(50);

    ASSERT_EQ(responses.size(), 2);
    EXPECT_EQ(responses[0], (QVariantList{"ALERT", "FIX"}));
    EXPECT_EQ(responses[1], (QVariantList{"ALERT", "default"}));
}

TEST_F(NotificationCenterTest, WithoutAServerPostingReturnsAtOnceAndLaterPostsStillGoThrough)
{
    server.reset();
    QElapsedTimer timer;
    timer.start();
    center->post(request("a", "lost"));
    center->post(request("a", "lost too"));
    EXPECT_LT(timer.elapsed(), 1000);
    QTest::qWait(200);  // lets the bus refuse both

    server = std::make_unique<FakeNotificationServer>(bus.connect());
    ASSERT_TRUE(server->registered());
    deliver(request("a", "shown"));
    ASSERT_EQ(server->received().size(), 1);
    EXPECT_EQ(server->received()[0].body, "shown");
    EXPECT_EQ(server->received()[0].replacesId, 0u);

    // No bus at all.
    NotificationCenter disconnected(QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"),
                                                                  QStringLiteral("mopwell-test-no-bus")));
    timer.restart();
    disconnected.post(request("a", "nowhere"));
    EXPECT_LT(timer.elapsed(), 1000);
    QTest::qWait(50);
    QDBusConnection::disconnectFromBus(QStringLiteral("mopwell-test-no-bus"));
}
