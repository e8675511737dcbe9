#pragma once

#include "Models/DiskColorMode.h"
#include "Models/Treemap.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QRectF>
#include <QtQml/qqml.h>

#include <vector>

class DiskMapModel;

// The treemap of the disk map's focused folder: one rounded, shaded tile per entry, with its
// name and size where they fit, the hovered and the selected tile lit up.
//
// The tree may change dozens of times a second while a scan streams in; each change only marks
// the layout stale and asks for a frame, so however many changes arrive between two frames they
// cost one layout and one paint.
class DiskTreemapCanvas : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(DiskMapModel* model READ model WRITE setModel NOTIFY modelChanged)
    // "type" or "age".
    Q_PROPERTY(QString colorMode READ colorModeText WRITE setColorModeText NOTIFY colorModeChanged)
    // An index into the model's children, or -1.
    Q_PROPERTY(int hoveredIndex READ hoveredIndex WRITE setHoveredIndex NOTIFY hoveredIndexChanged)
    Q_PROPERTY(int tileCount READ tileCount NOTIFY tilesChanged)

public:
    explicit DiskTreemapCanvas(QQuickItem* parent = nullptr);

    DiskMapModel* model() const { return model_; }
    void setModel(DiskMapModel* model);
    QString colorModeText() const;
    void setColorModeText(const QString& mode);
    int hoveredIndex() const { return hoveredIndex_; }
    void setHoveredIndex(int index);
    int tileCount();

    // The child whose tile lies under the point, or -1 on a gap or outside the map.
    Q_INVOKABLE int indexAt(qreal x, qreal y);
    // Where the child's tile lies; an empty rectangle when it has none.
    Q_INVOKABLE QRectF tileRect(int childIndex);
    // Where a tooltip for the pointer at `pointer` is centred so it stays inside the map.
    Q_INVOKABLE QPointF tooltipCentre(QPointF pointer) const;

    void paint(QPainter* painter) override;

signals:
    void modelChanged();
    void colorModeChanged();
    void hoveredIndexChanged();
    void tilesChanged();

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void invalidate();
    const std::vector<Treemap::Tile>& tiles();

    QPointer<DiskMapModel> model_;
    DiskColorMode colorMode_ = DiskColorMode::type;
    int hoveredIndex_ = -1;
    std::vector<Treemap::Tile> tiles_;
    bool stale_ = true;
};
