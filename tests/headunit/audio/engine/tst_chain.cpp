// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/chain.h"

#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

/// Gain in dB that the three filters should have, from the analogue formula.
double butterworth(int order, double hz, double cutOff, bool highPass) {
    const double ratio = std::tan(pi * hz / sampleRate) / std::tan(pi * cutOff / sampleRate);
    return -10 * std::log10(1 + std::pow(highPass ? 1 / ratio : ratio, 2 * order));
}

bool isNear(double value, double expected, double tolerance) {
    if (std::abs(value - expected) <= tolerance) {
        return true;
    }
    qWarning("%.4f instead of %.4f", value, expected);
    return false;
}

}  // namespace

class TestChain : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void flatIsTransparent();
    void levelIsTheOnlyChange();
    void crossoversReachTheirOutputsOnly();
    void delaysOfEveryOutput();
    void phaseTurnsTheSubwooferOnly();
    void highAndLowSum();
    void sidesStayApart();
    void defeatIsBitExact();
};

void TestChain::flatIsTransparent() {
    const Stereo signal = noise(5000, 0.4F);
    const Sound sound = render(neutral(), signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < sound[output].size(); ++frame) {
            QVERIFY(sound[output][frame] == signal[frame * stereo + output % stereo]);
        }
    }
}

void TestChain::levelIsTheOnlyChange() {
    SoundState state = neutral();
    state.channelLevel[0] = 27;
    state.balance = 4;
    state.front.level = 7;
    state.subwooferLevel = 3;
    const Parameters parameters = designParameters(state);
    const Stereo signal = noise(5000, 0.4F);
    const Sound sound = render(state, signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < sound[output].size(); ++frame) {
            // Rounded once, at the very end
            const double mixed = signal[frame * stereo + output % stereo] * parameters.inputGain[MainInput];
            const double placed = mixed * parameters.chain.placement[output];
            QVERIFY(sound[output][frame] == static_cast<float>(placed * parameters.chain.gain[output]));
        }
    }
}

void TestChain::crossoversReachTheirOutputsOnly() {
    struct Case {
        CrossoverFilter SoundState::*filter;
        size_t first;
        double cutOff;
        bool highPass;
    };
    const Case cases[] = {{&SoundState::front, FrontLeft, frontFrequencies[4], true},
                          {&SoundState::rear, RearLeft, rearFrequencies[4], true},
                          {&SoundState::subwoofer, SubLeft, subwooferFrequencies[4], false}};
    for (const Case &one : cases) {
        for (int slope = 1; slope <= 3; ++slope) {
            SoundState state = neutral();
            state.*one.filter = {4, slope, 12};
            for (const double hz : {40.0, 100.0, 400.0}) {
                const double expected = butterworth(slope, hz, one.cutOff, one.highPass);
                const Stereo signal = tone(hz, 48000);
                const Sound sound = render(state, signal);
                const double in = std::abs(component(render(neutral(), signal)[0], hz, 24000, 24000));
                for (size_t output = 0; output < outputCount; ++output) {
                    const double gain = 20 * std::log10(std::abs(component(sound[output], hz, 24000, 24000)) / in);
                    const bool filtered = output == one.first || output == one.first + 1;
                    QVERIFY(isNear(gain, filtered ? expected : 0, filtered ? 0.02 : 1e-6));
                }
            }
        }
    }
}

void TestChain::delaysOfEveryOutput() {
    const Stereo signal = impulse(600);
    double farthest = 0;
    for (int steps = 0; steps <= 99; ++steps) {
        SoundState state = neutral();
        state.delay = {steps, 99 - steps, (steps * 7) % 100, 0, (steps * 3) % 100, 50};
        const Sound sound = render(state, signal);
        for (size_t output = 0; output < outputCount; ++output) {
            for (size_t frame = 0; frame < sound[output].size(); ++frame) {
                // All outputs start from the same sample, so half a sample each aligns them to one another.
                const bool here = sound[output][frame] != 0;
                const bool there = std::lround(state.delay[output] * 4.8) == static_cast<long>(frame);
                QCOMPARE(here, there);
                if (here) {
                    farthest = std::max(farthest, std::abs(state.delay[output] * 4.8 - static_cast<double>(frame)));
                }
            }
        }
    }
    qInfo("delays: at most %.1f samples off", farthest);
    QVERIFY(farthest <= 0.5);
}

void TestChain::phaseTurnsTheSubwooferOnly() {
    SoundState state = neutral();
    const Stereo signal = noise(2000);
    const Sound before = render(state, signal);
    state.subwooferPhase = 1;
    const Sound after = render(state, signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < after[output].size(); ++frame) {
            QVERIFY(after[output][frame] == (output >= SubLeft ? -before[output][frame] : before[output][frame]));
        }
    }
}

void TestChain::highAndLowSum() {
    // Both at 100 Hz, where the two tables meet.
    constexpr double hz = 100;
    const Stereo signal = tone(hz, 48000);
    const auto in = component(render(neutral(), signal)[FrontLeft], hz, 24000, 24000);
    for (int slope = 1; slope <= 3; ++slope) {
        for (int phase = 0; phase <= 1; ++phase) {
            SoundState state = neutral();
            state.rear = state.subwoofer = {4, slope, 12};
            state.subwooferPhase = phase;
            const Sound sound = render(state, signal);
            const auto sum = component(sound[RearLeft], hz, 24000, 24000) + component(sound[SubLeft], hz, 24000, 24000);
            const double gain = std::abs(sum / in);
            QVERIFY(isNear(gain, slope != 2 ? 1 : phase == 0 ? 0 : std::sqrt(2.0), 0.001));
        }
    }
}

void TestChain::sidesStayApart() {
    SoundState state = neutral();
    state.eqType = 3;
    state.front = state.rear = {3, 2, 12};
    Stereo signal = noise(5000);
    for (size_t i = 0; i < signal.size(); i += stereo) {
        signal[i] = 0;
    }
    const Sound sound = render(state, signal);
    for (const size_t left : {FrontLeft, RearLeft, SubLeft}) {
        for (size_t frame = 0; frame < sound[left].size(); ++frame) {
            QVERIFY(sound[left][frame] == 0.0F);
        }
        QVERIFY(std::abs(component(sound[left + 1], 1000, 0, 4800)) > 0);
    }
}

void TestChain::defeatIsBitExact() {
    SoundState state = neutral();
    state.eqType = 3;
    state.loudness = true;
    state.balance = -4;
    state.fader = 9;
    state.front = state.rear = {3, 2, 3};
    state.delay.fill(33);
    state.defeat = true;
    const Stereo signal = noise(5000);
    const Sound sound = render(state, signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < sound[output].size(); ++frame) {
            QVERIFY(sound[output][frame] == signal[frame * stereo + output % stereo]);
        }
    }
}

QTEST_APPLESS_MAIN(TestChain)
#include "tst_chain.moc"
