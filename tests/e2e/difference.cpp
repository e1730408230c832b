// SPDX-License-Identifier: Apache-2.0
#include "difference.h"

#include <QPainter>
#include <QVector>

#include <algorithm>

namespace {

/// A channel's values are kept in these steps: gradients then take a quarter of the bytes.
constexpr int channelStep = 16;

/// A pixel differs if a channel is further off: the steps, and what versions of a font renderer change at the edges of
/// letters.
constexpr int channelTolerance = 24;

constexpr QRgb marked = 0xFFFF00FF;

int kept(int channel) {
    return std::min(255, (channel + channelStep / 2) / channelStep * channelStep);
}

}  // namespace

bool Difference::tooMuch() const {
    return sizes || mostInTile > tileLimit;
}

bool differs(QRgb a, QRgb b) {
    return qAbs(qRed(a) - qRed(b)) > channelTolerance || qAbs(qGreen(a) - qGreen(b)) > channelTolerance ||
           qAbs(qBlue(a) - qBlue(b)) > channelTolerance;
}

Difference difference(const QImage &expected, const QImage &actual) {
    constexpr int cell = tileSize / 2;
    const QImage then = expected.convertToFormat(QImage::Format_RGB32);
    const QImage now = actual.convertToFormat(QImage::Format_RGB32);
    const QRect both = then.rect() & now.rect();
    const int columns = both.width() / cell + 2;  // one more than there are, so that each has a right neighbour
    const int rows = both.height() / cell + 2;
    QVector<int> cells(columns * rows, 0);
    Difference result;
    result.sizes = expected.size() != actual.size();
    for (int y = 0; y < both.height(); ++y) {
        const auto thenLine = reinterpret_cast<const QRgb *>(then.constScanLine(y));
        const auto nowLine = reinterpret_cast<const QRgb *>(now.constScanLine(y));
        for (int x = 0; x < both.width(); ++x) {
            if (differs(thenLine[x], nowLine[x])) {
                ++result.pixels;
                ++cells[y / cell * columns + x / cell];
                result.within |= QRect(x, y, 1, 1);
            }
        }
    }
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column + 1 < columns; ++column) {
            const int at = row * columns + column;
            const int count = cells[at] + cells[at + 1] + cells[at + columns] + cells[at + columns + 1];
            if (count > result.mostInTile) {
                result.mostInTile = count;
                result.tile = QRect(column * cell, row * cell, tileSize, tileSize);
            }
        }
    }
    return result;
}

QImage reference(const QImage &picture) {
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    QVector<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        const auto line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            line[x] = qRgb(kept(qRed(line[x])), kept(qGreen(line[x])), kept(qBlue(line[x])));
            const auto place = std::lower_bound(colours.begin(), colours.end(), line[x]);
            if (place == colours.end() || *place != line[x]) {
                colours.insert(place, line[x]);
            }
        }
    }
    return colours.size() > 256 ? image : image.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);
}

QImage sideBySide(const QImage &expected, const QImage &actual) {
    const QSize size = expected.size().expandedTo(actual.size());
    QImage marks = actual.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < marks.height(); ++y) {
        for (int x = 0; x < marks.width(); ++x) {
            if (!expected.valid(x, y) || differs(expected.pixel(x, y), actual.pixel(x, y))) {
                marks.setPixel(x, y, marked);
            }
        }
    }
    constexpr int gap = 8;
    QImage all(3 * size.width() + 2 * gap, size.height(), QImage::Format_RGB32);
    all.fill(Qt::white);
    QPainter painter(&all);
    painter.drawImage(0, 0, expected);
    painter.drawImage(size.width() + gap, 0, actual);
    painter.drawImage(2 * (size.width() + gap), 0, marks);
    return all;
}
