#include "PanelPlacement.h"

#include <algorithm>

namespace PanelPlacement {

namespace {

// Centred on `anchor`, below the rectangle, or above it when it is low on the screen.
QPoint dropFrom(QSize panel, QRect anchor, QRect screen)
{
    const int x = anchor.center().x() - panel.width() / 2;
    const bool fromBottom = anchor.center().y() > screen.center().y();
    const int y = fromBottom ? anchor.top() - panel.height() : anchor.bottom() + 1;
    return {x, y};
}

QPoint keptOnScreen(QPoint topLeft, QSize panel, QRect screen)
{
    // Left and top win over right and bottom when the panel is larger than the screen.
    const int x = std::max(screen.left(), std::min(topLeft.x(), screen.right() + 1 - panel.width()));
    const int y = std::max(screen.top(), std::min(topLeft.y(), screen.bottom() + 1 - panel.height()));
    return {x, y};
}

}  // namespace

QPoint topLeft(QSize panel, QRect item, std::optional<QPoint> pointer, QRect screen)
{
    QPoint wanted;
    if (!item.isEmpty())
        wanted = dropFrom(panel, item, screen);
    else if (pointer)
        wanted = dropFrom(panel, QRect(*pointer, QSize(1, 1)), screen);
    else
        wanted = QPoint(screen.right() + 1 - panel.width(), screen.top());
    return keptOnScreen(wanted, panel, screen);
}

}  // namespace PanelPlacement
