// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/responseplot.h"

#include "headunit/desk/response/responsepicture.h"
#include "headunit/toolkit/unitapplication.h"

#include <QTest>

#include <qwt_scale_draw.h>

#include <cmath>

using namespace headunit;

class TestResponsePlot : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { setUpUnitApplication(); }
    void phaseOfADelay_data();
    void phaseOfADelay();
    void silenceLeavesAGap();
    void curvesThatCoincideShowThrough();
    void frequenciesCarryTheirNumbers_data();
    void frequenciesCarryTheirNumbers();
    void valuesCarryTheirNumbers();
    void rangeHoldsTheCurves();
    void legendOfThePicture();
};

namespace {

std::vector<engine::MeasuredPoint> level(double gain) {
    std::vector<engine::MeasuredPoint> points;
    for (const double hz : engine::audibleFrequencies()) {
        engine::MeasuredPoint point{hz, {}};
        point.outputs.fill(gain);
        points.push_back(point);
    }
    return points;
}

std::vector<QPolygonF> magnitudes(const std::vector<engine::MeasuredPoint> &points) {
    std::vector<QPolygonF> curves;
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        curves.push_back(magnitudeSamples(points, curve));
    }
    return curves;
}

QStringList labels(const QwtPlot &plot, int axis) {
    QStringList texts;
    for (const double value : plot.axisScaleDiv(axis).ticks(QwtScaleDiv::MajorTick)) {
        texts << plot.axisScaleDraw(axis)->label(value).text();
    }
    return texts;
}

/// Bright runs in a row of the canvas.
int crossings(const QImage &canvas, int y) {
    int found = 0;
    bool before = false;
    for (int x = 0; x < canvas.width(); ++x) {
        const bool bright = qGray(canvas.pixel(x, y)) > 120;
        found += bright && !before;
        before = bright;
    }
    return found;
}

}  // namespace

void TestResponsePlot::phaseOfADelay_data() {
    QTest::addColumn<double>("milliseconds");
    QTest::addColumn<double>("highest");  // Hz, as far as turns can be told apart
    QTest::newRow("short") << 1.0 << 10000.0;
    QTest::newRow("longest") << 9.9 << 1000.0;
}

/// It falls from one end of its diagram to the other in every turn, and reaches both.
void TestResponsePlot::phaseOfADelay() {
    QFETCH(double, milliseconds);
    QFETCH(double, highest);
    std::vector<engine::MeasuredPoint> points;
    int turns = 0;
    for (const double hz : engine::audibleFrequencies()) {
        if (hz <= highest) {
            engine::MeasuredPoint point{hz, {}};
            point.outputs[engine::FrontLeft] = std::polar(1.0, -2 * M_PI * hz * milliseconds / 1000);
            points.push_back(point);
            turns = static_cast<int>(hz * milliseconds / 1000 + 0.5);
        }
    }
    ResponsePlot plot(Quantity::Phase);
    plot.resize(1300, 500);
    plot.setCurves({phaseSamples(points, engine::FrontLeft)});
    const QImage canvas = plot.grab().toImage().copy(plot.canvas()->geometry());
    QCOMPARE(crossings(canvas, 4), turns);
    QCOMPARE(crossings(canvas, canvas.height() - 5), turns);
}

void TestResponsePlot::silenceLeavesAGap() {
    auto points = level(1);
    points[100].outputs.fill(0);
    const QPolygonF magnitude = magnitudeSamples(points, engine::RearLeft);
    const QPolygonF phase = phaseSamples(points, engine::RearLeft);
    QVERIFY(std::isnan(magnitude[100].y()) && std::isnan(phase[100].y()));
    QCOMPARE(magnitude[99].y(), 0.0);
    // The whole curve silent: nothing is drawn, and nothing else is shifted.
    ResponsePlot plot(Quantity::Magnitude);
    plot.resize(800, 400);
    plot.setCurves(magnitudes(level(0)));
    const QImage silent = plot.grab().toImage();
    plot.setCurves({});
    QCOMPARE(plot.grab().toImage(), silent);
    QCOMPARE(labels(plot, QwtPlot::yLeft).last(), QString("0 dB"));
}

/// Both shades of a pair are seen where left and right are alike, at all frequencies.
void TestResponsePlot::curvesThatCoincideShowThrough() {
    ResponsePlot plot(Quantity::Magnitude);
    plot.resize(1000, 500);
    plot.setCurveVisible(curveOfSum, false);
    for (const size_t curve : {engine::RearLeft, engine::RearRight, engine::SubLeft, engine::SubRight}) {
        plot.setCurveVisible(curve, false);
    }
    plot.setCurves(magnitudes(level(1)));
    const QImage canvas = plot.grab().toImage().copy(plot.canvas()->geometry());
    const int y = static_cast<int>(std::lround(plot.canvasMap(QwtPlot::yLeft).transform(0)));
    for (int part = 0; part < 10; ++part) {
        bool left = false;
        bool right = false;
        for (int x = canvas.width() * part / 10; x < canvas.width() * (part + 1) / 10; ++x) {
            for (const int line : {y - 1, y, y + 1}) {
                const int green = qGreen(canvas.pixel(x, line));
                left = left || std::abs(green - responseColour(engine::FrontLeft).green()) < 12;
                right = right || std::abs(green - responseColour(engine::FrontRight).green()) < 12;
            }
        }
        QVERIFY2(left && right, qPrintable(QString::number(part)));
    }
}

void TestResponsePlot::frequenciesCarryTheirNumbers_data() {
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all") << 20.0 << 20000.0
                         << QStringList{"20 Hz", "50", "100", "200", "500", "1k", "2k", "5k", "10k", "20k"};
    QTest::newRow("some octaves") << 45.0 << 205.0 << QStringList{"50 Hz", "60", "70", "80", "90", "100", "200"};
    QTest::newRow("an octave") << 1000.0 << 2000.0 << QStringList{"1k", "1.2k", "1.4k", "1.6k", "1.8k", "2k"};
}

void TestResponsePlot::frequenciesCarryTheirNumbers() {
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(QStringList, expected);
    ResponsePlot plot(Quantity::Magnitude);
    plot.resize(1000, 500);
    if (from > 20 || to < 20000) {
        plot.zoomTo(QRectF(from, -40, to - from, 20));
    }
    QCOMPARE(labels(plot, QwtPlot::xBottom), expected);
}

void TestResponsePlot::valuesCarryTheirNumbers() {
    const ResponsePlot phase(Quantity::Phase);
    QCOMPARE(labels(phase, QwtPlot::yLeft), QStringList({"-180°", "-90°", "0°", "90°", "180°"}));
    const ResponsePlot delay(Quantity::GroupDelay);
    QCOMPARE(labels(delay, QwtPlot::yLeft), QStringList({"0 ms", "5 ms"}));
}

void TestResponsePlot::rangeHoldsTheCurves() {
    ResponsePlot plot(Quantity::Magnitude);
    plot.resize(1000, 500);
    plot.setCurves(magnitudes(level(2)));  // the sum lies at +21.6 dB
    QCOMPARE(plot.axisInterval(QwtPlot::yLeft), QwtInterval(-30, 30));
    plot.setCurveVisible(curveOfSum, false);
    QCOMPARE(plot.axisInterval(QwtPlot::yLeft), QwtInterval(-48, 12));
}

/// From left to right: a line in the colour of each curve that is shown.
void TestResponsePlot::legendOfThePicture() {
    QImage picture = QImage::fromData(measuredPicture(level(0)));
    QCOMPARE(picture.size(), responsePictureSize);
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        QCOMPARE(picture.pixelColor(80 + 110 * int(curve) + 18, 40), responseColour(curve));
    }
    ResponsePlot plot(Quantity::Magnitude);
    plot.setCurveVisible(engine::FrontLeft, false);
    picture = QImage::fromData(responsePicture("a.png", {&plot}));
    QCOMPARE(picture.pixelColor(80 + 18, 40), responseColour(engine::FrontRight));
    QVERIFY(responsePicture("a.SVG", {&plot}).contains("<svg"));
}

QTEST_MAIN(TestResponsePlot)
#include "tst_responseplot.moc"
