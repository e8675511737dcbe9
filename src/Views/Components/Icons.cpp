#include "Icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace Icons {

QString resourcePath(const QString& symbol)
{
    return QStringLiteral(":/Mopwell/icons/") + symbol + QStringLiteral(".svg");
}

bool isMapped(const QString& symbol)
{
    return !symbol.isEmpty() && QFile::exists(resourcePath(symbol));
}

QImage render(const QString& symbol, QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (size.isEmpty() || !isMapped(symbol))
        return image;
    QSvgRenderer renderer(resourcePath(symbol));
    if (!renderer.isValid())
        return image;
    QSizeF glyph = renderer.defaultSize();
    glyph.scale(size, Qt::KeepAspectRatio);
    const QRectF target((size.width() - glyph.width()) / 2, (size.height() - glyph.height()) / 2, glyph.width(),
                        glyph.height());
    QPainter painter(&image);
    renderer.render(&painter, target);
    // Keep the glyph's shape, take the requested colour.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

}  // namespace Icons
