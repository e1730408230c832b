// SPDX-License-Identifier: Apache-2.0
#include "difference.h"

#include <QDir>
#include <QTest>

// What the comparison of the tour's pictures finds, and what it lets pass.

class TestDifference : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aLostTextIsFound_data();
    void aLostTextIsFound();
    void theStepsOfAReferencePass();
    void theLimitIsPerTile();
    void anotherSizeIsFound();
};

void TestDifference::aLostTextIsFound_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("text");
    QTest::newRow("number of an EQ knob") << "eq.png" << QRect(168, 275, 17, 19);
    QTest::newRow("caption of an EQ band") << "eq.png" << QRect(630, 465, 46, 24);
    QTest::newRow("a delay") << "timing_set.png" << QRect(248, 232, 52, 32);
    QTest::newRow("a caption of the crossover") << "crossover_set.png" << QRect(236, 458, 66, 30);
}

void TestDifference::aLostTextIsFound() {
    QFETCH(QString, name);
    QFETCH(QRect, text);
    const QImage whole = QImage(QDir(REFERENCES).filePath(name)).convertToFormat(QImage::Format_RGB32);
    QVERIFY(!whole.isNull());
    // Each line takes on the colour left of the text, as the background would be without it.
    QImage blank = whole;
    for (int y = text.top(); y <= text.bottom(); ++y) {
        for (int x = text.left(); x <= text.right(); ++x) {
            blank.setPixel(x, y, whole.pixel(text.left() - 1, y));
        }
    }
    const Difference found = difference(whole, blank);
    QVERIFY2(found.tooMuch(), qPrintable(QString::number(found.mostInTile)));
    QVERIFY(text.contains(found.within));
}

void TestDifference::theStepsOfAReferencePass() {
    QImage ramp(256, 8, QImage::Format_RGB32);
    for (int y = 0; y < ramp.height(); ++y) {
        for (int x = 0; x < ramp.width(); ++x) {
            ramp.setPixel(x, y, qRgb(x, 255 - x, (x + 128) % 256));
        }
    }
    const QImage kept = reference(ramp);
    QVERIFY(kept.convertToFormat(QImage::Format_RGB32) != ramp);
    QCOMPARE(difference(kept, ramp).pixels, 0);
}

void TestDifference::theLimitIsPerTile() {
    QImage expected(320, 320, QImage::Format_RGB32);
    expected.fill(Qt::black);
    // As many as pass, at the far end, where the last tile ends; and so in each tile that shares nothing with it.
    QImage actual = expected;
    const auto mark = [&actual](const QPoint &from, int count) {
        for (int i = 0; i < count; ++i) {
            actual.setPixel(from + QPoint(i % 8, i / 8), qRgb(200, 200, 200));
        }
    };
    for (int place = 8; place < 320; place += 2 * tileSize) {
        mark(QPoint(place, place), tileLimit);
    }
    Difference found = difference(expected, actual);
    QCOMPARE(found.pixels, 3 * tileLimit);
    QCOMPARE(found.mostInTile, tileLimit);
    QVERIFY(!found.tooMuch());
    // Over the corner of four tiles they count as in one.
    actual = expected;
    mark(QPoint(tileSize - 4, tileSize - 3), tileLimit + 1);
    found = difference(expected, actual);
    QCOMPARE(found.mostInTile, tileLimit + 1);
    QVERIFY(found.tooMuch());
    QCOMPARE(found.within.topLeft(), QPoint(tileSize - 4, tileSize - 3));
    QVERIFY(found.tile.contains(found.within));
    // The last rows and columns count too.
    actual = expected;
    mark(QPoint(312, 312), tileLimit + 1);
    QVERIFY(difference(expected, actual).tooMuch());
}

void TestDifference::anotherSizeIsFound() {
    QImage expected(64, 64, QImage::Format_RGB32);
    expected.fill(Qt::black);
    QVERIFY(!difference(expected, expected).tooMuch());
    QVERIFY(difference(expected, expected.copy(0, 0, 63, 64)).tooMuch());
    QVERIFY(difference(expected, QImage()).tooMuch());
}

QTEST_APPLESS_MAIN(TestDifference)
#include "tst_difference.moc"
