#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <vector>

class AppModel;
class QQmlEngine;

// The first run's welcome and what follows it: the welcome over the screen, leaving the desktop's
// panels and the status icon free as the menu bar is left free on a Mac, until the user finishes
// or skips it, then for a while a bubble pointing at the status icon. Either exists at
// most once; asking for the welcome while it is up brings it forward.
class WelcomeFlow : public QObject {
    Q_OBJECT

public:
    struct Views {
        QUrl welcome;    // a window with a `model` and a finished() signal
        QUrl coachMark;  // a window with `iconX`, `pointsUp` and a dismissed() signal
    };
    // Where the status icon is on screen; an empty rectangle when the desktop doesn't say.
    using ItemFrame = std::function<QRect()>;

    // Where the coach mark's strip goes on a screen, and where the icon is inside it.
    struct CoachMarkPlacement {
        QRect strip;
        qreal iconX = 0;
        bool pointsUp = true;
    };
    static constexpr int coachMarkHeight = 200;
    static constexpr int iconFallbackInset = 120;

    WelcomeFlow(QQmlEngine& engine, AppModel& model, Views views, ItemFrame statusItemFrame,
                QObject* parent = nullptr);
    ~WelcomeFlow() override;

    // Shows the welcome, or brings it forward when it is up.
    void showOnboarding();
    // Points at the status icon, unless the bubble is already up or there is no screen. It goes
    // away by itself after a while.
    void showMenuBarCoachMark();

    QQuickWindow* onboardingWindow() const { return onboarding_; }
    QQuickWindow* coachMarkWindow() const { return coachMark_; }
    // How long the bubble stays unless dismissed; 12 seconds unless a test wants it shorter.
    void setCoachMarkLifetime(int milliseconds) { coachMarkLifetime_ = milliseconds; }

    // Under the icon in a strip across the top of the screen, below any panel there; or, where
    // the icon sits in the lower half of the screen, in a strip just above it. An unknown icon
    // is taken to be near the right end of the top of the screen.
    static CoachMarkPlacement placeCoachMark(const QRect& screen, const QRect& available, const QRect& itemFrame);
    // The desktop's work area without the band the status icon sits in: the welcome and the
    // bubble cover everything but the panels, and never the icon itself, even on a desktop
    // whose panel reserves no room (the work area is then the whole screen).
    static QRect clearOfStatusItem(const QRect& screen, const QRect& available, const QRect& itemFrame);

public slots:
    void dismissCoachMark();

signals:
    void onboardingFinished();

private slots:
    void finishOnboarding();
    void placeOnboarding();

private:
    QQuickWindow* create(const QUrl& source, const QVariantMap& properties);
    QRect itemFrame() const;
    // Deletes a window once the event that put it away has run its course.
    void retire(QQuickWindow* window);

    QQmlEngine& engine_;
    AppModel& model_;
    Views views_;
    ItemFrame statusItemFrame_;
    QPointer<QQuickWindow> onboarding_;
    QPointer<QQuickWindow> coachMark_;
    // Windows put away but not yet deleted; the flow deletes what is left of them itself, since
    // after it the engine they came from may go, and with it what their animations write to.
    std::vector<QPointer<QQuickWindow>> retired_;
    // Where the welcome was last put, and the timer that looks again while it is up.
    QRect onboardingArea_;
    QTimer followStatusItem_;
    int coachMarkLifetime_ = 12000;
};
