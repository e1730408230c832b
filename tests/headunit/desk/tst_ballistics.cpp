// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/meters/ballistics.h"

#include "headunit/audio/engine/filterdesign.h"

#include <QTest>

#include <cmath>

using headunit::Ballistics;
using namespace headunit::engine;

namespace {

/// What a tone of that peak reads over some time, on the front left output.
Meters tone(double seconds, double peak) {
    Meters reading;
    reading.frames = static_cast<uint64_t>(seconds * sampleRate);
    reading.peak[FrontLeft] = static_cast<float>(peak);
    reading.squares[FrontLeft] = static_cast<double>(reading.frames) * peak * peak / 2;
    return reading;
}

bool near(double value, double expected, double tolerance = 0.05) {
    if (std::abs(value - expected) <= tolerance) {
        return true;
    }
    qWarning("%f instead of %f", value, expected);
    return false;
}

}  // namespace

class TestBallistics : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void peakRisesAtOnceAndFallsBy20DecibelsIn1700ms();
    void markIsHeldAndThenFalls();
    void piecesMakeNoDifference();
    void rms();
    void limiter();
    void highestAndClipsUntilReset();
    void rest();
};

void TestBallistics::peakRisesAtOnceAndFallsBy20DecibelsIn1700ms() {
    Ballistics meters;
    QCOMPARE(meters.output(FrontLeft).peak, Ballistics::lowest);
    meters.feed(tone(0.001, 1));
    QVERIFY(near(meters.output(FrontLeft).peak, 0));
    QCOMPARE(meters.output(FrontRight).peak, Ballistics::lowest);
    for (int i = 0; i < 17; ++i) {
        meters.feed(tone(0.1, 0));
    }
    QVERIFY(near(meters.output(FrontLeft).peak, -20));
    meters.feed(tone(0.001, fromDecibels(-6)));
    QVERIFY(near(meters.output(FrontLeft).peak, -6));
}

void TestBallistics::markIsHeldAndThenFalls() {
    Ballistics meters;
    meters.feed(tone(0.01, 1));
    for (int i = 0; i < 15; ++i) {
        meters.feed(tone(0.1, 0));
        QVERIFY(near(meters.output(FrontLeft).held, 0));
    }
    meters.feed(tone(0.17, 0));
    QVERIFY(near(meters.output(FrontLeft).held, -2));
    meters.feed(tone(0.01, fromDecibels(-1)));
    QVERIFY(near(meters.output(FrontLeft).held, -1));
}

/// However often they are asked.
void TestBallistics::piecesMakeNoDifference() {
    Ballistics coarse;
    Ballistics fine;
    coarse.feed(tone(0.01, 1));
    fine.feed(tone(0.01, 1));
    coarse.feed(tone(2, 0));
    for (int i = 0; i < 100; ++i) {
        fine.feed(tone(0.02, 0));
    }
    QVERIFY(near(fine.output(0).peak, coarse.output(0).peak));
    QVERIFY(near(fine.output(0).held, coarse.output(0).held));
}

void TestBallistics::rms() {
    Ballistics meters;
    for (int i = 0; i < 100; ++i) {
        meters.feed(tone(0.033, 0.5));
    }
    QVERIFY(near(meters.output(FrontLeft).rms, -6.02));  // a sine reads as its peak does
    meters.feed(tone(Ballistics::meanSeconds, 0));
    QVERIFY(near(meters.output(FrontLeft).rms, -6.02 - 4.34));
}

void TestBallistics::limiter() {
    Ballistics meters;
    Meters reading = tone(0.03, 1);
    reading.limiterGain = {fromDecibels(-6), 1, fromDecibels(-2)};
    meters.feed(reading);
    QVERIFY(near(meters.pair(0).reduction, -6));
    QVERIFY(near(meters.pair(1).reduction, 0));
    QVERIFY(near(meters.pair(2).held, -2));
    meters.feed(tone(1, 1));
    QVERIFY(near(meters.pair(0).reduction, 0));
    QVERIFY(near(meters.pair(0).held, -6));
    meters.feed(tone(1.35, 1));  // 0.85 s beyond the hold
    QVERIFY(near(meters.pair(0).held, 0));
    QVERIFY(near(meters.pair(0).most, -6));
}

void TestBallistics::highestAndClipsUntilReset() {
    Ballistics meters;
    Meters reading = tone(0.01, 0.5);
    reading.overs[SubRight] = 3;
    meters.feed(reading);
    meters.feed(reading);
    meters.feed(tone(20, 0));
    QVERIFY(near(meters.output(FrontLeft).highest, -6.02));
    QCOMPARE(meters.output(SubRight).overs, 6U);
    meters.reset();
    QCOMPARE(meters.output(FrontLeft).highest, Ballistics::lowest);
    QCOMPARE(meters.output(SubRight).overs, 0U);
}

void TestBallistics::rest() {
    Ballistics meters;
    meters.feed(tone(1, 1));
    meters.rest();
    QCOMPARE(meters.output(FrontLeft).peak, Ballistics::lowest);
    QCOMPARE(meters.output(FrontLeft).rms, Ballistics::lowest);
    QVERIFY(near(meters.output(FrontLeft).highest, 0));
    meters.feed(Meters());
    QCOMPARE(meters.output(FrontLeft).rms, Ballistics::lowest);
}

QTEST_APPLESS_MAIN(TestBallistics)
#include "tst_ballistics.moc"
