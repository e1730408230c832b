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
    constexpr double pi = 3.14159265358979323846;
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

/// All three filters on, without delays.
SoundState filtered() {
    SoundState state = neutral();
    state.front = {4, 2, 12};
    state.rear = {5, 3, 12};
    state.subwoofer = {3, 1, 12};
    return state;
}

}  // namespace

Q_DECLARE_METATYPE(headunit::SoundState)
Q_DECLARE_METATYPE(std::vector<size_t>)

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
    void everySectionIsRun();
    void onlyTheOutputsConcernedChange_data();
    void onlyTheOutputsConcernedChange();
    void otherFiltersGoOnDuringAChange();
    void whatWasOnceHeardDoesNotComeBack();
};

void TestChain::flatIsTransparent() {
    const Stereo signal = noise(5000, 0.99F);
    const Sound sound = render(neutral(), signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < sound[output].size(); ++frame) {
            QCOMPARE(sound[output][frame], signal[frame * stereo + output % stereo]);
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
    const Stereo signal = noise(5000, 0.99F);
    const Sound sound = render(state, signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < sound[output].size(); ++frame) {
            // Rounded once, at the very end
            const double mixed = signal[frame * stereo + output % stereo] * parameters.inputGain[MainInput];
            QCOMPARE(sound[output][frame], static_cast<float>(mixed * parameters.chain.gain[output]));
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
            }
        }
    }
}

void TestChain::phaseTurnsTheSubwooferOnly() {
    SoundState state = neutral();
    const Stereo signal = noise(2000);
    const Sound before = render(state, signal);
    state.subwooferPhase = 1;
    const Sound after = render(state, signal);
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < after[output].size(); ++frame) {
            QCOMPARE(after[output][frame], output >= SubLeft ? -before[output][frame] : before[output][frame]);
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
            QCOMPARE(sound[left][frame], 0.0F);
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
            QCOMPARE(sound[output][frame], signal[frame * stereo + output % stereo]);
        }
    }
}

/// One section alone halves what comes in, wherever it stands.
void TestChain::everySectionIsRun() {
    Biquad half;
    half.b0 = 0.5;
    const auto spreadOf = [](const ChainParameters &parameters) {
        Filters filters(bestKernel());
        filters.load(parameters);
        double mix[stereo] = {1, 0.5};
        std::array<double, outputCount> spread;
        filters.process(mix, spread.data(), 1);
        return spread;
    };
    for (size_t section = 0; section < toneSections; ++section) {
        ChainParameters parameters;
        parameters.tone[section] = half;
        QVERIFY((spreadOf(parameters) == std::array<double, outputCount>{0.5, 0.25, 0.5, 0.25, 0.5, 0.25}));
    }
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t stage = 0; stage < crossoverStages; ++stage) {
            ChainParameters parameters;
            parameters.crossover[output][stage] = half;
            std::array<double, outputCount> expected = {1, 0.5, 1, 0.5, 1, 0.5};
            expected[output] /= 2;
            QVERIFY(spreadOf(parameters) == expected);
        }
    }
}

using Outputs = std::vector<size_t>;

void TestChain::onlyTheOutputsConcernedChange_data() {
    QTest::addColumn<SoundState>("after");
    QTest::addColumn<Outputs>("concerned");
    const auto row = [](const char *name, const Outputs &concerned, auto change) {
        SoundState after = filtered();
        change(after);
        QTest::newRow(name) << after << concerned;
    };
    using S = SoundState &;
    const Outputs front = {FrontLeft, FrontRight};
    const Outputs rear = {RearLeft, RearRight};
    const Outputs sub = {SubLeft, SubRight};
    row("front frequency", front, [](S s) { s.front.freq = 8; });
    row("front slope", front, [](S s) { s.front.slope = 1; });
    row("front level", front, [](S s) { s.front.level = 5; });
    row("front off", front, [](S s) { s.front.freq = 0; });
    row("rear frequency", rear, [](S s) { s.rear.freq = 1; });
    row("rear slope", rear, [](S s) { s.rear.slope = 2; });
    row("rear level", rear, [](S s) { s.rear.level = 5; });
    row("low-pass frequency", sub, [](S s) { s.subwoofer.freq = 5; });
    row("low-pass slope", sub, [](S s) { s.subwoofer.slope = 3; });
    row("low-pass level", sub, [](S s) { s.subwoofer.level = 5; });
    row("low-pass off", sub, [](S s) { s.subwoofer.freq = 0; });
    row("subwoofer level", sub, [](S s) { s.subwooferLevel = 0; });
    row("subwoofer phase", sub, [](S s) { s.subwooferPhase = 1; });
    row("balance", {FrontLeft, RearLeft, SubLeft}, [](S s) { s.balance = 4; });
    row("balance, the other way", {FrontRight, RearRight, SubRight}, [](S s) { s.balance = -15; });
    row("fader", front, [](S s) { s.fader = 15; });
    row("fader, the other way", rear, [](S s) { s.fader = -4; });
    for (size_t output = 0; output < outputCount; ++output) {
        row(qPrintable(QStringLiteral("delay %1").arg(output)), {output}, [output](S s) { s.delay[output] = 50; });
    }
}

/// Before, during and after the change; the others go on bit for bit.
void TestChain::onlyTheOutputsConcernedChange() {
    QFETCH(SoundState, after);
    QFETCH(Outputs, concerned);
    const Stereo signal = noise(6000);
    const Sound before = render(filtered(), signal);
    const Sound changed = render(filtered(), signal, {{2000, after}});
    for (size_t output = 0; output < outputCount; ++output) {
        const bool changes = std::find(concerned.begin(), concerned.end(), output) != concerned.end();
        QCOMPARE(changed[output] != before[output], changes);
    }
}

/// The new filters go on from what the old ones have heard: a tone far from what changes does not notice.
void TestChain::otherFiltersGoOnDuringAChange() {
    SoundState state = filtered();
    state.customEq[0] = 24;
    SoundState after = state;
    after.customEq[12] = 13;
    const Stereo signal = tone(63, 48000, 0.2);
    const Sound before = render(state, signal);
    const Sound changed = render(state, signal, {{24000, after}, {36000, state}});
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < before[output].size(); ++frame) {
            QVERIFY(isNear(changed[output][frame], before[output][frame], 1e-4));
        }
    }
}

/// Filters that are switched off forget; switched on again, they have nothing left of what sounded before.
void TestChain::whatWasOnceHeardDoesNotComeBack() {
    SoundState on = filtered();
    on.eqType = 3;
    Stereo signal = tone(100, 4000);
    signal.resize(20000 * stereo);
    const Sound sound = render(on, signal, {{4000, neutral()}, {8000, on}});
    for (const auto &samples : sound) {
        QVERIFY(std::any_of(samples.begin(), samples.begin() + 4000, [](float sample) { return sample != 0; }));
        QVERIFY(std::all_of(samples.begin() + 8000, samples.end(), [](float sample) { return sample == 0; }));
    }
}

QTEST_APPLESS_MAIN(TestChain)
#include "tst_chain.moc"
