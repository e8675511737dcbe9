#include "Views/Components/AccessibilitySettings.h"
#include "Platform/AccessibilityPreferences.h"
#include "Support/FakeSettingsPortal.h"
#include "Support/PrivateSessionBus.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

TEST(AccessibilitySettings, ViewsSeeTheDesktopsPreferencesAsTheAccessibilitySingleton)
{
    PrivateSessionBus bus;
    ASSERT_TRUE(bus.isRunning()) << "dbus-daemon could not be started";
    FakeSettingsPortal portal(bus.connect(), {{{"org.gnome.desktop.a11y.interface", "high-contrast"}, true}});
    AccessibilityPreferences preferences(bus.connect());
    AccessibilitySettings::instance().follow(&preferences);

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQml
        import Mopwell
        QtObject {
            property bool motion: Accessibility.reduceMotion
            property bool transparency: Accessibility.reduceTransparency
            property bool colour: Accessibility.differentiateWithoutColor
        })",
                      QUrl());
    const std::unique_ptr<QObject> view(component.create());
    ASSERT_TRUE(view) << component.errorString().toStdString();
    EXPECT_FALSE(view->property("motion").toBool());
    EXPECT_TRUE(view->property("transparency").toBool());
    EXPECT_TRUE(view->property("colour").toBool());

    portal.change(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("enable-animations"), false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view->property("motion").toBool(); }, 5000));

    AccessibilitySettings::instance().follow(nullptr);
    EXPECT_FALSE(view->property("motion").toBool());
    EXPECT_FALSE(view->property("transparency").toBool());
}
