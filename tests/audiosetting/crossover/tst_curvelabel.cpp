#include "crossover/curvegraph.h"
#include "crossover/curvelabel.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QPainter>
#include <QtMath>

namespace {

const char picture[] = "left_yellow_6db";
const char otherPicture[] = "right_red_18db";
const QSize graph(688, 257);

QString fileOf(const char *name) {
    return QStringLiteral(":/corvina_icon/%1.png").arg(QLatin1String(name));
}

/// What is seen of a picture that fills \a place, by a plain scaling of the whole.
QImage expected(const char *name, const QRect &place) {
    QImage image(graph, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.drawImage(place.topLeft(),
                      QImage(fileOf(name)).scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return image;
}

/// Mean difference of the two, in levels of 255.
double difference(const QImage &a, const QImage &b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
        }
    }
    return sum / 3 / (a.width() * a.height());
}

}  // namespace

class tst_CurveLabel : public PageTest {
    Q_OBJECT

    struct Graph {
        CurveGraph frame{nullptr};
        CurveLabel label{&frame};

        Graph() {
            QPixmap ground(graph);
            ground.fill(Qt::black);
            frame.setGround(ground);
            frame.setFixedSize(graph);
            show(&frame);
        }
        QImage seen() { return frame.grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied); }
    };

private slots:
    void wholePictureFillsTheLabel_data() {
        QTest::addColumn<QRect>("place");
        QTest::newRow("as drawn") << QRect(-360, 0, 1050, 256);
        QTest::newRow("default") << QRect(-360, 0, 1050, 506);
        QTest::newRow("lowered") << QRect(-85, 105, 1050, 401);
        QTest::newRow("flat") << QRect(40, 252, 1050, 4);
        QTest::newRow("one pixel") << QRect(40, 256, 1050, 1);
        QTest::newRow("half") << QRect(0, 20, 1050, 128);
        QTest::newRow("narrow") << QRect(0, 0, 390, 256);
        QTest::newRow("narrow and high") << QRect(0, 42, 630, 464);
        QTest::newRow("above") << QRect(-215, -300, 1050, 512);
        QTest::newRow("grown") << QRect(-360, -2, 1050, 556);
    }
    void wholePictureFillsTheLabel() {
        QFETCH(QRect, place);
        Graph graph;
        for (const char *file : {picture, otherPicture}) {
            graph.label.setCurve(file);
            graph.label.setGeometry(place);
            const double found = difference(graph.seen(), expected(file, place));
            QVERIFY2(found < 1.0, qPrintable(QStringLiteral("mean difference %1").arg(found)));
        }
    }

    void isTheLabelsPixmapToo() {
        Graph graph;
        graph.label.setCurve(picture);
        QCOMPARE(graph.label.pixmap(Qt::ReturnByValue).toImage(), QPixmap(fileOf(picture)).toImage());
    }

    void followsItsGeometryAndPicture() {
        Graph graph;
        graph.label.setCurve(picture);
        const QVector<QRect> places{{-360, 0, 1050, 506}, {-360, 21, 1050, 485}, {-330, 21, 1050, 485},
                                    {-330, 0, 1050, 506}, {0, 0, 1050, 506},     {0, 0, 700, 300}};
        for (const QRect &place : places) {
            graph.label.setGeometry(place);
            QVERIFY(difference(graph.seen(), expected(picture, place)) < 1.0);
        }
        graph.label.setCurve(otherPicture);
        QVERIFY(difference(graph.seen(), expected(otherPicture, places.last())) < 1.0);
        graph.label.setCurve(picture);
        QVERIFY(difference(graph.seen(), expected(picture, places.last())) < 1.0);
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
        // The picture's line through the graph: 1 px of it covers many thousands here.
        QTest::newRow("highest") << QRect(0, -8000000, 1050, 16777215);
        QTest::newRow("high") << QRect(0, -50000, 1050, 100000);
        QTest::newRow("largest") << QRect(-500, -8000000, 16777215, 16777215);
    }
    void anySizeAnywhere() {
        QFETCH(QRect, place);
        Graph graph;
        graph.label.setCurve(picture);
        graph.label.setGeometry(place);
        QCOMPARE(graph.label.geometry(), place);
        const QImage seen = graph.seen();
        // Each pixel seen is that of the picture at its share of the label, or what lies between two of them.
        const QImage whole = expected(picture, QRect(0, 0, 1050, 256));
        const QImage source = QImage(fileOf(picture)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        for (int x : {10, 344, 600}) {
            const double sourceX = (x - place.x() + 0.5) / place.width() * source.width() - 0.5;
            const double sourceY = (128.5 - place.y()) / place.height() * source.height() - 0.5;
            double mixed = 0;
            for (int dy : {0, 1}) {
                for (int dx : {0, 1}) {
                    const int px = qBound(0, qFloor(sourceX) + dx, source.width() - 1);
                    const int py = qBound(0, qFloor(sourceY) + dy, source.height() - 1);
                    const double wx = dx ? sourceX - qFloor(sourceX) : 1 - (sourceX - qFloor(sourceX));
                    const double wy = dy ? sourceY - qFloor(sourceY) : 1 - (sourceY - qFloor(sourceY));
                    mixed += wx * wy * qRed(source.pixel(px, py));
                }
            }
            const int red = qRed(seen.pixel(x, 128));
            QVERIFY2(qAbs(red - mixed) <= 3,
                     qPrintable(QStringLiteral("%1, not %2, at %3").arg(red).arg(mixed).arg(x)));
        }
    }

    void uppermostIsPaintedLast() {
        Graph graph;
        CurveLabel other(&graph.frame);
        const QRect place(-360, 0, 1050, 256);
        graph.label.setCurve(picture);
        graph.label.setGeometry(place);
        other.setCurve("left_green_6db");
        other.setGeometry(place);
        other.show();
        // On the line, which is not transparent.
        const QPoint line(600, 4);
        const auto greenest = [&] {
            const QRgb seen = graph.seen().pixel(line);
            return qGreen(seen) > qRed(seen);
        };
        QVERIFY(greenest());
        graph.label.raise();
        QVERIFY(!greenest());
        other.raise();
        QVERIFY(greenest());
    }

    void groundIsSeenThroughTheCurves() {
        Graph graph;
        graph.label.setCurve(picture);
        graph.label.setGeometry(-360, 0, 1050, 506);
        const QImage onBlack = graph.seen();
        QPixmap white(::graph);
        white.fill(Qt::white);
        graph.frame.setGround(white);
        const QImage onWhite = graph.seen();
        QVERIFY(qBlue(onWhite.pixel(344, 250)) > qBlue(onBlack.pixel(344, 250)) + 100);
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
