#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QImage>

#include <cmath>

namespace {

constexpr int width = 1050;
constexpr int height = 256;
constexpr int graphWidth = 688;
constexpr double passBand = 4;  // y of 0 dB
constexpr double range = 24;    // dB from there to the lower edge

/// The y that the curve's line has at a column: Butterworth, |H|^2 = 1 / (1 + (fc / f)^2n) for the high-pass.
double lineAt(int order, double x, double corner, double pixelsPerOctave) {
    const double ratio = std::exp2((corner - x) / pixelsPerOctave);
    const double power = 1 / (1 + std::pow(ratio, 2 * order));
    return passBand - 10 * std::log10(power) * (height - passBand) / range;
}

/// The y of the line in a column: the middle of what is most opaque, -1 where there is none.
double drawnAt(const QImage &image, int x) {
    double sum = 0;
    double weight = 0;
    for (int y = 0; y < image.height(); ++y) {
        const int alpha = qAlpha(image.pixel(x, y));
        if (alpha > 100) {
            sum += alpha * (y + 0.5);
            weight += alpha;
        }
    }
    return weight > 0 ? sum / weight : -1;
}

}  // namespace

class tst_CrossoverCurves : public PageTest {
    Q_OBJECT

private slots:
    void isTheFiltersResponse_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("order");
        QTest::addColumn<bool>("highPass");
        const char *const slopes[] = {"6db", "12db", "18db"};
        for (int order : {1, 2, 3}) {
            for (const char *family : {"left_yellow_", "left_green_", "right_red_"}) {
                const QByteArray name = QByteArray(family) + slopes[order - 1];
                QTest::newRow(name) << QString::fromLatin1(name) << order << (*family == 'l');
            }
        }
    }
    void isTheFiltersResponse() {
        QFETCH(QString, name);
        QFETCH(int, order);
        QFETCH(bool, highPass);
        const QImage image =
            QImage(QStringLiteral(":/corvina_icon/%1.png").arg(name)).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(image.size(), QSize(width, height));
        const double corner = highPass ? 335 : 756;
        const double pixelsPerOctave = highPass ? 18 : -36;
        int compared = 0;
        for (int x = 0; x < width; ++x) {
            const double expected = lineAt(order, x + 0.5, corner, pixelsPerOctave);
            const double next = lineAt(order, x + 1.5, corner, pixelsPerOctave);
            const double drawn = drawnAt(image, x);
            if (expected > height + 20) {
                QVERIFY2(drawn < 0, qPrintable(QStringLiteral("a line at column %1").arg(x)));
            } else if (expected < height - 20) {
                const double tolerance = 1.5 + std::abs(next - expected);
                QVERIFY2(std::abs(drawn - expected) <= tolerance,
                         qPrintable(QStringLiteral("%1, not %2, at column %3").arg(drawn).arg(expected).arg(x)));
                ++compared;
            }
        }
        QVERIFY2(compared > width / 2, qPrintable(QString::number(compared)));
    }

    void offShowsThePassBandAcrossTheGraph_data() { isTheFiltersResponse_data(); }
    void offShowsThePassBandAcrossTheGraph() {
        QFETCH(QString, name);
        QFETCH(bool, highPass);
        const QImage image(QStringLiteral(":/corvina_icon/%1.png").arg(name));
        const int first = highPass ? 360 : 0;
        for (int x = first; x < first + graphWidth; ++x) {
            // Within 1 dB, also at the edge.
            QVERIFY(drawnAt(image, x) < passBand + (height - passBand) / range);
        }
    }
};

PAGE_TEST_MAIN(tst_CrossoverCurves)
#include "tst_crossovercurves.moc"
