#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

// Symbol names ("trash.fill", "internaldrive", …) to the single-colour SVGs compiled into the
// application, drawn in the colour a view asks for.
namespace Icons {

QString resourcePath(const QString& symbol);
bool isMapped(const QString& symbol);

// The symbol scaled to fit `size`, keeping its proportions, in `color`. An unmapped symbol
// draws nothing rather than a wrong picture.
QImage render(const QString& symbol, QSize size, const QColor& color);

}  // namespace Icons
