#include "Platform/AccessibilityPreferences.h"
#include "Support/FakeSettingsPortal.h"
#include "Support/PrivateSessionBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QString interface = QStringLiteral("org.gnome.desktop.interface");
const QString a11yInterface = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString animations = QStringLiteral("enable-animations");
const QString highContrast = QStringLiteral("high-contrast");

struct Flags {
    bool reduceMotion, reduceTransparency, differentiateWithoutColor;
    bool operator==(const Flags&) const = default;
};

Flags flagsOf(const AccessibilityPreferences& preferences)
{
    return {preferences.reduceMotion(), preferences.reduceTransparency(), preferences.differentiateWithoutColor()};
}

void PrintTo(const Flags& flags, std::ostream* out)
{
    *out << "{motion " << flags.reduceMotion << ", transparency " << flags.reduceTransparency << ", colour "
         << flags.differentiateWithoutColor << "}";
}

class AccessibilityPreferencesTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bus.isRunning()) << "dbus-daemon could not be started"; }

    PrivateSessionBus bus;
};

}  // namespace

TEST_F(AccessibilityPreferencesTest, ReadsTheDesktopsSettingsAtStartHoweverThePortalWrapsThem)
{
    {
        FakeSettingsPortal portal(bus.connect(),
                                  {{{interface, animations}, false}, {{a11yInterface, highContrast}, true}},
                                  FakeSettingsPortal::Answers::wrappedTwice);
        ASSERT_TRUE(portal.registered());
        AccessibilityPreferences preferences(bus.connect());
        EXPECT_EQ(flagsOf(preferences), (Flags{true, true, true}));
    }
    {
        // A desktop without the high-contrast key keeps its default: off.
        FakeSettingsPortal portal(bus.connect(), {{{interface, animations}, false}},
                                  FakeSettingsPortal::Answers::wrappedOnce);
        ASSERT_TRUE(portal.registered());
        AccessibilityPreferences preferences(bus.connect());
        EXPECT_EQ(flagsOf(preferences), (Flags{true, false, false}));
    }
}

TEST_F(AccessibilityPreferencesTest, FollowsChangesToItsOwnSettingsFromThePortalOnly)
{
    FakeSettingsPortal portal(bus.connect());
    ASSERT_TRUE(portal.registered());
    AccessibilityPreferences preferences(bus.connect());
    EXPECT_EQ(flagsOf(preferences), (Flags{false, false, false}));
    QSignalSpy changes(&preferences, &AccessibilityPreferences::changed);

    portal.change(interface, animations, false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return changes.size() == 1; }, 5000));
    EXPECT_EQ(flagsOf(preferences), (Flags{true, false, false}));

    // Neither another key, nor the same key elsewhere, nor the same value again changes anything.
    portal.change(interface, QStringLiteral("gtk-theme"), QStringLiteral("HighContrast"));
    portal.change(a11yInterface, animations, true);
    portal.change(interface, animations, false);
    // Another client using the interface is not the portal.
    QDBusConnection impostor = bus.connect();
    QDBusMessage forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                     QStringLiteral("org.freedesktop.portal.Settings"),
                                                     QStringLiteral("SettingChanged"));
    forged << a11yInterface << highContrast << QVariant::fromValue(QDBusVariant(true));
    impostor.send(forged);
    // A round trip through the bus, so the forged signal is delivered before the portal's next.
    impostor.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.DBus"));

    portal.change(interface, animations, true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !preferences.reduceMotion(); }, 5000));
    QTest::qWait(50);
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(flagsOf(preferences), (Flags{false, false, false}));
}

TEST_F(AccessibilityPreferencesTest, WithoutAnAnsweringPortalEverythingIsOffAndStartingDoesNotHang)
{
    QElapsedTimer timer;
    timer.start();
    AccessibilityPreferences unowned(bus.connect());
    EXPECT_EQ(flagsOf(unowned), (Flags{false, false, false}));
    EXPECT_LT(timer.elapsed(), 1000);

    {
        FakeSettingsPortal hung(bus.connect(), {{{interface, animations}, false}}, FakeSettingsPortal::Answers::never);
        ASSERT_TRUE(hung.registered());
        timer.restart();
        AccessibilityPreferences preferences(bus.connect());
        EXPECT_EQ(flagsOf(preferences), (Flags{false, false, false}));
        // One time-out for both settings, not one each.
        EXPECT_LT(timer.elapsed(), 1800);
    }

    const QString noBus = QStringLiteral("mopwell-test-no-bus");
    {
        timer.restart();
        AccessibilityPreferences disconnected(
            QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"), noBus));
        EXPECT_EQ(flagsOf(disconnected), (Flags{false, false, false}));
        EXPECT_LT(timer.elapsed(), 1000);
    }
    QDBusConnection::disconnectFromBus(noBus);
}
