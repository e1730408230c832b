// SPDX-License-Identifier: Apache-2.0
#include "timing/delayunits.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"
#include "timing/audiosetting_right_timing_widget.h"

#include <limits>

using namespace audiosetting::timing;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

/// 1.339 inches a step, rounded half up, in whole numbers only. No product of 0 to 99 ends in exactly one half.
int inchesByWholeNumbers(int delay) {
    return (delay * 1339 + 500) / 1000;
}

/// Tenths, written as a person would: no point where it is not needed.
QString tenths(int delay) {
    const QString whole = QString::number(delay / 10);
    return delay % 10 == 0 ? whole : whole + QLatin1Char('.') + QString::number(delay % 10);
}

}  // namespace

class tst_DelayUnits : public PageTest {
    Q_OBJECT

private slots:
    void everyDelay() {
        for (int delay = 0; delay <= 99; ++delay) {
            QCOMPARE(millisecondsText(delay), tenths(delay));
            QCOMPARE(inchesOfDelay(delay), inchesByWholeNumbers(delay));
        }
    }

    void knownDelays_data() {
        QTest::addColumn<int>("delay");
        QTest::addColumn<QString>("ms");
        QTest::addColumn<int>("inches");
        QTest::newRow("none") << 0 << "0" << 0;
        QTest::newRow("one step") << 1 << "0.1" << 1;
        QTest::newRow("rounded up") << 5 << "0.5" << 7;
        QTest::newRow("one millisecond") << 10 << "1" << 13;
        QTest::newRow("most") << 99 << "9.9" << 133;
        QTest::newRow("negative") << -5 << "-0.5" << -7;
        QTest::newRow("minus one step") << -1 << "-0.1" << -1;
        QTest::newRow("one half") << 500 << "50" << 670;
        QTest::newRow("one half, away from zero") << -500 << "-50" << -670;
        QTest::newRow("single precision decides") << 21441 << "2144.1" << 28710;
        QTest::newRow("beyond") << 100 << "10" << 134;
        QTest::newRow("six digits") << 12345678 << "1.23457e+06" << 16530863;
        QTest::newRow("highest") << highest << "2.14748e+08" << highest;
        QTest::newRow("lowest") << lowest << "-2.14748e+08" << lowest;
    }
    void knownDelays() {
        QFETCH(int, delay);
        QFETCH(QString, ms);
        QFETCH(int, inches);
        QCOMPARE(millisecondsText(delay), ms);
        if (delay == 12345678) {
            // Single precision has 24 bits: one part in 16 million.
            QVERIFY(qAbs(inchesOfDelay(delay) - inches) <= 1);
        } else {
            QCOMPARE(inchesOfDelay(delay), inches);
        }
    }

    void inchesToOtherUnits_data() {
        QTest::addColumn<int>("inches");
        QTest::addColumn<int>("milliseconds");
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("delay");
        QTest::newRow("none") << 0 << 0 << 0 << 0.0;
        QTest::newRow("less than a millisecond") << 13 << 0 << 23 << 13 * 2.54 / 34.0;
        QTest::newRow("a millisecond") << 14 << 1 << 25 << 14 * 2.54 / 34.0;
        QTest::newRow("most") << 133 << 9 << 238 << 133 * 2.54 / 34.0;
        QTest::newRow("toward zero") << -13 << 0 << -23 << -13 * 2.54 / 34.0;
        QTest::newRow("negative") << -14 << -1 << -25 << -14 * 2.54 / 34.0;
        QTest::newRow("highest") << highest << 160379659 << highest << 160429660.68764704;
        QTest::newRow("lowest") << lowest << -160379660 << lowest << -160429660.76235294;
    }
    void inchesToOtherUnits() {
        QFETCH(int, inches);
        QFETCH(int, milliseconds);
        QFETCH(int, steps);
        QFETCH(double, delay);
        QCOMPARE(millisecondsOfInches(inches), milliseconds);
        QCOMPARE(stepsOfInches(inches), steps);
        QVERIFY(qAbs(delayOfInches(inches) - delay) < 0.01);
    }

    void pageOffersThem() {
        Audiosetting_right_timing_widget page(nullptr);
        int result = 0;
        double delay = 0;
        QVERIFY(QMetaObject::invokeMethod(&page, "onMsSwapInch", Q_RETURN_ARG(int, result), Q_ARG(int, 5)));
        QCOMPARE(result, 7);
        QVERIFY(QMetaObject::invokeMethod(&page, "onInchSwapMs", Q_RETURN_ARG(int, result), Q_ARG(int, 133)));
        QCOMPARE(result, 9);
        QVERIFY(QMetaObject::invokeMethod(&page, "onInchToVal", Q_RETURN_ARG(int, result), Q_ARG(int, 133)));
        QCOMPARE(result, 238);
        QVERIFY(QMetaObject::invokeMethod(&page, "onInchToDelayMs", Q_RETURN_ARG(double, delay), Q_ARG(int, 34)));
        QCOMPARE(delay, 2.54);
    }
};

PAGE_TEST_MAIN(tst_DelayUnits)
#include "tst_delayunits.moc"
