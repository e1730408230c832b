// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/responseplot.h"

#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/response/frequencyaxis.h"
#include "headunit/toolkit/unitapplication.h"

#include <QMouseEvent>

#include <qwt_picker_machine.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_picker.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

constexpr const char *units[] = {" dB", "°", " ms"};  // by Quantity

class UnitScaleDraw : public QwtScaleDraw {
public:
    explicit UnitScaleDraw(Quantity quantity) : m_unit(units[static_cast<int>(quantity)]) {}
    QwtText label(double value) const override {
        constexpr double smallest = 1e-9;
        return QString::number(std::abs(value) < smallest ? 0 : value, 'g', 4) + QString::fromUtf8(m_unit);
    }

private:
    const char *const m_unit;
};

}  // namespace

ResponsePlot::ResponsePlot(Quantity quantity, QWidget *parent)
    : QwtPlot(parent), m_quantity(quantity), m_curves(), m_held(), m_cursor(new QwtPlotMarker) {
    // A picture rather than a part of the desk: the curves have the colours that they have on the unit, on its ground.
    QPalette dark = palette();
    dark.setColor(QPalette::Window, colour::background);
    dark.setColor(QPalette::WindowText, colour::handle);
    dark.setColor(QPalette::Text, colour::handle);
    setPalette(dark);
    setAutoFillBackground(true);
    setCanvasBackground(colour::background);
    static_cast<QwtPlotCanvas *>(canvas())->setFrameStyle(QFrame::NoFrame);
    canvas()->setCursor(Qt::CrossCursor);
    canvas()->setMouseTracking(true);
    canvas()->installEventFilter(this);
    plotLayout()->setAlignCanvasToScales(true);
    setContentsMargins(4, 10, 18, 2);  // for numbers at the ends of the axes
    setFrequencyAxis(this);

    auto *const grid = new QwtPlotGrid;
    grid->enableXMin(true);
    grid->setMajorPen(colour::hairline, 1);
    grid->setMinorPen(colour::surface, 1);
    grid->attach(this);
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        m_held[curve] = new ResponseCurve(curve);
        m_held[curve]->makePale();
        m_held[curve]->attach(this);
        m_curves[curve] = new ResponseCurve(curve);
        m_curves[curve]->attach(this);
    }
    m_cursor->setLineStyle(QwtPlotMarker::VLine);
    m_cursor->setLinePen(colour::accent, 1);
    m_cursor->setZ(100);
    m_cursor->setVisible(false);
    m_cursor->attach(this);

    auto *const picker = new QwtPlotPicker(xBottom, yLeft, QwtPicker::RectRubberBand, QwtPicker::AlwaysOff, canvas());
    picker->setStateMachine(new QwtPickerDragRectMachine);
    picker->setRubberBandPen(colour::accent);
    connect(picker, QOverload<const QRectF &>::of(&QwtPlotPicker::selected), this, &ResponsePlot::zoomTo);
    setQuantity(quantity);
}

void ResponsePlot::setQuantity(Quantity quantity) {
    m_quantity = quantity;
    setAxisScaleDraw(yLeft, new UnitScaleDraw(quantity));
    alignScales();
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        m_curves[curve]->setSamples(QPolygonF());
        m_held[curve]->setSamples(QPolygonF());
    }
    m_views.clear();
    fit();
}

void ResponsePlot::setCurves(const std::vector<QPolygonF> &curves) {
    for (size_t curve = 0; curve < curves.size(); ++curve) {
        m_curves[curve]->setSamples(curves[curve]);
    }
    fit();
}

void ResponsePlot::setHeld(const std::vector<QPolygonF> &curves) {
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        m_held[curve]->setSamples(curves.empty() ? QPolygonF() : curves[curve]);
    }
    fit();
}

void ResponsePlot::setCurveVisible(size_t curve, bool visible) {
    m_curves[curve]->setVisible(visible);
    m_held[curve]->setVisible(visible);
    fit();
}

QPolygonF ResponsePlot::samples(size_t curve) const {
    QPolygonF all;
    for (size_t i = 0; i < m_curves[curve]->dataSize(); ++i) {
        all << m_curves[curve]->sample(static_cast<int>(i));
    }
    return all;
}

/// A range in whole steps that holds what is seen of the curves.
ResponsePlot::Range ResponsePlot::fittingRange() const {
    if (m_quantity == Quantity::Phase) {
        return {-180, 180, 90};
    }
    double highest = -std::numeric_limits<double>::infinity();
    double lowest = std::numeric_limits<double>::infinity();
    for (const auto *curves : {&m_curves, &m_held}) {
        for (const ResponseCurve *const curve : *curves) {
            for (size_t i = 0; curve->isVisible() && i < curve->dataSize(); ++i) {
                const double value = curve->sample(static_cast<int>(i)).y();
                if (!std::isnan(value)) {
                    highest = std::max(highest, value);
                    lowest = std::min(lowest, value);
                }
            }
        }
    }
    if (m_quantity == Quantity::Magnitude) {
        constexpr double step = 6;
        constexpr double range = 60;
        const double top = std::isfinite(highest) ? std::ceil(highest / step + 0.5) * step : 0;
        return {top - range, top, step};
    }
    // Near a hole, a group delay goes to any height: what filters and delays of the unit make of it is shown.
    constexpr double most = 30;
    constexpr double least = -10;
    constexpr double step = 5;
    const double top = std::isfinite(highest) ? std::ceil(std::min(highest, most) / step) * step : step;
    const double bottom = std::isfinite(lowest) ? std::floor(std::max(lowest, least) / step) * step : 0;
    return {std::min(bottom, 0.0), std::max(top, step), step};
}

void ResponsePlot::fit() {
    if (!isZoomed()) {
        const Range range = fittingRange();
        setAxisScale(yLeft, range.lowest, range.highest, range.step);
        setAxisScale(xBottom, lowestPlotHz, highestPlotHz);
    }
    replot();
}

QRectF ResponsePlot::view() const {
    const QwtInterval x = axisInterval(xBottom);
    const QwtInterval y = axisInterval(yLeft);
    return QRectF(x.minValue(), y.minValue(), x.width(), y.width());
}

void ResponsePlot::show(const QRectF &view) {
    setAxisScale(xBottom, view.left(), view.right());
    setAxisScale(yLeft, view.top(), view.bottom());
    replot();
    Q_EMIT frequenciesChanged(view.left(), view.right());
}

void ResponsePlot::zoomTo(const QRectF &area) {
    constexpr int smallest = 8;  // pixels: less is a touch, not a frame
    const QRectF frame = QwtScaleMap::transform(canvasMap(xBottom), canvasMap(yLeft), area.normalized());
    if (frame.width() < smallest || frame.height() < smallest) {
        return;
    }
    m_views << view();
    show(area.normalized());
}

void ResponsePlot::zoomBack() {
    if (!isZoomed()) {
        return;
    }
    const QRectF before = m_views.takeLast();
    if (isZoomed()) {
        show(before);
    } else {
        fit();
        Q_EMIT frequenciesChanged(lowestPlotHz, highestPlotHz);
    }
}

void ResponsePlot::zoomOut() {
    m_views.resize(qMin(m_views.size(), 1));
    zoomBack();
}

void ResponsePlot::showFrequencies(double from, double to) {
    setAxisScale(xBottom, from, to);
    if (from <= lowestPlotHz && to >= highestPlotHz) {
        m_views.clear();
        fit();
    } else if (!isZoomed()) {
        m_views << QRectF(lowestPlotHz, axisInterval(yLeft).minValue(), highestPlotHz - lowestPlotHz,
                          axisInterval(yLeft).width());
    }
    replot();
}

void ResponsePlot::setCursor(double hz) {
    if (m_cursor->isVisible() == (hz > 0) && m_cursor->xValue() == hz) {
        return;
    }
    m_cursor->setVisible(hz > 0);
    m_cursor->setXValue(hz);
    replot();
}

void ResponsePlot::retranslate() {
    m_curves[curveOfSum]->setTitle(responseName(curveOfSum));
}

void ResponsePlot::setScaleFont(const QFont &font) {
    setAxisFont(xBottom, font);
    setAxisFont(yLeft, font);
    alignScales();
    updateAxes();
}

/// Diagrams below each other stand in line.
void ResponsePlot::alignScales() {
    constexpr int ticks = 12;
    const QFontMetrics metrics(axisFont(yLeft));
    axisScaleDraw(yLeft)->setMinimumExtent(metrics.horizontalAdvance(QStringLiteral("-188 dB")) + ticks);
}

QSize ResponsePlot::minimumSizeHint() const {
    return QSize(260, 120);
}

void ResponsePlot::changeEvent(QEvent *event) {
    QwtPlot::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        setScaleFont(font());
    }
}

void ResponsePlot::drawItems(QPainter *painter, const QRectF &canvas, const QwtScaleMap maps[axisCnt]) const {
    ++m_paints;
    QwtPlot::drawItems(painter, canvas, maps);
}

bool ResponsePlot::eventFilter(QObject *watched, QEvent *event) {
    if (watched == canvas()) {
        if (event->type() == QEvent::MouseMove) {
            const double hz = invTransform(xBottom, static_cast<const QMouseEvent *>(event)->x());
            const QwtInterval shown = axisInterval(xBottom);
            Q_EMIT pointedAt(qBound(shown.minValue(), hz, shown.maxValue()));
        } else if (event->type() == QEvent::MouseButtonRelease &&
                   static_cast<const QMouseEvent *>(event)->button() == Qt::RightButton) {
            zoomBack();
        }
    }
    return QwtPlot::eventFilter(watched, event);
}

}  // namespace headunit
