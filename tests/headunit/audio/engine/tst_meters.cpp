// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/meters.h"

#include <QTest>

#include <cmath>
#include <vector>

using namespace headunit::engine;

class TestMeters : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void peakOfEachOutput();
    void powerOfEachOutput();
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

/// However many frames come at a time.
void TestMeters::powerOfEachOutput() {
    constexpr size_t frames = 1001;
    std::vector<float> samples(frames * outputCount);
    std::array<double, outputCount> expected{};
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<float>(std::sin(0.37 * double(i))) * static_cast<float>(i % outputCount) / 5;
        expected[i % outputCount] += double(samples[i]) * double(samples[i]);
    }
    for (const size_t piece : {1, 2, 7, 256, 1001}) {
        Meters meters;
        for (size_t done = 0; done < frames; done += piece) {
            meters.add(&samples[done * outputCount], std::min<size_t>(piece, frames - done));
        }
        QCOMPARE(meters.frames, uint64_t(frames));
        for (size_t output = 0; output < outputCount; ++output) {
            QVERIFY(std::abs(meters.squares[output] - expected[output]) <= 1e-5 * expected[output]);
        }
    }
}

void TestMeters::longerTime() {
    Meters meters;
    meters.frames = 10;
    meters.squares = {1, 2, 3, 4, 5, 6};
    meters.overs = {0, 1, 0, 2, 0, 0};
    meters.peak = {0, 0.5F, 0, 0.25F, 1, 0};
    meters.limiterGain = {0.5, 0.75, 1};
    Meters other;
    other.frames = 5;
    other.squares = {1, 1, 1, 1, 1, 1};
    other.overs = {1, 1, 0, 0, 0, 0};
    other.peak = {0.5F, 0.25F, 0, 0.5F, 0, 0};
    other.limiterGain = {0.75, 0.5, 1};
    meters.add(other);
    QCOMPARE(meters.frames, uint64_t(15));
    QVERIFY((meters.squares == std::array<double, outputCount>{2, 3, 4, 5, 6, 7}));
    QVERIFY((meters.overs == std::array<unsigned, outputCount>{1, 2, 0, 2, 0, 0}));
    QVERIFY(meters.peak == (std::array<float, outputCount>{0.5F, 0.5F, 0, 0.5F, 1, 0}));
    QVERIFY((meters.limiterGain == std::array<double, pairCount>{0.5, 0.5, 1}));
    other.add(meters);
    QVERIFY(other.peak == meters.peak);
    QVERIFY(other.limiterGain == meters.limiterGain);
}

QTEST_APPLESS_MAIN(TestMeters)
#include "tst_meters.moc"
