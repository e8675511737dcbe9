#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

// A symbol drawn in one colour at the item's size: `SymbolIcon { symbol: "trash.fill"; color: … }`.
class SymbolIcon : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY symbolChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

public:
    explicit SymbolIcon(QQuickItem* parent = nullptr);

    QString symbol() const { return symbol_; }
    void setSymbol(const QString& symbol);
    QColor color() const { return color_; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

signals:
    void symbolChanged();
    void colorChanged();

private:
    QString symbol_;
    QColor color_{Qt::black};
};
