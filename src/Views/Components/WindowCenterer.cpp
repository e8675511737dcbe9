#include "WindowCenterer.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>

WindowCenterer::WindowCenterer(QQuickItem* parent) : QQuickItem(parent)
{
    setVisible(false);
}

void WindowCenterer::center()
{
    QQuickWindow* target = window();
    if (!target)
        return;
    QScreen* screen = target->screen() ? target->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    target->setPosition(area.x() + (area.width() - target->width()) / 2,
                        area.y() + (area.height() - target->height()) / 2);
}

void WindowCenterer::componentComplete()
{
    QQuickItem::componentComplete();
    // At creation the item may not be in its window yet, or the window may already be on screen
    // (content swapped into an open window): look again once the current pass is over.
    QTimer::singleShot(0, this, [this] {
        if (window() && window()->isVisible())
            center();
    });
}

void WindowCenterer::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemSceneChange)
        follow(value.window);
    QQuickItem::itemChange(change, value);
}

void WindowCenterer::follow(QQuickWindow* window)
{
    if (window == window_)
        return;
    disconnect(shown_);
    window_ = window;
    if (!window)
        return;
    // visibleChanged arrives before the window reaches the screen, so moving it here avoids a
    // visible jump from the old position.
    shown_ = connect(window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (visible)
            center();
    });
}
