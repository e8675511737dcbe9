#include "StatusItem.h"

#include "AppModel.h"
#include "Views/Components/Icons.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <cmath>

namespace {

QFont labelFont()
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(StatusItem::height * 6 / 11);
    font.setWeight(QFont::DemiBold);
    return font;
}

}  // namespace

StatusItem::StatusItem(AppModel& model, QObject* parent) : QObject(parent), model_(model)
{
    menu_.addAction(tr("Quit Mopwell"), this, &StatusItem::quitChosen);
    tray_.setContextMenu(&menu_);
    connect(&tray_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            emit clicked();
    });
    connect(&model_, &AppModel::changed, this, &StatusItem::refresh);
    refresh();
}

void StatusItem::show()
{
    tray_.show();
}

QRect StatusItem::geometry() const
{
    return tray_.geometry();
}

QString StatusItem::toolTip() const
{
    return tray_.toolTip();
}

QColor StatusItem::foreground()
{
    // Status areas follow the desktop's colour scheme: light symbols on a dark one.
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    return window.lightness() < 128 ? QColor(Qt::white) : QColor(Qt::black);
}

void StatusItem::refresh()
{
    // Strictly below: exactly the threshold still counts as enough space.
    const bool low = model_.diskAvailableImportant() < model_.settings()->lowSpaceThresholdBytes();
    const QString symbol = low ? lowSpaceSymbol : normalSymbol;
    const QString text = model_.menuBarText();
    tray_.setToolTip(text);
    // Redraw only on a visible change; some status areas flicker on every new icon.
    if (!image_.isNull() && symbol == symbol_ && text == text_)
        return;
    symbol_ = symbol;
    text_ = text;
    image_ = draw(symbol, text, foreground(), qApp->devicePixelRatio());
    tray_.setIcon(QIcon(QPixmap::fromImage(image_)));
}

QImage StatusItem::draw(const QString& symbol, const QString& text, const QColor& color, qreal devicePixelRatio)
{
    const QFont font = labelFont();
    const qreal textWidth = text.isEmpty() ? 0 : std::ceil(QFontMetricsF(font).horizontalAdvance(text));
    const qreal width = height + (text.isEmpty() ? 0 : spacing + textWidth);
    QImage image(QSizeF(width * devicePixelRatio, height * devicePixelRatio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QSize symbolPixels = QSizeF(height * devicePixelRatio, height * devicePixelRatio).toSize();
    painter.drawImage(QRectF(0, 0, height, height), Icons::render(symbol, symbolPixels, color));
    if (!text.isEmpty()) {
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(QRectF(height + spacing, 0, textWidth, height), Qt::AlignLeft | Qt::AlignVCenter, text);
    }
    return image;
}
