#include "WelcomeFlow.h"

#include "AppModel.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>
#include <QTimer>

WelcomeFlow::WelcomeFlow(QQmlEngine& engine, AppModel& model, Views views, ItemFrame statusItemFrame, QObject* parent)
    : QObject(parent), engine_(engine), model_(model), views_(std::move(views)), statusItemFrame_(std::move(statusItemFrame))
{
    // The desktop tells no one when it embeds the status icon or moves it: at launch the welcome
    // comes up before the icon has its place, so while the welcome is up it looks again now and
    // then, and makes room for the icon once it is known.
    followStatusItem_.setInterval(200);
    connect(&followStatusItem_, &QTimer::timeout, this, &WelcomeFlow::placeOnboarding);
}

WelcomeFlow::~WelcomeFlow()
{
    delete onboarding_.data();
    delete coachMark_.data();
    for (const QPointer<QQuickWindow>& window : retired_)
        delete window.data();
}

void WelcomeFlow::retire(QQuickWindow* window)
{
    std::erase_if(retired_, [](const QPointer<QQuickWindow>& gone) { return gone.isNull(); });
    retired_.emplace_back(window);
    window->deleteLater();
}

QQuickWindow* WelcomeFlow::create(const QUrl& source, const QVariantMap& properties)
{
    if (source.isEmpty())
        return nullptr;
    QQmlComponent component(&engine_, source);
    QObject* object = component.createWithInitialProperties(properties);
    auto* window = qobject_cast<QQuickWindow*>(object);
    if (!window) {
        qWarning().noquote() << "Cannot show" << source.toString() << component.errorString();
        delete object;
    }
    return window;
}

QRect WelcomeFlow::itemFrame() const
{
    return statusItemFrame_ ? statusItemFrame_() : QRect();
}

void WelcomeFlow::showOnboarding()
{
    if (!onboarding_) {
        onboarding_ = create(views_.welcome, {{QStringLiteral("model"), QVariant::fromValue(&model_)}});
        if (!onboarding_)
            return;
        onboardingArea_ = QRect();
        placeOnboarding();
        followStatusItem_.start();
        connect(onboarding_, SIGNAL(finished()), this, SLOT(finishOnboarding()));
        // Closed some other way (the window manager), it is simply gone; the next request builds
        // it afresh.
        QWindow* plain = onboarding_;
        connect(plain, &QWindow::visibleChanged, this, [this, window = onboarding_.data()](bool visible) {
            if (!visible)
                retire(window);
        });
    }
    onboarding_->show();
    onboarding_->raise();
    onboarding_->requestActivate();
}

void WelcomeFlow::placeOnboarding()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!onboarding_ || !screen) {
        followStatusItem_.stop();
        return;
    }
    // Over the screen but for its panels: the status icon stays in reach. Without a screen it
    // keeps the size its view gives it. Moved only when the area changes, so whatever the window
    // manager makes of it is left alone.
    const QRect area = clearOfStatusItem(screen->geometry(), screen->availableGeometry(), itemFrame());
    if (area != onboardingArea_) {
        onboardingArea_ = area;
        onboarding_->setGeometry(area);
    }
}

void WelcomeFlow::finishOnboarding()
{
    if (QQuickWindow* window = onboarding_.data()) {
        onboarding_ = nullptr;
        window->close();
    }
    emit onboardingFinished();
    showMenuBarCoachMark();
}

QRect WelcomeFlow::clearOfStatusItem(const QRect& screen, const QRect& available, const QRect& itemFrame)
{
    QRect area = available.isValid() ? available.intersected(screen) : screen;
    if (!itemFrame.isValid() || !area.intersects(itemFrame))
        return area;
    if (itemFrame.center().y() <= screen.center().y())
        area.setTop(itemFrame.bottom() + 1);
    else
        area.setBottom(itemFrame.top() - 1);
    return area;
}

WelcomeFlow::CoachMarkPlacement WelcomeFlow::placeCoachMark(const QRect& screen, const QRect& available,
                                                             const QRect& itemFrame)
{
    const bool known = itemFrame.isValid();
    CoachMarkPlacement placement;
    placement.pointsUp = !known || itemFrame.center().y() <= screen.center().y();
    const QRect clear = clearOfStatusItem(screen, available, itemFrame);
    const int top = placement.pointsUp ? clear.top() : clear.bottom() + 1 - coachMarkHeight;
    placement.strip = QRect(screen.left(), top, screen.width(), coachMarkHeight);
    const int iconX = known ? itemFrame.center().x() : screen.right() + 1 - iconFallbackInset;
    placement.iconX = iconX - placement.strip.left();
    return placement;
}

void WelcomeFlow::showMenuBarCoachMark()
{
    QScreen* screen = QGuiApplication::primaryScreen();
    if (coachMark_ || !screen)
        return;
    const CoachMarkPlacement placement = placeCoachMark(screen->geometry(), screen->availableGeometry(), itemFrame());
    coachMark_ = create(views_.coachMark, {{QStringLiteral("iconX"), placement.iconX},
                                           {QStringLiteral("pointsUp"), placement.pointsUp}});
    if (!coachMark_)
        return;
    coachMark_->setGeometry(placement.strip);
    connect(coachMark_, SIGNAL(dismissed()), this, SLOT(dismissCoachMark()));
    // Shown without taking the focus from whatever the user is doing.
    coachMark_->show();
    // The timer goes with this bubble: a later one is not cut short by it.
    QPointer<QQuickWindow> shown = coachMark_;
    QTimer::singleShot(coachMarkLifetime_, this, [this, shown] {
        if (shown && shown == coachMark_)
            dismissCoachMark();
    });
}

void WelcomeFlow::dismissCoachMark()
{
    if (QQuickWindow* window = coachMark_.data()) {
        coachMark_ = nullptr;
        window->close();
        retire(window);
    }
}
