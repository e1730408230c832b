// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/response.h"

#include <QColor>
#include <QPolygonF>
#include <QString>

#include <qwt_plot_curve.h>

namespace headunit {

/// The six outputs, and their sum as the last one.
constexpr size_t responseCurves = engine::outputCount + 1;
constexpr size_t curveOfSum = engine::outputCount;

/// Front, rear and subwoofers in the hues of the page Crossover; left and right are two shades.
QColor responseColour(size_t curve);
/// "FL", …; the sum in the desk's language.
QString responseName(size_t curve);

enum class Quantity { Magnitude, Phase, GroupDelay };

/// The samples of a curve: hertz, and decibels or degrees; not a number where there is a gap. Phase comes back at one
/// end where it leaves at the other.
QPolygonF magnitudeSamples(const std::vector<engine::MeasuredPoint> &points, size_t curve);
QPolygonF phaseSamples(const std::vector<engine::MeasuredPoint> &points, size_t curve);
/// ... and milliseconds.
QPolygonF groupDelaySamples(const std::vector<double> &frequencies, const std::vector<engine::GroupDelays> &delays,
                            size_t curve);

/// A curve with gaps.
class ResponseCurve : public QwtPlotCurve {
public:
    explicit ResponseCurve(size_t curve);

    /// As a copy that is compared with: thin and pale.
    void makePale();

    void drawSeries(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas, int from,
                    int to) const override;
};

}  // namespace headunit
