// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/look.h"

#include "headunit/toolkit/picture.h"

#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmapCache>

namespace headunit {

namespace look {

namespace {

// The colours of audiosetting/resources/palette/, for keys of any size.
struct KeyLook {
    QColor top;
    QColor bottom;
    QColor edge;
    qreal edgeWidth;
};
constexpr KeyLook keyLooks[] = {
    {{0x2C, 0x36, 0x43}, {0x20, 0x28, 0x32}, {0x7D, 0x8A, 0x9A}, 2},
    {{0x35, 0xC9, 0xF6}, {0x0B, 0xB7, 0xED}, {0x82, 0xDE, 0xFA}, 2},
    {{0x0D, 0x7B, 0xA1}, {0x0A, 0x66, 0x88}, {0x82, 0xDE, 0xFA}, 2},
    {{0x12, 0x56, 0x6D}, {0x0C, 0x3C, 0x4E}, {0x0B, 0xB7, 0xED}, 3},
    {{0x18, 0x1E, 0x26}, {0x16, 0x1B, 0x22}, {0x34, 0x3C, 0x47}, 2},
};
constexpr qreal keyRadius = 16;
constexpr qreal keyInset = 2;

constexpr QColor backgroundTop(0x16, 0x1D, 0x27);
constexpr QColor backgroundBottom(0x0A, 0x0D, 0x12);
constexpr int stripWidth = 64;
constexpr int grain = 64;  // px that a pixel's colour comes from above or below at most

/// A strip of the background, dithered as that of the pages: each pixel has the colour of a place some way up or down,
/// so that the few steps of so dark a gradient do not show as bands. Made here in a quarter of the time that reading a
/// picture of it takes.
QPixmap backgroundStrip() {
    const QString key = QStringLiteral("headunit/background");
    QPixmap strip;
    if (QPixmapCache::find(key, &strip)) {
        return strip;
    }
    QRgb rows[screenHeight];
    for (int y = 0; y < screenHeight; ++y) {
        const auto mixed = [y](int top, int bottom) { return top + (bottom - top) * y / (screenHeight - 1); };
        rows[y] = qRgb(mixed(backgroundTop.red(), backgroundBottom.red()),
                       mixed(backgroundTop.green(), backgroundBottom.green()),
                       mixed(backgroundTop.blue(), backgroundBottom.blue()));
    }
    QImage image(stripWidth, screenHeight, QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < screenHeight; ++y) {
        const auto line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < stripWidth; ++x) {
            noise = noise * 1664525 + 1013904223;
            const int from = y + int(noise >> 25) - grain;
            line[x] = rows[qBound(0, from, screenHeight - 1)];
        }
    }
    strip = QPixmap::fromImage(image);
    QPixmapCache::insert(key, strip);
    return strip;
}

}  // namespace

QFont font(int pixels) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}

void paintBackground(QPainter &painter, const QRect &rect) {
    painter.drawTiledPixmap(rect, backgroundStrip(), rect.topLeft());
}

void paintKey(QPainter &painter, const QRect &rect, KeyState state, bool warns) {
    const KeyLook &keyLook = keyLooks[int(state)];
    QLinearGradient gradient(0, rect.top(), 0, rect.bottom());
    gradient.setColorAt(0, keyLook.top);
    gradient.setColorAt(1, keyLook.bottom);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(warns ? warning : keyLook.edge, keyLook.edgeWidth));
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(rect).adjusted(keyInset, keyInset, -keyInset, -keyInset), keyRadius, keyRadius);
}

void paintPicture(QPainter &painter, const QRect &area, const QString &name) {
    const QPixmap picture = loadPicture(QStringLiteral(":/headunit/") + name + QStringLiteral(".png"));
    const QSize size = pictureSize(picture);
    painter.drawPixmap(area.x() + (area.width() - size.width()) / 2, area.y() + (area.height() - size.height()) / 2,
                       picture);
}

}  // namespace look

}  // namespace headunit
