// SPDX-License-Identifier: Apache-2.0
#include "crossover/curveline.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QImage>

#include <cmath>

namespace {

// The area that is drawn; the picture is half as large.
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

QImage drawing(const QString &name) {
    const QImage picture(QStringLiteral(":/corvina_icon/%1.png").arg(name));
    return picture.convertToFormat(QImage::Format_ARGB32)
        .scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
        const QImage image = drawing(name);
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
        const QImage image = drawing(name);
        const int first = highPass ? 360 : 0;
        for (int x = first; x < first + graphWidth; ++x) {
            // Within 1 dB, also at the edge.
            QVERIFY(drawnAt(image, x) < passBand + (height - passBand) / range);
        }
    }

    // The page draws, instead of the picture, the same curve in the same colour.
    void lineIsThePictures_data() { isTheFiltersResponse_data(); }
    void lineIsThePictures() {
        QFETCH(QString, name);
        const auto *line = audiosetting::crossover::curveLine(name.toLatin1());
        QVERIFY(line);
        const QImage image = drawing(name);
        const QPolygonF points = line->points();
        QVERIFY(points.first().x() <= (line->highPass ? 335 : 0) &&
                points.last().x() >= (line->highPass ? width : 756));
        int compared = 0;
        for (int i = 1; i < points.size(); ++i) {
            const QLineF part(points[i - 1], points[i]);
            QVERIFY(part.dx() > 0);
            for (const double share : {0.0, 0.25, 0.5, 0.75}) {
                const QPointF at = part.pointAt(share);
                if (!QRectF(image.rect()).adjusted(1, 1, -1, -1).contains(at)) {
                    continue;
                }
                // Not smoothed, the picture's line is right to a pixel.
                QRgb seen = 0;
                for (const QPoint &next : {QPoint(0, 0), QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
                    const QRgb there = image.pixel(QPoint(int(at.x()), int(at.y())) + next);
                    seen = qAlpha(there) > qAlpha(seen) ? there : seen;
                }
                QVERIFY2(qAlpha(seen) > 140, qPrintable(QStringLiteral("no line at %1, %2").arg(at.x()).arg(at.y())));
                const QColor colour(qRed(seen), qGreen(seen), qBlue(seen));
                QVERIFY2(qAbs(colour.hsvHue() - QColor(line->colour).hsvHue()) <= 3, qPrintable(colour.name()));
                ++compared;
            }
        }
        QVERIFY2(compared > 30, qPrintable(QString::number(compared)));
        const double corner = drawnAt(image, int(line->corner().x()));
        QVERIFY2(std::abs(corner - line->corner().y()) < 3, qPrintable(QString::number(corner)));
    }

    void noOtherPictureIsALine() {
        QVERIFY(!audiosetting::crossover::curveLine("crossover_graph"));
        QVERIFY(!audiosetting::crossover::curveLine(""));
    }
};

PAGE_TEST_MAIN(tst_CrossoverCurves)
#include "tst_crossovercurves.moc"
