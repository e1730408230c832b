// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/responsepicture.h"

#include "headunit/desk/response/responseplot.h"
#include "headunit/toolkit/unitapplication.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include <qwt_plot_renderer.h>

namespace headunit {

namespace {

constexpr int margin = 20;
constexpr int legendHeight = 40;
constexpr int textPixels = 20;
constexpr double lower = 0.7;  ///< height of a lower diagram, to that of the highest one

QFont pictureFont() {
    QFont font(unitFontFamily());
    font.setPixelSize(textPixels);
    return font;
}

/// From left to right: a line in the colour of the curve, and its name beside it.
void paintLegend(QPainter *painter, const ResponsePlot &plot) {
    constexpr int entryWidth = 110;
    constexpr int lineLength = 36;
    constexpr int y = margin + legendHeight / 2;
    int x = 4 * margin;
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        if (plot.isCurveVisible(curve)) {
            painter->setPen(QPen(responseColour(curve), 3));
            painter->drawLine(x, y, x + lineLength, y);
            painter->setPen(colour::text);
            painter->drawText(QRect(x + lineLength + 8, y - textPixels, entryWidth, 2 * textPixels), Qt::AlignVCenter,
                              responseName(curve));
            x += entryWidth;
        }
    }
}

}  // namespace

void paintResponse(QPainter *painter, const QVector<ResponsePlot *> &plots) {
    const QRect whole(QPoint(), responsePictureSize);
    painter->fillRect(whole, colour::background);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setFont(pictureFont());
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardCanvasBackground);
    QRectF area = whole.adjusted(margin, margin + legendHeight, -margin, -margin);
    // The first one is the higher one.
    const int others = plots.size() - 1;
    const double share = (area.height() - margin * others) / (1 + lower * others);
    paintLegend(painter, *plots.first());
    for (ResponsePlot *const plot : plots) {
        const QFont font = plot->scaleFont();
        plot->setScaleFont(pictureFont());
        area.setHeight(plot == plots.first() ? share : lower * share);
        renderer.render(plot, painter, area);
        plot->setScaleFont(font);
        area.moveTop(area.bottom() + margin);
    }
}

QByteArray responsePicture(const QString &name, const QVector<ResponsePlot *> &plots) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        QSvgGenerator svg;
        svg.setOutputDevice(&buffer);
        svg.setSize(responsePictureSize);
        svg.setViewBox(QRect(QPoint(), responsePictureSize));
        QPainter painter(&svg);
        paintResponse(&painter, plots);
        return bytes;
    }
    QImage image(responsePictureSize, QImage::Format_RGB32);
    QPainter painter(&image);
    paintResponse(&painter, plots);
    painter.end();
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray measuredPicture(const std::vector<engine::MeasuredPoint> &points) {
    ResponsePlot magnitude(Quantity::Magnitude);
    ResponsePlot phase(Quantity::Phase);
    std::vector<QPolygonF> magnitudes;
    std::vector<QPolygonF> phases;
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        magnitudes.push_back(magnitudeSamples(points, curve));
        phases.push_back(phaseSamples(points, curve));
    }
    magnitude.setCurves(magnitudes);
    phase.setCurves(phases);
    return responsePicture(QStringLiteral("response.png"), {&magnitude, &phase});
}

}  // namespace headunit
