#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QQuickWindow>
#include <QPointer>
#include <QRect>
#include <QUrl>

class AppModel;
class QQmlEngine;

// The panel that drops from the status item. It is built from its view the first time it is
// shown, when it also sets the model going. As a drop-down it is frameless and goes away when it
// loses focus; where the desktop has no status area it is an ordinary window instead.
class MenuPanel : public QObject {
    Q_OBJECT

public:
    enum class Style { dropDown, window };

    static constexpr int width = 380;

    MenuPanel(QQmlEngine& engine, AppModel& model, QUrl source, Style style, QObject* parent = nullptr);
    ~MenuPanel() override;

    // Shows the drop-down under the status item at `item` (empty when unknown), or hides it when
    // it is showing. The second press of a double click leaves the panel as the first press left
    // it, so that someone who double-clicks status icons gets the panel rather than a flash of
    // it; only when something else has shown or hidden it in between (a second start of the
    // application) is that press a click of its own.
    void toggle(QRect item, bool secondOfDoubleClick = false);
    void showUnder(QRect item);
    // Shows the panel as an ordinary window.
    void showAsWindow();
    void hide();

    // Null until the panel is first shown, or when its view couldn't be built.
    QQuickWindow* window() const { return window_.data(); }

signals:
    // The user closed the ordinary window.
    void closed();

private:
    bool ensureWindow();
    void configure(QQuickWindow& window);
    void hideOnFocusLoss(QQuickWindow& window);
    void present();

    QQmlEngine& engine_;
    AppModel& model_;
    QUrl source_;
    Style style_;
    QPointer<QQuickWindow> window_;
    // A click on the status item takes the focus from the panel before the click itself
    // arrives; this tells that click apart from one that should open the panel again.
    QDeadlineTimer justHidden_;
    bool shownByLastToggle_ = false;
};
