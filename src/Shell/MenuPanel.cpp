#include "MenuPanel.h"

#include "AppModel.h"
#include "PanelPlacement.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>

namespace {

constexpr int refocusGraceMilliseconds = 300;

QScreen* screenFor(QRect item)
{
    QScreen* screen = QGuiApplication::screenAt(item.isEmpty() ? QCursor::pos() : item.center());
    return screen ? screen : QGuiApplication::primaryScreen();
}

std::optional<QPoint> pointer()
{
    const QPoint position = QCursor::pos();
    if (!QGuiApplication::screenAt(position))
        return std::nullopt;
    return position;
}

}  // namespace

MenuPanel::MenuPanel(QQmlEngine& engine, AppModel& model, QUrl source, Style style, QObject* parent)
    : QObject(parent), engine_(engine), model_(model), source_(std::move(source)), style_(style)
{
}

MenuPanel::~MenuPanel()
{
    delete window_.data();
}

void MenuPanel::toggle(QRect item, bool secondOfDoubleClick)
{
    const bool shown = window_ && window_->isVisible();
    if (secondOfDoubleClick && shown == shownByLastToggle_)
        return;
    if (shown)
        hide();
    else if (justHidden_.hasExpired())
        showUnder(item);
    shownByLastToggle_ = window_ && window_->isVisible();
}

void MenuPanel::showUnder(QRect item)
{
    if (!ensureWindow())
        return;
    QScreen* screen = screenFor(item);
    window_->setScreen(screen);
    window_->setPosition(PanelPlacement::topLeft(window_->size(), item, pointer(), screen->availableGeometry()));
    present();
}

void MenuPanel::showAsWindow()
{
    if (!ensureWindow())
        return;
    QRect frame(QPoint(), window_->size());
    frame.moveCenter(screenFor({})->availableGeometry().center());
    window_->setPosition(frame.topLeft());
    present();
}

void MenuPanel::hide()
{
    if (window_)
        window_->hide();
}

void MenuPanel::present()
{
    window_->show();
    window_->raise();
    window_->requestActivate();
    // Safe to repeat: only the first call sets the application going.
    model_.start();
}

bool MenuPanel::ensureWindow()
{
    if (window_)
        return true;
    QQmlComponent component(&engine_, source_);
    QObject* object = component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model_)}});
    window_ = qobject_cast<QQuickWindow*>(object);
    if (!window_) {
        qWarning().noquote() << "Cannot build the panel:" << component.errorString();
        delete object;
        return false;
    }
    configure(*window_);
    return true;
}

void MenuPanel::configure(QQuickWindow& window)
{
    window.setTitle(QStringLiteral("Mopwell"));
    window.setMinimumWidth(width);
    window.setMaximumWidth(width);
    window.setWidth(width);
    if (style_ == Style::window) {
        // Nothing else hides it: a hidden window is a closed one.
        connect(&window, &QWindow::visibleChanged, this, [this](bool visible) {
            if (!visible)
                emit closed();
        });
        return;
    }
    window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    hideOnFocusLoss(window);
}

void MenuPanel::hideOnFocusLoss(QQuickWindow& window)
{
    connect(&window, &QWindow::activeChanged, this, [this, &window] {
        if (window.isActive() || !window.isVisible())
            return;
        window.hide();
        justHidden_.setRemainingTime(refocusGraceMilliseconds);
    });
}
