// SPDX-License-Identifier: Apache-2.0
#include "crossover/curvegraph.h"
#include "crossover/curvelabel.h"
#include "crossover/curveline.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QtMath>

#include <algorithm>
#include <memory>

using namespace audiosetting::crossover;

namespace {

const char picture[] = "left_yellow_6db";
const char otherPicture[] = "right_red_18db";
const QSize graphSize(688, 257);

QString fileOf(const char *name) {
    return QStringLiteral(":/corvina_icon/%1.png").arg(QLatin1String(name));
}

double bright(QRgb colour) {
    return qRed(colour) + qGreen(colour) + qBlue(colour);
}

bool isNear(QRgb a, QRgb b) {
    return qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b)) < 12;
}

/// By how much two pictures of a size differ: of a channel, at most.
int farthest(const QImage &a, const QImage &b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb here = a.pixel(x, y);
            const QRgb there = b.pixel(x, y);
            most = std::max({most, qAbs(qRed(here) - qRed(there)), qAbs(qGreen(here) - qGreen(there)),
                             qAbs(qBlue(here) - qBlue(there))});
        }
    }
    return most;
}

/// Where the line of a picture lies at a place of it, both in pixels of the picture: what is most opaque there.
double lineOf(const QImage &image, int x) {
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

class tst_CurveLabel : public PageTest {
    Q_OBJECT

    struct Graph {
        CurveGraph frame{nullptr};
        CurveLabel label{&frame};

        Graph() {
            frame.setFixedSize(graphSize);
            show(&frame);
        }
        QImage seen() { return frame.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    };

private slots:
    void holdsTheWholePicture() {
        Graph graph;
        graph.label.setCurve(picture);
        QCOMPARE(graph.label.pixmap(Qt::ReturnByValue).toImage(), QPixmap(fileOf(picture)).toImage());
    }

    void lineIsThePicturesMappedToTheLabel_data() {
        QTest::addColumn<QRect>("place");
        QTest::newRow("as drawn") << QRect(-260, 0, 1050, 256);
        QTest::newRow("default") << QRect(-260, 0, 1050, 506);
        QTest::newRow("lowered") << QRect(-85, 105, 1050, 401);
        QTest::newRow("half") << QRect(-200, 20, 1050, 128);
        QTest::newRow("narrow") << QRect(0, 0, 390, 256);
        QTest::newRow("narrow and high") << QRect(0, 42, 630, 464);
        QTest::newRow("above") << QRect(-215, -4, 1050, 512);
        QTest::newRow("grown") << QRect(-270, -2, 1050, 556);
        QTest::newRow("wrapped") << QRect(-85, 240, 1050, 256);
    }
    void lineIsThePicturesMappedToTheLabel() {
        QFETCH(QRect, place);
        Graph graph;
        int compared = 0;
        for (const char *file : {picture, "left_green_12db", otherPicture}) {
            graph.label.setCurve(file);
            graph.label.setGeometry(place);
            const QImage seen = graph.seen();
            const QImage source(fileOf(file));
            const QRgb colour = curveLine(file)->colour;
            for (int column = 2; column < source.width() - 2; ++column) {
                const double y = lineOf(source, column);
                const double slope = (lineOf(source, column + 2) - lineOf(source, column - 2)) / 4;
                const QPoint at(place.x() + qFloor((column + 0.5) * place.width() / source.width()),
                                place.y() + qFloor(y * place.height() / source.height()));
                // Not where the picture ends, nor where a column of it holds more than a point of the line.
                const bool flat = qAbs(slope) * place.height() / source.height() < 1.5;
                if (y < 1 || y > source.height() - 4 || !flat || !seen.rect().adjusted(1, 2, -1, -3).contains(at)) {
                    continue;
                }
                // A row of the picture is up to four of the label: the line passes within a pixel of where it puts it.
                const bool found = isNear(seen.pixel(at), colour) || isNear(seen.pixel(at - QPoint(0, 1)), colour) ||
                                   isNear(seen.pixel(at + QPoint(0, 1)), colour);
                QVERIFY2(found, qPrintable(QStringLiteral("%1 at %2, %3: %4")
                                               .arg(QLatin1String(file))
                                               .arg(at.x())
                                               .arg(at.y())
                                               .arg(seen.pixel(at), 0, 16)));
                ++compared;
            }
        }
        QVERIFY2(compared > 30, qPrintable(QString::number(compared)));
    }

    void lineIsAsWideOnTheSkirtAsOnThePlateau_data() {
        QTest::addColumn<QRect>("place");
        QTest::newRow("as drawn") << QRect(-85, 20, 1050, 256);
        QTest::newRow("usual") << QRect(-85, 21, 1050, 485);
        QTest::newRow("high") << QRect(-85, -40, 1050, 1600);
        QTest::newRow("low") << QRect(-85, 20, 1050, 100);
    }
    void lineIsAsWideOnTheSkirtAsOnThePlateau() {
        QFETCH(QRect, place);
        Graph graph;
        graph.label.setCurve("left_yellow_12db");
        graph.label.setGeometry(place);
        const QImage seen = graph.seen();
        const QPolygonF line = graph.label.seenLine();
        int measured = 0;
        for (int i = 1; i < line.size(); ++i) {
            const QLineF part(line[i - 1], line[i]);
            const QPointF middle = part.pointAt(0.5);
            if (part.length() < 1 || !QRectF(place).adjusted(8, 8, -8, -8).contains(middle) ||
                !QRectF(seen.rect()).adjusted(8, 8, -8, -8).contains(middle) ||
                QLineF(middle, graph.label.corner()).length() < 14) {
                continue;
            }
            // Across the line, on the side where nothing is filled as far as the line's own half.
            const QLineF across = part.normalVector().unitVector();
            double width = 0;
            for (double step = -6; step <= 6; step += 0.1) {
                const QPointF at = middle + step * QPointF(across.dx(), across.dy());
                const QRgb colour = seen.pixel(qFloor(at.x()), qFloor(at.y()));
                width += bright(colour) > 0.6 * bright(graph.label.line()->colour) ? 0.1 : 0;
            }
            QVERIFY2(qAbs(width - 4) < 1.1,
                     qPrintable(QStringLiteral("%1 px wide at %2, %3").arg(width).arg(middle.x()).arg(middle.y())));
            ++measured;
        }
        QVERIFY2(measured >= 5, qPrintable(QString::number(measured)));
    }

    void followsItsGeometryAndPicture() {
        Graph graph;
        graph.label.setCurve(picture);
        const QVector<QRect> places{{-360, 0, 1050, 506}, {-360, 21, 1050, 485}, {-330, 21, 1050, 485},
                                    {-330, 0, 1050, 506}, {0, 0, 1050, 506},     {0, 0, 700, 300}};
        const auto fresh = [](const char *file, const QRect &place) {
            Graph other;
            other.label.setCurve(file);
            other.label.setGeometry(place);
            return other.seen();
        };
        QImage last;
        for (const QRect &place : places) {
            graph.label.setGeometry(place);
            const QImage seen = graph.seen();
            QVERIFY(seen != last);
            QCOMPARE(seen, fresh(picture, place));
            last = seen;
        }
        graph.label.setCurve(otherPicture);
        QCOMPARE(graph.seen(), fresh(otherPicture, places.last()));
        graph.label.setCurve(picture);
        QCOMPARE(graph.seen(), last);
    }

    // A step draws only what it changes.
    void stepsLeaveNothingBehind() {
        Graph graph;
        CurveLabel other(&graph.frame);
        other.setCurve("left_green_12db");
        other.setGeometry(-215, 0, 1050, 506);
        other.show();
        graph.label.raise();
        const QVector<QRect> highPass{{-360, 0, 1050, 506}, {-85, 0, 1050, 506},  {40, 0, 1050, 506},
                                      {295, 0, 1050, 506},  {295, 21, 1050, 485}, {-15, 21, 1050, 485}};
        const QVector<QRect> lowPass{{0, 0, 390, 506}, {0, 0, 630, 506}, {0, 0, 1050, 506}, {0, -21, 1050, 531}};
        const auto step = [&](const char *file, const QRect &place) {
            graph.label.setCurve(file);
            graph.label.setGeometry(place);
            const QImage seen = graph.seen();
            Graph fresh;
            CurveLabel dim(&fresh.frame);
            dim.setCurve("left_green_12db");
            dim.setGeometry(-215, 0, 1050, 506);
            dim.show();
            fresh.label.setCurve(file);
            fresh.label.setGeometry(place);
            fresh.label.raise();
            // A smoothed edge may come out one lighter or darker where the painter is clipped.
            QVERIFY2(farthest(seen, fresh.seen()) <= 1, file);
        };
        for (const QRect &place : highPass) {
            for (const char *file : {"left_yellow_6db", "left_yellow_12db", "left_yellow_18db"}) {
                step(file, place);
            }
        }
        for (const QRect &place : lowPass) {
            for (const char *file : {"right_red_6db", "right_red_18db"}) {
                step(file, place);
            }
        }
    }

    void nothingToSee() {
        Graph graph;
        graph.label.setGeometry(0, 0, 1050, 256);
        const QImage empty = graph.seen();
        graph.label.setCurve(picture);
        QVERIFY(graph.seen() != empty);
        for (const QRect &place :
             {QRect(-360, 0, 1050, 0), QRect(0, 257, 1050, 256), QRect(700, 0, 1050, 256), QRect(0, -256, 1050, 256)}) {
            graph.label.setGeometry(place);
            QCOMPARE(graph.seen(), empty);
        }
    }

    void anySizeAnywhere_data() {
        QTest::addColumn<QRect>("place");
        // The graph's own error is a small share of a pixel of the picture.
        QTest::newRow("highest") << QRect(0, -8000000, 1050, 16777215);
        QTest::newRow("high") << QRect(0, -50000, 1050, 100000);
        QTest::newRow("largest") << QRect(-5000000, -8000000, 16777215, 16777215);
    }
    void anySizeAnywhere() {
        QFETCH(QRect, place);
        Graph graph;
        graph.label.setCurve(picture);
        graph.label.setGeometry(place);
        QCOMPARE(graph.label.geometry(), place);
        graph.seen();
        // Each point lies on the picture's line: order 1, corner at 335, 18 px per octave, 252 px for 24 dB.
        const QPolygonF line = graph.label.seenLine();
        for (const QPointF &point : line) {
            QVERIFY(point.x() >= -9 && point.x() <= graphSize.width() + 9);
            QVERIFY(point.y() >= -9 && point.y() <= graphSize.height() + 9);
            const double x = (point.x() - place.x()) * 1050 / place.width();
            const double y =
                (4 + 10 * std::log10(1 + std::exp2((335 - x) / 9)) * 252 / 24) * place.height() / 256 + place.y();
            if (point.y() > -7 && point.y() < graphSize.height() + 7) {
                QVERIFY2(qAbs(y - point.y()) < 0.2 * place.height() / 256 + 0.01,
                         qPrintable(QString::number(y - point.y())));
            }
        }
    }

    void uppermostIsBrightAndTheOthersDim() {
        Graph graph;
        CurveLabel other(&graph.frame);
        const QRect place(-360, 0, 1050, 256);
        graph.label.setCurve(picture);
        graph.label.setGeometry(place);
        other.setCurve("left_green_6db");
        other.setGeometry(place.translated(0, 100));
        other.show();
        const QPoint line(400, 4);
        const QPoint otherLine(400, 104);
        QCOMPARE(graph.seen().pixel(line), curveLine(picture)->dimColour);
        QCOMPARE(graph.seen().pixel(otherLine), curveLine("left_green_6db")->colour);
        graph.label.raise();
        QCOMPARE(graph.seen().pixel(line), curveLine(picture)->colour);
        // Under the fill of the bright one.
        QVERIFY(bright(graph.seen().pixel(otherLine)) < bright(curveLine("left_green_6db")->colour) / 1.5);
        other.raise();
        QCOMPARE(graph.seen().pixel(otherLine), curveLine("left_green_6db")->colour);
    }

    void figuresAreBeforeEveryCurve() {
        Graph graph;
        graph.label.setCurve(picture);
        graph.label.setGeometry(-360, 0, 1050, 256);
        QPixmap figures(60, 20);
        figures.fill(Qt::white);
        graph.frame.setFigures(figures);
        const QImage seen = graph.seen();
        for (int y = 0; y < 20; ++y) {
            QCOMPARE(seen.pixel(688 - 8 - 60, y), qRgb(255, 255, 255));
            QCOMPARE(seen.pixel(679, y), qRgb(255, 255, 255));
        }
        QVERIFY(seen.pixel(619, 4) != qRgb(255, 255, 255));
    }

    void dotMarksTheCorner() {
        Graph graph;
        for (const char *file : {picture, "left_green_18db"}) {
            graph.label.setCurve(file);
            graph.label.setGeometry(-85, 21, 1050, 485);
            // -3 dB at column 335 of the picture.
            const QPoint corner(250, 21 + qRound((4 + 3.01 * 252 / 24) * 485 / 256));
            const QImage seen = graph.seen();
            QVERIFY(bright(seen.pixel(corner)) < 120);
            for (const QPoint &side : {QPoint(-5, 0), QPoint(5, 0), QPoint(0, -5), QPoint(0, 5)}) {
                QCOMPARE(seen.pixel(corner + side), curveLine(file)->colour);
            }
        }
    }

    void gridIsSeenThroughTheFill() {
        Graph graph;
        graph.label.setCurve(picture);
        graph.label.setGeometry(-360, 0, 1050, 506);
        const QImage seen = graph.seen();
        QVERIFY(bright(seen.pixel(300, 71)) > bright(seen.pixel(300, 80)) + 20);
    }

    void nothingIsFilledBesideTheLine() {
        Graph graph;
        graph.label.setCurve("left_yellow_18db");
        graph.label.setGeometry(-85, 0, 1050, 506);
        const QImage high = graph.seen();
        graph.label.setGeometry(700, 0, 1050, 506);
        const QImage none = graph.seen();
        // The skirt stands at 230 to 250.
        for (int x = 2; x < 215; x += 3) {
            for (int y : {20, 60, 100, 140, 180}) {
                QCOMPARE(high.pixel(x, y), none.pixel(x, y));
            }
        }
        QVERIFY(high.pixel(300, 60) != none.pixel(300, 60));
        graph.label.setCurve("right_red_18db");
        graph.label.setGeometry(0, 0, 630, 506);
        const QImage low = graph.seen();
        for (int x = 520; x < 680; x += 3) {
            for (int y : {20, 60, 100, 140, 180}) {
                QCOMPARE(low.pixel(x, y), none.pixel(x, y));
            }
        }
    }

    void furthestPlaces() {
        Graph graph;
        const QImage empty = graph.seen();
        graph.label.setCurve(picture);
        for (int y : {-2000000000, 2000000000}) {
            graph.label.setGeometry(-360, y, 1050, 16777215);
            QCOMPARE(graph.label.y(), y);
            QCOMPARE(graph.seen(), empty);
        }
    }
};

PAGE_TEST_MAIN(tst_CurveLabel)
#include "tst_curvelabel.moc"
