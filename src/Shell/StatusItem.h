#pragma once

#include <QColor>
#include <QImage>
#include <QMenu>
#include <QObject>
#include <QRect>
#include <QString>
#include <QSystemTrayIcon>

class AppModel;

// The application's item in the desktop's status area: the drive symbol, with the model's short
// text beside it, drawn into one image and repeated as the tooltip. The symbol turns to the
// warning one when free space is below the user's threshold.
class StatusItem : public QObject {
    Q_OBJECT

public:
    static inline const QString normalSymbol = QStringLiteral("internaldrive");
    static inline const QString lowSpaceSymbol = QStringLiteral("internaldrive.fill.badge.exclamationmark");
    // The height the image is drawn for, in device-independent pixels.
    static constexpr int height = 22;
    static constexpr int spacing = 3;

    explicit StatusItem(AppModel& model, QObject* parent = nullptr);

    void show();
    // Where the item is on screen; empty when the desktop doesn't say.
    QRect geometry() const;

    QString symbol() const { return symbol_; }
    const QImage& image() const { return image_; }
    QString toolTip() const;

    // The symbol, then the text when there is one, on a transparent background.
    static QImage draw(const QString& symbol, const QString& text, const QColor& color, qreal devicePixelRatio);

signals:
    void clicked();
    void quitChosen();

private:
    void refresh();
    static QColor foreground();

    AppModel& model_;
    QSystemTrayIcon tray_;
    QMenu menu_;
    QString symbol_;
    QString text_;
    QImage image_;
};
