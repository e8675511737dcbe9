#pragma once

#include <QMetaObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqml.h>

class QQuickWindow;

// An invisible item that puts its window in the middle of the screen's usable area each time
// the window is shown, whatever position the window system or a previous session left it at.
// Place one anywhere in a window's content: `WindowCenterer {}`.
class WindowCenterer : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit WindowCenterer(QQuickItem* parent = nullptr);

    // Centres the window now; does nothing while the item belongs to no window.
    Q_INVOKABLE void center();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void follow(QQuickWindow* window);

    QPointer<QQuickWindow> window_;
    QMetaObject::Connection shown_;
};
