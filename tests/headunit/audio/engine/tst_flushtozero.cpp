// SPDX-License-Identifier: Apache-2.0
// Numbers so small that the processor computes them many times slower, as filters make them in a pause.

#include "headunit/audio/engine/flushtozero.h"

#include "headunit/audio/engine/engine.h"
#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

bool isDenormal(double value) {
    return std::fpclassify(value) == FP_SUBNORMAL;
}

/// How many of a resonant filter's states are denormal at some time of its dying away.
int denormalsInAPause() {
    ToneGroup group{};
    for (auto &section : group.coefficients) {
        std::fill_n(section[0], groupLanes, 1.0);
        std::fill_n(section[3], groupLanes, -1.5);
        std::fill_n(section[4], groupLanes, 0.7);
    }
    group.states[0][0][0] = 1;
    int count = 0;
    for (int block = 0; block < 5000; ++block) {
        double silence[2 * stereo] = {};
        plainKernel.tone(&group, silence, 2);
        for (const auto &section : group.states) {
            for (const auto &state : section) {
                count += isDenormal(state[0]);
            }
        }
    }
    return count;
}

}  // namespace

class TestFlushToZero : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void denormalsWouldCome();
    void noDenormals();
    void leavesTheModeAsItWas();
};

void TestFlushToZero::denormalsWouldCome() {
    QVERIFY(denormalsInAPause() > 0);
    const FlushToZero flush;
    QCOMPARE(denormalsInAPause(), 0);
}

void TestFlushToZero::noDenormals() {
    Engine engine;
    SoundState state = neutral();
    state.front = {1, 3, 12};
    state.eqType = 3;
    engine.setParameters(designParameters(state));
    Stereo signal(480000 * stereo);
    signal[0] = signal[1] = 1;
    std::vector<float> out(signal.size() / stereo * outputCount);
    Inputs inputs{};
    inputs[MainInput] = signal.data();
    engine.process(inputs, out.data(), signal.size() / stereo);
    for (const float sample : out) {
        QVERIFY(!isDenormal(static_cast<double>(sample)) && std::fpclassify(sample) != FP_SUBNORMAL);
    }
    QCOMPARE(out.back(), 0.0F);
}

void TestFlushToZero::leavesTheModeAsItWas() {
    Engine engine;
    engine.setParameters(designParameters(neutral()));
    Stereo signal = noise(100);
    std::vector<float> out(100 * outputCount);
    Inputs inputs{};
    inputs[MainInput] = signal.data();
    engine.process(inputs, out.data(), 100);
    volatile double tiny = 1e-308;
    tiny = tiny / 16;
    QVERIFY(isDenormal(tiny));
}

QTEST_APPLESS_MAIN(TestFlushToZero)
#include "tst_flushtozero.moc"
