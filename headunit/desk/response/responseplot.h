// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/response/responsecurve.h"

#include <qwt_plot.h>

#include <array>
#include <vector>

class QwtPlotMarker;

namespace headunit {

/// A diagram of the responses of the six outputs and of their sum: 20 Hz to 20 kHz, and one quantity.
class ResponsePlot : public QwtPlot {
    Q_OBJECT
public:
    explicit ResponsePlot(Quantity quantity, QWidget *parent = nullptr);

    Quantity quantity() const { return m_quantity; }
    /// Another quantity, without curves until they are set.
    void setQuantity(Quantity quantity);

    /// Shows these samples, and fits the upright axis to what is visible of them unless it is zoomed.
    void setCurves(const std::vector<QPolygonF> &curves);
    /// ... beside these, pale; none of them, or all.
    void setHeld(const std::vector<QPolygonF> &curves);
    void setCurveVisible(size_t curve, bool visible);
    bool isCurveVisible(size_t curve) const { return m_curves[curve]->isVisible(); }

    /// The samples that are shown.
    QPolygonF samples(size_t curve) const;

    /// A line at that frequency; none for 0.
    void setCursor(double hz);

    /// Shows that part of the axes; the part that was shown before comes back with zoomBack().
    void zoomTo(const QRectF &area);
    void zoomBack();
    void zoomOut();
    bool isZoomed() const { return !m_views.isEmpty(); }
    /// Shows the frequencies of another diagram below or above this one.
    void showFrequencies(double from, double to);

    /// How often the curves were drawn.
    int paints() const { return m_paints; }

    void retranslate();

    QFont scaleFont() const { return axisFont(yLeft); }
    void setScaleFont(const QFont &font);

    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The frequencies that are shown are others.
    void frequenciesChanged(double from, double to);
    /// The pointer is at that frequency, or nowhere (0).
    void pointedAt(double hz);

protected:
    void drawItems(QPainter *painter, const QRectF &canvas, const QwtScaleMap maps[axisCnt]) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Range {
        double lowest;
        double highest;
        double step;
    };

    void alignScales();
    void fit();
    Range fittingRange() const;
    void show(const QRectF &view);
    QRectF view() const;

    Quantity m_quantity;
    std::array<ResponseCurve *, responseCurves> m_curves;
    std::array<ResponseCurve *, responseCurves> m_held;
    QwtPlotMarker *const m_cursor;
    QVector<QRectF> m_views;  ///< that zoomBack() shows again
    mutable int m_paints = 0;
};

}  // namespace headunit
