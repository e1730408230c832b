// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/responsecurve.h"

#include "headunit/audio/live/outputnames.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/response/responsetable.h"
#include "headunit/toolkit/unitapplication.h"

#include <qwt_painter.h>

#include <cmath>
#include <limits>

namespace headunit {

namespace {

constexpr double gap = std::numeric_limits<double>::quiet_NaN();
constexpr double turn = 360;  // degrees
constexpr double millisecondsPerSecond = 1000;

const QColor colours[responseCurves] = {{0xFF, 0xD1, 0x4D}, {0xFF, 0x9F, 0x45}, {0x4C, 0xD9, 0x8A}, {0x3F, 0xC6, 0xD6},
                                        {0xF0, 0x6A, 0x6A}, {0xD9, 0x7B, 0xE0}, colour::text};

std::complex<double> responseOf(const engine::MeasuredPoint &point, size_t curve) {
    return curve == curveOfSum ? point.sum() : point.outputs[curve];
}

}  // namespace

QColor responseColour(size_t curve) {
    return colours[curve];
}

QString responseName(size_t curve) {
    return curve == curveOfSum ? deskText("Sum") : QString::fromLatin1(outputNames[curve]);
}

QPolygonF magnitudeSamples(const std::vector<engine::MeasuredPoint> &points, size_t curve) {
    QPolygonF samples;
    samples.reserve(static_cast<int>(points.size()));
    for (const engine::MeasuredPoint &point : points) {
        const double decibels = responseDecibels(responseOf(point, curve));
        samples << QPointF(point.hz, std::isfinite(decibels) ? decibels : gap);
    }
    return samples;
}

QPolygonF phaseSamples(const std::vector<engine::MeasuredPoint> &points, size_t curve) {
    QPolygonF samples;
    bool drawing = false;
    QPointF before;
    for (const engine::MeasuredPoint &point : points) {
        const std::complex<double> there = responseOf(point, curve);
        if (std::norm(there) == 0) {
            samples << QPointF(point.hz, gap);
            drawing = false;
            continue;
        }
        const QPointF now(point.hz, responseDegrees(there));
        const double wrapped = drawing ? std::round((now.y() - before.y()) / turn) * turn : 0;
        if (wrapped != 0) {
            samples << QPointF(now.x(), now.y() - wrapped) << QPointF(now.x(), gap)
                    << QPointF(before.x(), before.y() + wrapped);
        }
        samples << now;
        before = now;
        drawing = true;
    }
    return samples;
}

QPolygonF groupDelaySamples(const std::vector<double> &frequencies, const std::vector<engine::GroupDelays> &delays,
                            size_t curve) {
    QPolygonF samples;
    samples.reserve(static_cast<int>(delays.size()));
    for (size_t i = 0; i < delays.size(); ++i) {
        samples << QPointF(frequencies[i], delays[i][curve] * millisecondsPerSecond);
    }
    return samples;
}

ResponseCurve::ResponseCurve(size_t curve) : QwtPlotCurve(responseName(curve)) {
    // Where curves coincide, the dashes of the right one show the left one through.
    constexpr double dash = 4;
    QPen pen(responseColour(curve), curve == curveOfSum ? 2.4 : 1.8);
    pen.setCapStyle(Qt::FlatCap);
    if (curve % 2 == 1) {
        pen.setDashPattern({dash, dash});
    }
    setPen(pen);
    setRenderHint(RenderAntialiased);
    setZ(static_cast<double>(20 + curve));
    setLegendAttribute(LegendShowLine);
}

void ResponseCurve::makePale() {
    constexpr int alpha = 120;
    QPen pale = pen();
    QColor colour = pale.color();
    colour.setAlpha(alpha);
    pale.setColor(colour);
    pale.setWidthF(1);
    pale.setStyle(Qt::DotLine);
    setPen(pale);
    setZ(10);
    setItemAttribute(Legend, false);
}

void ResponseCurve::drawSeries(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                               const QRectF &canvas, int from, int to) const {
    // Whole pixels make steps of a slope, and pieces of a line begin their dashes anew. Both are settings of the
    // process.
    const bool rounding = QwtPainter::roundingAlignment();
    QwtPainter::setRoundingAlignment(false);
    QwtPainter::setPolylineSplitting(false);
    const int end = to < 0 ? static_cast<int>(dataSize()) : to + 1;
    const auto isGap = [this](int i) { return std::isnan(sample(i).y()); };
    for (int first = from; first < end;) {
        int next = first;
        while (next < end && !isGap(next)) {
            ++next;
        }
        if (next - first > 1) {
            QwtPlotCurve::drawSeries(painter, xMap, yMap, canvas, first, next - 1);
        }
        first = next + 1;
    }
    QwtPainter::setRoundingAlignment(rounding);
}

}  // namespace headunit
