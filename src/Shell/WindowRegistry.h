#pragma once

#include "WindowDefinition.h"

#include <QHash>
#include <QObject>
#include <QQuickWindow>
#include <QPointer>
#include <QRect>
#include <QString>

#include <vector>

class AppModel;
class QQmlEngine;

// The application's windows by id, each open at most once. Opening an open id brings that window
// forward; a closed window is destroyed, so the next opening builds it afresh from its view.
class WindowRegistry : public QObject {
    Q_OBJECT

public:
    WindowRegistry(QQmlEngine& engine, AppModel& model, std::vector<WindowDefinition> windows, QObject* parent = nullptr);
    ~WindowRegistry() override;

    // Shows the window and makes it active. Returns it, or null for an unknown id or a view that
    // isn't there.
    QQuickWindow* open(const QString& id);
    void close(const QString& id);
    // The open window with this id, or null.
    QQuickWindow* window(const QString& id) const;
    const WindowDefinition* definition(const QString& id) const;

private:
    QQuickWindow* create(const WindowDefinition& definition);
    void applySize(QQuickWindow& window, const WindowDefinition& definition);
    void place(QQuickWindow& window, const WindowDefinition& definition);
    void watchClosing(QQuickWindow& window, const QString& id);
    void forget(const QString& id);

    QQmlEngine& engine_;
    AppModel& model_;
    std::vector<WindowDefinition> windows_;
    // Held as plain windows: a window that is being destroyed has lost its Qt Quick part, and
    // hides (and so reaches forget()) on the way out.
    QHash<QString, QPointer<QWindow>> open_;
    // Where windows that aren't re-centred were when they closed.
    QHash<QString, QRect> lastFrames_;
};
