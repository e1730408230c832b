// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/responseplot.h"

#include "headunit/toolkit/unitapplication.h"

#include <QPainter>
#include <QTest>

using namespace headunit;

class TestResponsePlot : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { setUpUnitApplication(); }
    void phaseOfADelay_data();
    void phaseOfADelay();
    void legendNamesTheCurvesByTheirColours();
    void axesCarryTheirNumbers_data();
    void axesCarryTheirNumbers();
};

namespace {

/// The text as the plot draws it, on its background.
QImage drawn(const QSize &size, Qt::Alignment alignment, const QColor &colour, const QString &text) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour::background);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font(unitFontFamily());
    font.setPixelSize(20);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QRect(QPoint(), size), int(alignment), text);
    return image;
}

/// The same text: the edges of its letters may differ a little.
bool alike(const QImage &a, const QImage &b) {
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 12) {
                return false;
            }
        }
    }
    return true;
}

std::vector<engine::MeasuredPoint> silence() {
    std::vector<engine::MeasuredPoint> points;
    for (const double hz : engine::audibleFrequencies()) {
        points.push_back({hz, {}});
    }
    return points;
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
    const QImage plot = responsePlot(points);
    constexpr int ends[] = {563, 836};  // just within the lower diagram
    for (const int y : ends) {
        int crossings = 0;
        bool before = false;
        for (int x = 112; x < 1238; ++x) {
            const bool bright = qGray(plot.pixel(x, y)) > 150;
            crossings += bright && !before;
            before = bright;
        }
        QCOMPARE(crossings, turns);
    }
}

/// From left to right: a line in the colour of the curve, and its name beside it.
void TestResponsePlot::legendNamesTheCurvesByTheirColours() {
    const struct {
        const char *name;
        QRgb colour;
    } entries[] = {{"FL", 0xFFFFD14D}, {"FR", 0xFFFF9F45}, {"RL", 0xFF4CD98A},         {"RR", 0xFF3FC6D6},
                   {"SL", 0xFFF06A6A}, {"SR", 0xFFD97BE0}, {"sum", colour::text.rgb()}};
    const QImage plot = responsePlot(silence());
    int x = 110;
    for (const auto &entry : entries) {
        QCOMPARE(plot.pixel(x + 18, 30), entry.colour);
        const QRect place(x + 36 + 8, 10, 50, 40);
        QVERIFY2(
            alike(plot.copy(place), drawn(place.size(), Qt::AlignVCenter, colour::text, QLatin1String(entry.name))),
            entry.name);
        x += 100;
    }
}

void TestResponsePlot::axesCarryTheirNumbers_data() {
    QTest::addColumn<QRect>("place");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QString>("text");
    const int right = Qt::AlignRight | Qt::AlignVCenter;
    // Degrees beside the lower diagram, from the bottom up.
    int step = 0;
    for (const char *text : {"-180\u00B0", "-90\u00B0", "0\u00B0", "90\u00B0", "180\u00B0"}) {
        QTest::newRow(text) << QRect(20, 839 - 70 * step++, 80, 0) << right << QString::fromUtf8(text);
    }
    // Decibels beside the upper one; without a curve its top is 0 dB.
    for (int line = 0; line <= 10; ++line) {
        const QString text = QStringLiteral("%1 dB").arg(-6 * line);
        QTest::newRow(qPrintable(text)) << QRect(20, 489 - 42 * (10 - line), 80, 0) << right << text;
    }
}

void TestResponsePlot::axesCarryTheirNumbers() {
    QFETCH(QRect, place);
    QFETCH(int, alignment);
    QFETCH(QString, text);
    // Within a pixel: lines need not stand on whole ones.
    const QImage plot = responsePlot(silence());
    // Below the lowest number stand the frequencies.
    const QRect letters = place.adjusted(0, -11, 0, 11);
    const QRect above(0, 0, letters.width(), 14);
    const QImage expected = drawn(letters.size(), Qt::Alignment(alignment), colour::handle, text).copy(above);
    bool found = false;
    for (int shift = -2; shift <= 2; ++shift) {
        found = found || alike(plot.copy(letters.translated(0, shift)).copy(above), expected);
    }
    QVERIFY2(found, qPrintable(text));
}

QTEST_MAIN(TestResponsePlot)
#include "tst_responseplot.moc"
