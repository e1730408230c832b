// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/responseplot.h"

#include "headunit/audio/live/outputnames.h"
#include "headunit/host/sound/responsetable.h"
#include "headunit/toolkit/unitapplication.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

constexpr int width = 1280;
constexpr int height = 900;
constexpr int left = 110;
constexpr int right = width - 40;
constexpr int textPixels = 20;
constexpr double lowestHz = 20;
constexpr double highestHz = 20000;

constexpr size_t curveCount = engine::outputCount + 1;  // the sum is the last one
const QColor curveColours[curveCount] = {{0xFF, 0xD1, 0x4D}, {0xFF, 0x9F, 0x45}, {0x4C, 0xD9, 0x8A}, {0x3F, 0xC6, 0xD6},
                                         {0xF0, 0x6A, 0x6A}, {0xD9, 0x7B, 0xE0}, colour::text};

/// One of the two diagrams: its place, and the range of its upright axis.
struct Diagram {
    QRect area;
    double lowest;
    double highest;
    double step;
    const char *unit;
    bool wraps;  ///< what leaves the range at one end comes back at the other

    double x(double hz) const {
        return area.left() + area.width() * std::log(hz / lowestHz) / std::log(highestHz / lowestHz);
    }
    double y(double value) const { return area.bottom() - area.height() * (value - lowest) / (highest - lowest); }
};

std::complex<double> response(const engine::MeasuredPoint &point, size_t curve) {
    return curve < point.outputs.size() ? point.outputs[curve] : point.sum();
}

void paintGrid(QPainter &painter, const Diagram &diagram) {
    constexpr int labelWidth = 80;
    constexpr int labelGap = 10;
    const auto line = [&painter](double x1, double y1, double x2, double y2) {
        painter.setPen(QPen(colour::hairline, 1));
        painter.drawLine(QLineF(x1, y1, x2, y2));
        painter.setPen(colour::handle);
    };
    const int lines = static_cast<int>((diagram.highest - diagram.lowest) / diagram.step) + 1;
    for (int number = 0; number < lines; ++number) {
        const double value = diagram.lowest + number * diagram.step;
        const double y = diagram.y(value);
        line(diagram.area.left(), y, diagram.area.right(), y);
        painter.drawText(
            QRectF(diagram.area.left() - labelWidth - labelGap, y - textPixels, labelWidth, 2 * textPixels),
            Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("%1%2").arg(value).arg(QString::fromUtf8(diagram.unit)));
    }
    for (const int hz : {20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000}) {
        const double x = diagram.x(hz);
        line(x, diagram.area.top(), x, diagram.area.bottom());
        painter.drawText(
            QRectF(x - labelWidth / 2.0, diagram.area.bottom() + labelGap / 2.0, labelWidth, 2 * textPixels),
            Qt::AlignHCenter | Qt::AlignTop,
            hz < 1000 ? QStringLiteral("%1 Hz").arg(hz) : QStringLiteral("%1 kHz").arg(hz / 1000));
    }
}

/// Silence leaves gaps.
void paintCurve(QPainter &painter, const Diagram &diagram, const std::vector<engine::MeasuredPoint> &points,
                size_t curve, double (*value)(std::complex<double>)) {
    const double range = diagram.highest - diagram.lowest;
    QPainterPath path;
    bool drawing = false;
    double xBefore = 0;
    double before = 0;
    for (const engine::MeasuredPoint &point : points) {
        const std::complex<double> there = response(point, curve);
        if (std::norm(there) == 0) {
            drawing = false;
            continue;
        }
        const double x = diagram.x(point.hz);
        const double now = value(there);
        if (drawing) {
            const double wrapped = diagram.wraps ? std::round((now - before) / range) * range : 0;
            path.lineTo(x, diagram.y(now - wrapped));
            if (wrapped != 0) {
                path.moveTo(xBefore, diagram.y(before + wrapped));
                path.lineTo(x, diagram.y(now));
            }
        } else {
            path.moveTo(x, diagram.y(now));
        }
        drawing = true;
        xBefore = x;
        before = now;
    }
    // Where curves coincide, the dashes of the later one show the earlier one through.
    QPen pen(curveColours[curve], curve < engine::outputCount ? 3 : 2);
    if (curve % 2 == 1) {
        pen.setDashPattern({4, 4});
    }
    painter.setPen(pen);
    painter.save();
    painter.setClipRect(diagram.area);
    painter.drawPath(path);
    painter.restore();
}

void paintLegend(QPainter &painter) {
    constexpr int entryWidth = 100;
    constexpr int lineLength = 36;
    constexpr int y = 30;
    for (size_t curve = 0; curve < curveCount; ++curve) {
        const int x = left + static_cast<int>(curve) * entryWidth;
        painter.setPen(QPen(curveColours[curve], 3));
        painter.drawLine(x, y, x + lineLength, y);
        painter.setPen(colour::text);
        painter.drawText(QRect(x + lineLength + 8, y - textPixels, entryWidth, 2 * textPixels), Qt::AlignVCenter,
                         curve < engine::outputCount ? QString::fromLatin1(outputNames[curve]) : QStringLiteral("sum"));
    }
}

/// A range of decibels, in whole steps, that holds what is heard of the curves.
Diagram magnitudeDiagram(const std::vector<engine::MeasuredPoint> &points) {
    constexpr double step = 6;
    constexpr double range = 60;
    double highest = -1000;
    for (const engine::MeasuredPoint &point : points) {
        for (size_t curve = 0; curve < curveCount; ++curve) {
            highest = std::max(highest, responseDecibels(response(point, curve)));
        }
    }
    const double top = highest > -1000 ? std::ceil(highest / step + 0.5) * step : 0;
    return {QRect(left, 70, right - left, 420), top - range, top, step, " dB", false};
}

}  // namespace

QImage responsePlot(const std::vector<engine::MeasuredPoint> &points) {
    const Diagram magnitude = magnitudeDiagram(points);
    const Diagram phase = {QRect(left, 560, right - left, 280), -180, 180, 90, "\u00B0", true};
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour::background);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font(unitFontFamily());
    font.setPixelSize(textPixels);
    painter.setFont(font);
    paintGrid(painter, magnitude);
    paintGrid(painter, phase);
    paintLegend(painter);
    for (size_t curve = 0; curve < curveCount; ++curve) {
        paintCurve(painter, magnitude, points, curve, responseDecibels);
        paintCurve(painter, phase, points, curve, responseDegrees);
    }
    return image;
}

}  // namespace headunit
