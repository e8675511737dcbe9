#include "StatusItem.h"

#include "AppModel.h"
#include "Views/Components/Icons.h"
#include "Views/Panel/MenuPanelModel.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
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

// The gauge's proportions, as shares of its side: thick enough to read as a ring at 16 pixels,
// with a hole big enough for the warning symbol.
constexpr double ringWidthShare = 0.19;
constexpr double marginShare = 1.0 / 16.0;
constexpr double trackOpacity = 0.32;

}  // namespace

StatusItem::StatusItem(AppModel& model, PlatformProfile profile, QObject* parent)
    : QObject(parent), model_(model), profile_(profile)
{
    menu_.addAction(tr("Quit Mopwell"), this, &StatusItem::quitChosen);
    tray_.setContextMenu(&menu_);
    connect(&tray_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // The desktop turns a press that quickly follows another into a double click, in place of
        // the press itself.
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
            emit clicked(reason == QSystemTrayIcon::DoubleClick);
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

bool StatusItem::isDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QColor StatusItem::foreground()
{
    // Status areas follow the desktop's colour scheme: light symbols on a dark one.
    return isDark() ? QColor(Qt::white) : QColor(Qt::black);
}

QColor StatusItem::bandColor(const QString& band, bool dark)
{
    // The panel ring's green, orange and red (the Theme's colours).
    if (band == QLatin1String("red"))
        return QColor(dark ? "#ff453a" : "#ff3b30");
    if (band == QLatin1String("orange"))
        return QColor(dark ? "#ff9f0a" : "#ff9500");
    return QColor(dark ? "#30d158" : "#34c759");
}

void StatusItem::refresh()
{
    // Strictly below: exactly the threshold still counts as enough space.
    const bool low = model_.diskAvailableImportant() < model_.settings()->lowSpaceThresholdBytes();
    const QString text = model_.menuBarText();
    tray_.setToolTip(text);
    if (profile_ == PlatformProfile::macOS)
        refreshMenuBarPicture(low ? lowSpaceSymbol : normalSymbol, text);
    else
        refreshGauge(low);
}

// Both pictures are redrawn only on a visible change: some status areas flicker on every new icon.
void StatusItem::refreshMenuBarPicture(const QString& symbol, const QString& text)
{
    if (!image_.isNull() && symbol == symbol_ && text == text_)
        return;
    symbol_ = symbol;
    text_ = text;
    image_ = draw(symbol_, text, foreground(), qApp->devicePixelRatio());
    ++drawCount_;
    tray_.setIcon(QIcon(QPixmap::fromImage(image_)));
}

void StatusItem::refreshGauge(bool low)
{
    const DiskInfo disk = model_.disk();
    const Gauge gauge{static_cast<int>(std::lround(MenuPanelModel::usedFractionOf(disk) * 100.0)),
                      MenuPanelModel::ringColorFor(disk), low, isDark()};
    symbol_ = low ? lowSpaceSymbol : normalSymbol;
    if (!image_.isNull() && gauge == gauge_)
        return;
    gauge_ = gauge;
    const qreal ratio = qApp->devicePixelRatio();
    QIcon icon;
    for (const int size : gaugeSizes)
        icon.addPixmap(QPixmap::fromImage(drawGauge(gauge, size, ratio)));
    image_ = drawGauge(gauge, height, ratio);
    ++drawCount_;
    tray_.setIcon(icon);
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

QImage StatusItem::drawGauge(const Gauge& gauge, int size, qreal devicePixelRatio)
{
    const int pixels = qRound(size * devicePixelRatio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);

    const double ringWidth = size * ringWidthShare;
    const double radius = size / 2.0 - size * marginShare - ringWidth / 2.0;
    const QPointF centre(size / 2.0, size / 2.0);
    const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    QColor track = gauge.dark ? QColor(Qt::white) : QColor(Qt::black);
    track.setAlphaF(trackOpacity);
    painter.setPen(QPen(track, ringWidth));
    painter.drawEllipse(circle);
    if (gauge.percent > 0) {
        // From the top, clockwise, as the panel's ring; flat ends keep a small share small.
        QPen arc(bandColor(gauge.band, gauge.dark), ringWidth, Qt::SolidLine, Qt::FlatCap);
        painter.setPen(arc);
        painter.drawArc(circle, 90 * 16, -qRound(std::min(gauge.percent, 100) * 3.6 * 16));
    }
    if (gauge.low) {
        // In the status area's own ink, so it stands out from a red ring as well as a green one.
        const double hole = 2 * (radius - ringWidth / 2.0);
        const int glyph = qRound(hole * devicePixelRatio);
        const QRectF target(centre.x() - hole / 2.0, centre.y() - hole / 2.0, hole, hole);
        const QColor ink = gauge.dark ? QColor(Qt::white) : QColor(Qt::black);
        painter.drawImage(target, Icons::render(lowSpaceSymbol, {glyph, glyph}, ink));
    }
    return image;
}
