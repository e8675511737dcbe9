#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

class QDBusVariant;

// The desktop's accessibility preferences that change how windows draw, as the desktop settings
// portal publishes them: read once when created, then kept current from the portal's change
// signal.
//
// Where no portal answers (no session bus, nobody owning the name, a hung portal), every
// preference is off: the windows then look as they do by default. Creating one waits at most a
// second for the portal.
class AccessibilityPreferences : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed)
    Q_PROPERTY(bool reduceTransparency READ reduceTransparency NOTIFY changed)
    Q_PROPERTY(bool differentiateWithoutColor READ differentiateWithoutColor NOTIFY changed)

public:
    // Over the user's session bus.
    explicit AccessibilityPreferences(QObject* parent = nullptr);
    // Over any bus; tests hand in a private one.
    explicit AccessibilityPreferences(const QDBusConnection& bus, QObject* parent = nullptr);

    // No animated scrolling or transitions.
    bool reduceMotion() const { return !animationsEnabled_; }
    // Solid backgrounds instead of translucent ones.
    bool reduceTransparency() const { return highContrast_; }
    // Shapes, symbols or text beside colour, never colour alone. The desktop has no preference of
    // its own for this; someone who asks for high contrast is the one it helps, so it follows that.
    bool differentiateWithoutColor() const { return highContrast_; }

signals:
    // Any of the preferences changed.
    void changed();

private Q_SLOTS:
    // A slot by name, as QtDBus connects bus signals to it.
    void handleSettingChanged(const QString& settingNamespace, const QString& key, const QDBusVariant& value);

private:
    void readInitialValues();
    // Takes in one setting the portal reported; true when that changed one of the preferences.
    bool apply(const QString& settingNamespace, const QString& key, const QVariant& value);

    QDBusConnection bus_;
    bool animationsEnabled_ = true;
    bool highContrast_ = false;
};
