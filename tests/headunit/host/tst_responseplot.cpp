#include "headunit/host/sound/responseplot.h"

#include "headunit/toolkit/unitapplication.h"

#include <QTest>

using namespace headunit;

class TestResponsePlot : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { setUpUnitApplication(); }
    void phaseOfADelay_data();
    void phaseOfADelay();
};

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

QTEST_MAIN(TestResponsePlot)
#include "tst_responseplot.moc"
