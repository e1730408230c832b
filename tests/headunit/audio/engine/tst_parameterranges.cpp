// SPDX-License-Identifier: Apache-2.0
// Settings beyond their ranges, which no service lets pass, and what the engine makes of them nevertheless.

#include "headunit/audio/engine/parameters.h"
#include "rendering.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using namespace headunit;
using namespace headunit::engine;
using rendering::neutral;

class TestParameterRanges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void beyondTheRangeIsItsEnd();
    void whatDoesNotExistIsOff();
    void anyValueIsSafe();
};

void TestParameterRanges::beyondTheRangeIsItsEnd() {
    struct Control {
        const char *name;
        int low;
        int high;
        void (*set)(SoundState &state, int value);
    };
    using S = SoundState &;
    const Control controls[] = {
        {"balance", -15, 15, [](S s, int value) { s.balance = value; }},
        {"fader", -15, 15, [](S s, int value) { s.fader = value; }},
        {"channel levels", 0, 40, [](S s, int value) { s.channelLevel.fill(value); }},
        {"main level under loudness", 0, 40,
         [](S s, int value) {
             s.loudness = true;
             s.channelLevel[0] = value;
         }},
        {"source gains", 0, 20, [](S s, int value) { s.sourceGain.fill(value); }},
        {"bands", 0, 24, [](S s, int value) { s.customEq.fill(value); }},
        {"subwoofer level", 0, 15, [](S s, int value) { s.subwooferLevel = value; }},
        {"delays", 0, 99, [](S s, int value) { s.delay.fill(value); }},
        {"slopes", 1, 3,
         [](S s, int value) {
             s.front = {4, value, 12};
             s.rear = s.subwoofer = {3, value, 12};
         }},
        {"filter levels", 0, 12, [](S s, int value) { s.front.level = s.rear.level = s.subwoofer.level = value; }}};
    for (const Control &control : controls) {
        const auto at = [&control](int value) {
            SoundState state = neutral();
            control.set(state, value);
            return designParameters(state);
        };
        const auto same = [&at](int value, int other) {
            return at(value).inputGain == at(other).inputGain && at(value).chain == at(other).chain;
        };
        QVERIFY2(!same(control.low, control.low + 1) && !same(control.high, control.high - 1), control.name);
        for (const int below : {control.low - 1, control.low - 100, std::numeric_limits<int>::min()}) {
            QVERIFY2(same(below, control.low), control.name);
        }
        for (const int above : {control.high + 1, control.high + 100, std::numeric_limits<int>::max()}) {
            QVERIFY2(same(above, control.high), control.name);
        }
    }
}

void TestParameterRanges::whatDoesNotExistIsOff() {
    const ChainParameters flat = designParameters(neutral()).chain;
    for (const int beyond : {-1, 6, 12, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        SoundState state = neutral();
        state.rear = state.subwoofer = {beyond, 3, 12};
        state.front = {beyond == 6 ? 12 : beyond, 3, 12};
        QVERIFY(designParameters(state).chain == flat);
        state = neutral();
        state.sourceGain.fill(20);
        state.activeSource = beyond == 6 ? SoundState::sources : beyond;
        QVERIFY(designParameters(state).inputGain[MainInput] == 1.0);
    }
}

void TestParameterRanges::anyValueIsSafe() {
    std::mt19937 random(3);
    const auto any = [&random] {
        const int extremes[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1};
        return random() % 2 ? extremes[random() % 3] : static_cast<int>(random());
    };
    for (int i = 0; i < 2000; ++i) {
        SoundState state;
        state.eqType = any();
        state.balance = any();
        state.fader = any();
        state.activeSource = any();
        state.loudness = random() % 2;
        state.defeat = random() % 2;
        state.subwooferLevel = any();
        state.subwooferPhase = any();
        for (CrossoverFilter *filter : {&state.front, &state.rear, &state.subwoofer}) {
            *filter = {any(), any(), any()};
        }
        const auto fill = [&any](auto &values) {
            for (int &value : values) {
                value = any();
            }
        };
        fill(state.customEq);
        fill(state.channelLevel);
        fill(state.sourceGain);
        fill(state.delay);
        const Parameters parameters = designParameters(state);
        for (const double gain : parameters.inputGain) {
            QVERIFY(gain >= 0 && gain <= fromDecibels(10.001));
        }
        for (size_t output = 0; output < outputCount; ++output) {
            QVERIFY(parameters.chain.placement[output] >= 0 && parameters.chain.placement[output] <= 1);
            QVERIFY(std::abs(parameters.chain.gain[output]) <= fromDecibels(7.501));
            QVERIFY(parameters.chain.delay[output] >= 0 && parameters.chain.delay[output] <= 475);
        }
        for (const Biquad &section : parameters.chain.tone) {
            QVERIFY(std::isfinite(section.b0 + section.b1 + section.b2 + section.a1 + section.a2));
        }
    }
}

QTEST_APPLESS_MAIN(TestParameterRanges)
#include "tst_parameterranges.moc"
