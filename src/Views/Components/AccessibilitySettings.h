#pragma once

#include <QObject>
#include <QPointer>
#include <QtQml/qqml.h>

class AccessibilityPreferences;
class QJSEngine;
class QQmlEngine;

// The desktop's accessibility preferences as the views see them: `Accessibility.reduceMotion`,
// `Accessibility.reduceTransparency`, `Accessibility.differentiateWithoutColor`. Every view binds
// to the same object, so a change on the desktop reaches all open windows at once.
class AccessibilitySettings : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Accessibility)
    QML_SINGLETON
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed)
    Q_PROPERTY(bool reduceTransparency READ reduceTransparency NOTIFY changed)
    Q_PROPERTY(bool differentiateWithoutColor READ differentiateWithoutColor NOTIFY changed)

public:
    // The one instance, shared by every engine.
    static AccessibilitySettings& instance();
    // What Qt Quick calls when a view first names `Accessibility`. Unless the instance already
    // follows some preferences, it starts following the session bus's here, so nothing reaches
    // for the bus before a view needs it.
    static AccessibilitySettings* create(QQmlEngine* engine, QJSEngine* scriptEngine);

    // Follows `preferences` (not owned) from now on; when they go away, every preference is off.
    // Tests hand in preferences read from a private bus before any view asks.
    void follow(AccessibilityPreferences* preferences);

    bool reduceMotion() const;
    bool reduceTransparency() const;
    bool differentiateWithoutColor() const;

signals:
    void changed();

private:
    explicit AccessibilitySettings(QObject* parent = nullptr);

    QPointer<AccessibilityPreferences> preferences_;
};
