// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/response.h"

#include "headunit/audio/engine/filterdesign.h"
#include "headunit/audio/service/soundtables.h"
#include "rendering.h"

#include <QTest>

#include <cmath>
#include <random>

using namespace headunit;
using namespace headunit::engine;
using rendering::neutral;

namespace {

/// Settings of everything at random, the same at every run.
SoundState anySettings(unsigned seed) {
    std::mt19937 random(seed);
    const auto within = [&random](const Range &range) {
        return range.low + static_cast<int>(random() % static_cast<unsigned>(range.high - range.low + 1));
    };
    SoundState state = neutral();
    state.eqType = 16;
    for (int &band : state.customEq) {
        band = within({0, 24});
    }
    state.balance = within({-8, 8});
    state.fader = within({-8, 8});
    state.channelLevel[0] = within({20, 40});
    state.loudness = seed % 2 == 0;
    state.defeat = seed % 5 == 4;
    state.subwooferLevel = within({1, 15});
    state.subwooferPhase = within(ranges::flag);
    state.front = {within({0, 11}), within(ranges::slope), within(ranges::filterLevel)};
    state.rear = {within({0, 5}), within(ranges::slope), within(ranges::filterLevel)};
    state.subwoofer = {within({0, 5}), within(ranges::slope), within(ranges::filterLevel)};
    for (int &delay : state.delay) {
        delay = within(ranges::delay);
    }
    return state;
}

}  // namespace

class TestResponse : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void agreesWithWhatIsMeasured_data();
    void agreesWithWhatIsMeasured();
    void groupDelayIsTheSlopeOfThePhase();
    void groupDelayOfSilence();
    void highestGainIsFound();
    void highestGainOfSilence();
};

void TestResponse::agreesWithWhatIsMeasured_data() {
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 0; seed < 10; ++seed) {
        QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }
}

/// Within 0.01 dB, and as near as the samples' own precision far below.
void TestResponse::agreesWithWhatIsMeasured() {
    QFETCH(unsigned, seed);
    const SoundState state = anySettings(seed);
    std::vector<double> frequencies;
    for (double hz = 20; hz < 20000; hz *= 1.31) {
        frequencies.push_back(hz);
    }
    const auto measured = measure(state, frequencies);
    const auto calculated = calculateResponse(designParameters(state), frequencies);
    QCOMPARE(calculated.size(), measured.size());
    const double tolerance = fromDecibels(0.01) - 1;
    constexpr double precision = 1e-6;
    for (size_t i = 0; i < measured.size(); ++i) {
        QCOMPARE(calculated[i].hz, frequencies[i]);
        for (size_t output = 0; output <= outputCount; ++output) {
            const bool sum = output == outputCount;
            const auto expected = sum ? measured[i].sum() : measured[i].outputs[output];
            const auto found = sum ? calculated[i].sum() : calculated[i].outputs[output];
            QVERIFY2(std::abs(found - expected) <= tolerance * std::abs(expected) + precision,
                     qPrintable(QString("%1 Hz, output %2: %3 dB instead of %4")
                                    .arg(frequencies[i])
                                    .arg(output)
                                    .arg(toDecibels(std::abs(found)))
                                    .arg(toDecibels(std::abs(expected)))));
        }
    }
}

void TestResponse::groupDelayIsTheSlopeOfThePhase() {
    const SoundState state = anySettings(3);
    const Parameters parameters = designParameters(state);
    for (double hz = 25; hz < 19000; hz *= 1.7) {
        const double aside = hz * 1e-5;
        const auto points = calculateResponse(parameters, {hz - aside, hz + aside});
        const GroupDelays delays = calculateGroupDelays(parameters, {hz}).front();
        for (size_t output = 0; output <= outputCount; ++output) {
            const bool sum = output == outputCount;
            const auto before = sum ? points[0].sum() : points[0].outputs[output];
            const auto after = sum ? points[1].sum() : points[1].outputs[output];
            const double slope = -std::arg(after / before) / (2 * pi * 2 * aside);
            QVERIFY2(std::abs(delays[output] - slope) < 1e-6 + 1e-4 * std::abs(slope),
                     qPrintable(QString("%1 Hz: %2 s, not %3").arg(hz).arg(delays[output]).arg(slope)));
        }
    }
}

void TestResponse::groupDelayOfSilence() {
    SoundState state = neutral();
    state.subwooferLevel = 0;
    const GroupDelays delays = calculateGroupDelays(designParameters(state), {100}).front();
    QCOMPARE(delays[FrontLeft], 0.0);
    QVERIFY(std::isnan(delays[SubLeft]));
    state.channelLevel[0] = 0;
    const GroupDelays none = calculateGroupDelays(designParameters(state), {100}).front();
    for (const double delay : none) {
        QVERIFY(std::isnan(delay));
    }
}

void TestResponse::highestGainIsFound() {
    SoundState state = neutral();
    state.eqType = 16;
    state.customEq.fill(12);
    state.customEq[5] = 24;      // +12 dB at 630 Hz
    state.sourceGain[0] = 13;    // +3 dB
    state.channelLevel[0] = 36;  // -6 dB
    state.activeSource = 0;
    const HighestGain highest = highestGain(designParameters(state));
    QVERIFY2(std::abs(toDecibels(highest.gain) - 9) < 0.1, qPrintable(QString::number(toDecibels(highest.gain))));
    QVERIFY2(std::abs(highest.hz / 630 - 1) < 0.02, qPrintable(QString::number(highest.hz)));
    QCOMPARE(highest.output, size_t(FrontLeft));
    state.subwooferLevel = 15;  // +7.5 dB, no low-pass
    QCOMPARE(highestGain(designParameters(state)).output, size_t(SubLeft));
    QVERIFY(std::abs(toDecibels(highestGain(designParameters(state)).gain) - 16.5) < 0.1);
}

void TestResponse::highestGainOfSilence() {
    SoundState state = neutral();
    state.channelLevel[0] = 0;
    QCOMPARE(highestGain(designParameters(state)).gain, 0.0);
}

QTEST_APPLESS_MAIN(TestResponse)
#include "tst_response.moc"
