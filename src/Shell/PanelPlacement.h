#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

// Where the panel drops: centred under the status item, or over it when the item sits in the
// lower half of the screen (a bottom panel). Without the item's position it drops from the
// pointer, and without that it takes the screen's top-right corner. It always stays on screen.
namespace PanelPlacement {

// `screen` is the available area of the screen the panel goes on. An empty `item` is unknown.
QPoint topLeft(QSize panel, QRect item, std::optional<QPoint> pointer, QRect screen);

}  // namespace PanelPlacement
