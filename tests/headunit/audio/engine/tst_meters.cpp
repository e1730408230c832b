// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/meters.h"

#include <QTest>

using namespace headunit::engine;

class TestMeters : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void peakOfEachOutput();
    void longerTime();
};

void TestMeters::peakOfEachOutput() {
    Meters meters;
    QVERIFY(meters.peak == (std::array<float, outputCount>{}));
    QVERIFY((meters.limiterGain == std::array<double, pairCount>{1, 1, 1}));
    const float samples[2][outputCount] = {{0.5F, -0.25F, 0, 0, 0.125F, -1}, {-0.75F, 0.125F, 0, -0.5F, 0.125F, 1}};
    meters.add(&samples[0][0], 2);
    QVERIFY(meters.peak == (std::array<float, outputCount>{0.75F, 0.25F, 0, 0.5F, 0.125F, 1}));
    meters.add(&samples[0][0], 1);
    QVERIFY(meters.peak == (std::array<float, outputCount>{0.75F, 0.25F, 0, 0.5F, 0.125F, 1}));
    QVERIFY((meters.limiterGain == std::array<double, pairCount>{1, 1, 1}));
}

void TestMeters::longerTime() {
    Meters meters;
    meters.peak = {0, 0.5F, 0, 0.25F, 1, 0};
    meters.limiterGain = {0.5, 0.75, 1};
    Meters other;
    other.peak = {0.5F, 0.25F, 0, 0.5F, 0, 0};
    other.limiterGain = {0.75, 0.5, 1};
    meters.add(other);
    QVERIFY(meters.peak == (std::array<float, outputCount>{0.5F, 0.5F, 0, 0.5F, 1, 0}));
    QVERIFY((meters.limiterGain == std::array<double, pairCount>{0.5, 0.5, 1}));
    other.add(meters);
    QVERIFY(other.peak == meters.peak);
    QVERIFY(other.limiterGain == meters.limiterGain);
}

QTEST_APPLESS_MAIN(TestMeters)
#include "tst_meters.moc"
