#include "DiskTreemapCanvas.h"

#include "CategoryColor.h"
#include "DiskMapModel.h"
#include "DiskNodeText.h"

#include "Models/DiskMapGeometry.h"
#include "Models/DiskMapPalette.h"
#include "Platform/ByteCountFormatter.h"
#include "QtConversions.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

QColor blended(const QColor& color, const QColor& with, float share)
{
    return QColor::fromRgbF(color.redF() + (with.redF() - color.redF()) * share,
                            color.greenF() + (with.greenF() - color.greenF()) * share,
                            color.blueF() + (with.blueF() - color.blueF()) * share);
}

QRectF toQt(const Treemap::Rect& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

QFont labelFont(int pixelSize, QFont::Weight weight)
{
    QFont font;
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

struct TileLook {
    QColor color;
    bool hovered = false;
    bool selected = false;
};

void paintTile(QPainter& painter, const DiskNode& node, const QRectF& inner, const TileLook& look)
{
    const Treemap::Rect geometry{inner.x(), inner.y(), inner.width(), inner.height()};
    const qreal radius = DiskMapGeometry::cornerRadius(geometry);
    QPainterPath shape;
    shape.addRoundedRect(inner, radius, radius);

    QLinearGradient shading(inner.topLeft(), inner.bottomRight());
    shading.setColorAt(0, blended(look.color, Qt::white, 0.22f));
    shading.setColorAt(1, blended(look.color, Qt::black, 0.30f));
    painter.fillPath(shape, shading);
    if (look.hovered || look.selected)
        painter.fillPath(shape, QColor::fromRgbF(1, 1, 1, look.selected ? 0.26f : 0.14f));
    painter.strokePath(shape, QPen(QColor::fromRgbF(0, 0, 0, 0.22f), look.selected ? 2.0 : 0.5));

    if (!DiskMapGeometry::showsName(geometry))
        return;
    painter.save();
    painter.setClipRect(inner.adjusted(4, 2, -4, -2));
    painter.setPen(Qt::white);
    painter.setFont(labelFont(10, QFont::Medium));
    const QPointF corner = inner.topLeft();
    painter.drawText(QRectF(corner + QPointF(6, 5), inner.bottomRight()), Qt::AlignLeft | Qt::AlignTop,
                     DiskNodeText::labelledName(node));
    if (DiskMapGeometry::showsSize(geometry)) {
        painter.setPen(QColor::fromRgbF(1, 1, 1, 0.85f));
        painter.setFont(labelFont(9, QFont::Normal));
        painter.drawText(QRectF(corner + QPointF(6, 21), inner.bottomRight()), Qt::AlignLeft | Qt::AlignTop,
                         QtConversions::toQt(ByteCountFormatter::string(node.size())));
    }
    painter.restore();
}

}  // namespace

DiskTreemapCanvas::DiskTreemapCanvas(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void DiskTreemapCanvas::setModel(DiskMapModel* model)
{
    if (model_ == model)
        return;
    if (model_)
        disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    if (model_) {
        connect(model_, &DiskMapModel::treeChanged, this, &DiskTreemapCanvas::invalidate);
        connect(model_, &DiskMapModel::selectionChanged, this, [this] { update(); });
    }
    invalidate();
    emit modelChanged();
}

QString DiskTreemapCanvas::colorModeText() const
{
    return QtConversions::toQt(std::string(DiskColorModes::rawValue(colorMode_)));
}

void DiskTreemapCanvas::setColorModeText(const QString& mode)
{
    const DiskColorMode chosen = DiskColorModes::fromRawValueOrType(mode.toStdString());
    if (chosen == colorMode_)
        return;
    colorMode_ = chosen;
    update();
    emit colorModeChanged();
}

void DiskTreemapCanvas::setHoveredIndex(int index)
{
    if (index == hoveredIndex_)
        return;
    hoveredIndex_ = index;
    update();
    emit hoveredIndexChanged();
}

void DiskTreemapCanvas::invalidate()
{
    stale_ = true;
    update();
    emit tilesChanged();
}

void DiskTreemapCanvas::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        invalidate();
}

const std::vector<Treemap::Tile>& DiskTreemapCanvas::tiles()
{
    if (!stale_)
        return tiles_;
    stale_ = false;
    tiles_.clear();
    const std::optional<DiskNode> focused = model_ ? model_->current() : std::nullopt;
    if (!focused)
        return tiles_;
    std::vector<std::int64_t> sizes;
    sizes.reserve(focused->children().size());
    for (const DiskNode& child : focused->children())
        sizes.push_back(child.size());
    tiles_ = Treemap::layout(sizes, {0, 0, width(), height()});
    return tiles_;
}

int DiskTreemapCanvas::tileCount()
{
    return int(tiles().size());
}

int DiskTreemapCanvas::indexAt(qreal x, qreal y)
{
    const auto tile = DiskMapGeometry::tileAt({x, y}, tiles());
    return tile ? int(tile->index) : -1;
}

QRectF DiskTreemapCanvas::tileRect(int childIndex)
{
    for (const Treemap::Tile& tile : tiles()) {
        if (int(tile.index) == childIndex)
            return toQt(tile.rect);
    }
    return {};
}

QPointF DiskTreemapCanvas::tooltipCentre(QPointF pointer) const
{
    const DiskMapGeometry::Point centre = DiskMapGeometry::tooltipCentre({pointer.x(), pointer.y()}, width());
    return {centre.x, centre.y};
}

void DiskTreemapCanvas::paint(QPainter* painter)
{
    const std::vector<Treemap::Tile>& laidOut = tiles();
    const std::optional<DiskNode> focused = model_ ? model_->current() : std::nullopt;
    if (!focused || laidOut.empty())
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::TextAntialiasing);
    const std::span<const DiskNode> children = focused->children();
    const int selected = model_->selectedIndex();
    const Clock::TimePoint now = Clock::now();
    for (const Treemap::Tile& tile : laidOut) {
        const Treemap::Rect inner = DiskMapGeometry::inner(tile.rect);
        if (!DiskMapGeometry::isDrawn(inner))
            continue;
        const DiskNode& node = children[tile.index];
        const TileLook look{toQColor(DiskMapPalette::color(node, colorMode_, now)), int(tile.index) == hoveredIndex_,
                            int(tile.index) == selected};
        paintTile(*painter, node, toQt(inner), look);
    }
}
