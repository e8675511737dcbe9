#include "AccessibilitySettings.h"

#include "Platform/AccessibilityPreferences.h"

#include <QCoreApplication>
#include <QJSEngine>

AccessibilitySettings::AccessibilitySettings(QObject* parent) : QObject(parent) {}

AccessibilitySettings& AccessibilitySettings::instance()
{
    // Owned by the application object so it goes before Qt does.
    static AccessibilitySettings* const settings = new AccessibilitySettings(QCoreApplication::instance());
    return *settings;
}

AccessibilitySettings* AccessibilitySettings::create(QQmlEngine*, QJSEngine*)
{
    AccessibilitySettings* settings = &instance();
    if (!settings->preferences_)
        settings->follow(new AccessibilityPreferences(settings));
    // Every engine sees the same object; none of them may delete it.
    QJSEngine::setObjectOwnership(settings, QJSEngine::CppOwnership);
    return settings;
}

void AccessibilitySettings::follow(AccessibilityPreferences* preferences)
{
    if (preferences_ == preferences)
        return;
    if (preferences_)
        preferences_->disconnect(this);
    preferences_ = preferences;
    if (preferences_) {
        connect(preferences_, &AccessibilityPreferences::changed, this, &AccessibilitySettings::changed);
        connect(preferences_, &QObject::destroyed, this, &AccessibilitySettings::changed);
    }
    emit changed();
}

bool AccessibilitySettings::reduceMotion() const
{
    return preferences_ && preferences_->reduceMotion();
}

bool AccessibilitySettings::reduceTransparency() const
{
    return preferences_ && preferences_->reduceTransparency();
}

bool AccessibilitySettings::differentiateWithoutColor() const
{
    return preferences_ && preferences_->differentiateWithoutColor();
}
