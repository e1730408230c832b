// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/measurement.h"

#include "headunit/audio/engine/filterdesign.h"
#include "rendering.h"

#include <QTest>

#include <cmath>

using namespace headunit::engine;
using rendering::neutral;
using rendering::SoundState;

namespace {

bool isNear(std::complex<double> value, std::complex<double> expected, double tolerance = 1e-4) {
    if (std::abs(value - expected) <= tolerance) {
        return true;
    }
    qWarning("%f %+fi instead of %f %+fi", value.real(), value.imag(), expected.real(), expected.imag());
    return false;
}

/// The complex factor that a delay of so many samples gives to a tone.
std::complex<double> late(int samples, double hz) {
    return std::polar(1.0, -2 * pi * hz * samples / sampleRate);
}

}  // namespace

class TestMeasurement : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void neutralIsOneEverywhere();
    void magnitudeAndPhase();
    void loudSettingsAreNotLimited();
    void everyInput();
    void arrival();
    void frequencies();
};

void TestMeasurement::neutralIsOneEverywhere() {
    for (const MeasuredPoint &point : measure(neutral(), {20, 1000, 20000})) {
        for (const auto &output : point.outputs) {
            QVERIFY(isNear(output, 1, 1e-9));
        }
        QVERIFY(isNear(point.sum(), static_cast<double>(outputCount), 1e-8));
    }
}

void TestMeasurement::magnitudeAndPhase() {
    SoundState state = neutral();
    state.front = {1, 3, 12};  // 25 Hz, which takes longest to die away
    state.rear = {5, 2, 9};
    state.subwoofer = {3, 3, 12};
    state.subwooferPhase = 1;
    state.balance = 4;
    state.delay = {0, 5, 10, 99, 3, 0};
    constexpr int samples[outputCount] = {0, 24, 48, 475, 14, 0};
    const double left = fromDecibels(-8);
    const double gains[outputCount] = {left, 1, left * fromDecibels(-3), fromDecibels(-3), -left, -1};
    const CrossoverSections sections[] = {butterworthHighPass(3, 25), butterworthHighPass(2, 250),
                                          butterworthLowPass(3, 63)};
    const std::vector<double> asked = {20, 63, 250, 1234.5, 20000};
    const std::vector<MeasuredPoint> points = measure(state, asked);
    QCOMPARE(points.size(), asked.size());
    for (size_t i = 0; i < asked.size(); ++i) {
        QVERIFY(points[i].hz == asked[i]);
        std::complex<double> sum = 0;
        for (size_t output = 0; output < outputCount; ++output) {
            const CrossoverSections &filter = sections[output / stereo];
            const auto expected = gains[output] * late(samples[output], asked[i]) * response(filter[0], asked[i]) *
                                  response(filter[1], asked[i]);
            QVERIFY(isNear(points[i].outputs[output], expected));
            sum += expected;
        }
        QVERIFY(isNear(points[i].sum(), sum, 1e-3));
    }
}

void TestMeasurement::loudSettingsAreNotLimited() {
    SoundState state = neutral();
    state.sourceGain[0] = 20;
    state.customEq.fill(24);
    const MeasuredPoint point = measure(state, {1000}).front();
    QVERIFY(isNear(std::abs(point.outputs[FrontLeft]), fromDecibels(10 + 12), 0.01));
}

void TestMeasurement::everyInput() {
    SoundState state = neutral();
    state.channelLevel = {40, 38, 36, 34, 32, 40, 30, 40};
    constexpr double decibels[inputCount] = {0, -3, -6, -9, -12, -15, 0};
    for (size_t input = 0; input < inputCount; ++input) {
        const MeasuredPoint point = measure(state, {1000}, static_cast<Input>(input)).front();
        for (size_t output = 0; output < outputCount; ++output) {
            const bool heard = input == MainInput || output <= FrontRight;
            QVERIFY(isNear(point.outputs[output], heard ? fromDecibels(decibels[input]) : 0, 1e-6));
        }
    }
}

void TestMeasurement::arrival() {
    SoundState state = neutral();
    QVERIFY((measureArrival(state) == std::array<int, outputCount>{}));
    state.delay = {1, 2, 50, 99, 0, 0};
    state.subwooferLevel = 0;
    QVERIFY((measureArrival(state) == std::array<int, outputCount>{5, 10, 240, 475, -1, -1}));
}

void TestMeasurement::frequencies() {
    const std::vector<double> list = audibleFrequencies();
    constexpr size_t perOctave = 24;
    constexpr double quarterOfLongestDelay = 25.3;  // Hz: of a turn, of 9.9 ms
    QVERIFY(list.front() == 20.0);
    QVERIFY(list.back() <= 20000 && list.back() > 20000 - quarterOfLongestDelay);
    for (size_t i = 1; i < list.size(); ++i) {
        QVERIFY(list[i] > list[i - 1] && list[i] - list[i - 1] < quarterOfLongestDelay);
        if (i >= perOctave) {
            QVERIFY(list[i] / list[i - perOctave] < 2 + 1e-9);
        }
    }
}

QTEST_APPLESS_MAIN(TestMeasurement)
#include "tst_measurement.moc"
