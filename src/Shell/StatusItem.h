#pragma once

#include "Platform/PlatformProfile.h"

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QObject>
#include <QRect>
#include <QString>
#include <QSystemTrayIcon>

#include <array>

class AppModel;

// The application's item in the desktop's status area, with the model's short text as its
// tooltip. Its picture depends on where it sits:
// - a Mac's menu bar has room for text: the drive symbol with the text beside it, the symbol
//   turning to the warning one when free space is below the user's threshold;
// - a Linux status area gives a square slot of 16 to 24 pixels, where such text is a smudge: a
//   gauge instead, a ring filling with the used share in the panel ring's green, orange or red,
//   with the warning symbol inside it when free space is low.
class StatusItem : public QObject {
    Q_OBJECT

public:
    static inline const QString normalSymbol = QStringLiteral("internaldrive");
    static inline const QString lowSpaceSymbol = QStringLiteral("internaldrive.fill.badge.exclamationmark");
    // The height the menu-bar picture is drawn for, in device-independent pixels.
    static constexpr int height = 22;
    static constexpr int spacing = 3;
    // The square slots status areas give an item; the gauge is drawn for each, so no host has to
    // scale a picture made for another size.
    static constexpr std::array<int, 5> gaugeSizes = {16, 22, 24, 32, 48};

    // What the gauge shows; it is drawn again only when this changes.
    struct Gauge {
        int percent = 0;       // used share, whole percent
        QString band;          // "green", "orange" or "red", as the panel's ring
        bool low = false;      // free space below the user's threshold
        bool dark = false;     // the status area is dark
        bool operator==(const Gauge&) const = default;
    };

    explicit StatusItem(AppModel& model, PlatformProfile profile = currentPlatformProfile(), QObject* parent = nullptr);

    void show();
    // Where the item is on screen; empty when the desktop doesn't say.
    QRect geometry() const;

    QString symbol() const { return symbol_; }
    // The picture at the menu bar's height, or the gauge at 22 pixels.
    const QImage& image() const { return image_; }
    QString toolTip() const;
    const Gauge& gauge() const { return gauge_; }
    // How often the picture was drawn, for checking that unchanged states draw nothing.
    int drawCount() const { return drawCount_; }

    // The symbol, then the text when there is one, on a transparent background.
    static QImage draw(const QString& symbol, const QString& text, const QColor& color, qreal devicePixelRatio);
    // The gauge in a square of `size` pixels on a transparent background.
    static QImage drawGauge(const Gauge& gauge, int size, qreal devicePixelRatio);
    // The ring's colour for a band, in the panel's light or dark palette.
    static QColor bandColor(const QString& band, bool dark);

signals:
    // A press of the primary button; `secondOfDoubleClick` when it came so soon after another
    // that the desktop counts the two as a double click.
    void clicked(bool secondOfDoubleClick);
    void quitChosen();

private:
    void refresh();
    void refreshMenuBarPicture(const QString& symbol, const QString& text);
    void refreshGauge(bool low);
    static bool isDark();
    static QColor foreground();

    AppModel& model_;
    PlatformProfile profile_;
    QSystemTrayIcon tray_;
    QMenu menu_;
    QString symbol_;
    QString text_;
    Gauge gauge_;
    QImage image_;
    int drawCount_ = 0;
};
