#include "SymbolIcon.h"

#include "Icons.h"

#include <QPainter>
#include <QQuickWindow>

SymbolIcon::SymbolIcon(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setImplicitSize(16, 16);
    connect(this, &QQuickItem::widthChanged, this, [this] { update(); });
    connect(this, &QQuickItem::heightChanged, this, [this] { update(); });
}

void SymbolIcon::setSymbol(const QString& symbol)
{
    if (symbol == symbol_)
        return;
    symbol_ = symbol;
    emit symbolChanged();
    update();
}

void SymbolIcon::setColor(const QColor& color)
{
    if (color == color_)
        return;
    color_ = color;
    emit colorChanged();
    update();
}

void SymbolIcon::paint(QPainter* painter)
{
    // Drawn at the screen's pixel density so the glyph stays sharp.
    const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    const QSize pixels = (QSizeF(width(), height()) * ratio).toSize();
    QImage image = Icons::render(symbol_, pixels, color_);
    image.setDevicePixelRatio(ratio);
    painter->drawImage(QPointF(0, 0), image);
}
