#pragma once

#include <QSize>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

// One window the application opens by id: its view, its title and how it is sized and placed.
struct WindowDefinition {
    QString id;
    QUrl source;
    QString title;
    // Set for a window the user may resize, with the size it opens at the first time. Without
    // it the window takes its content's size and can't be resized.
    std::optional<QSize> defaultSize;
    // Centred every time it opens. Otherwise it is centred the first time and reopens where the
    // user left it.
    bool recentred = true;

    bool fixedToContent() const { return !defaultSize.has_value(); }
};

// Every window of the application. A window whose view isn't compiled in simply doesn't open.
std::vector<WindowDefinition> applicationWindows();
