#pragma once

#include "Platform/NotificationCenter.h"
#include "Support/FakeNotificationServer.h"
#include "Support/PrivateSessionBus.h"

#include <gtest/gtest.h>

#include <memory>

// A test with a notification service of its own: a private bus, a fake server owning the
// notifications name on it, and a center posting to that bus.
class NotificationServiceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(bus.isRunning()) << "dbus-daemon could not be started";
        server = std::make_unique<FakeNotificationServer>(bus.connect());
        ASSERT_TRUE(server->registered());
        center = std::make_unique<NotificationCenter>(bus.connect());
    }

    PrivateSessionBus bus;
    std::unique_ptr<FakeNotificationServer> server;
    std::unique_ptr<NotificationCenter> center;
};
