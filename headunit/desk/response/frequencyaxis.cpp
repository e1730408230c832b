// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/frequencyaxis.h"

#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>

#include <cmath>

namespace headunit {

namespace {

/// Numbers at 1, 2 and 5 of each decade, lines at the others.
class FrequencyScaleEngine : public QwtLogScaleEngine {
public:
    QwtScaleDiv divideScale(double from, double to, int majorSteps, int minorSteps, double) const override {
        if (to / from < fewestDecades) {
            QwtScaleDiv even = QwtLinearScaleEngine().divideScale(from, to, majorSteps, minorSteps);
            even.setInterval(from, to);
            return even;
        }
        QList<double> numbered;
        QList<double> lines;
        for (double decade = std::pow(10, std::floor(std::log10(from))); decade <= to; decade *= 10) {
            for (int digit = 1; digit < 10; ++digit) {
                const double hz = digit * decade;
                const bool inside = hz >= from * (1 - slack) && hz <= to * (1 + slack);
                const bool number = digit == 1 || digit == 2 || digit == 5 || to / from < fewDecades;
                if (inside) {
                    (number ? numbered : lines) << hz;
                }
            }
        }
        return QwtScaleDiv(from, to, lines, QList<double>(), numbered);
    }

private:
    static constexpr double fewestDecades = 2.5;  ///< below, even steps give more numbers
    static constexpr double fewDecades = 10;
    static constexpr double slack = 1e-9;
};

class FrequencyScaleDraw : public QwtScaleDraw {
public:
    QwtText label(double hz) const override {
        const QList<double> numbers = scaleDiv().ticks(QwtScaleDiv::MajorTick);
        const QString number = hz < 1000 ? QString::number(hz, 'g', 4) : QString::number(hz / 1000, 'g', 4);
        const QString unit = hz >= 1000                                         ? QStringLiteral("k")
                             : !numbers.isEmpty() && hz == numbers.constFirst() ? QStringLiteral(" Hz")
                                                                                : QString();
        return number + unit;
    }
};

}  // namespace

void setFrequencyAxis(QwtPlot *plot) {
    plot->setAxisScaleEngine(QwtPlot::xBottom, new FrequencyScaleEngine);
    plot->setAxisScaleDraw(QwtPlot::xBottom, new FrequencyScaleDraw);
    plot->setAxisScale(QwtPlot::xBottom, lowestPlotHz, highestPlotHz);
}

}  // namespace headunit
