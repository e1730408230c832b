// SPDX-License-Identifier: Apache-2.0
// The filters alone, and while settings change under them.

#include "headunit/audio/engine/outputfilters.h"

#include "headunit/audio/engine/filterdesign.h"
#include "headunit/audio/engine/mixhistory.h"
#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

using Outputs = std::vector<size_t>;

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

class TestOutputFilters : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everySectionIsRun();
    void promptsJoinBehindThePlacement();
    void onlyTheOutputsConcernedChange_data();
    void onlyTheOutputsConcernedChange();
    void otherFiltersGoOnDuringAChange();
    void whatWasOnceHeardDoesNotComeBack();
};

/// One section alone halves what comes in, wherever it stands.
void TestOutputFilters::everySectionIsRun() {
    Biquad half;
    half.b0 = 0.5;
    const auto spreadOf = [](const ChainParameters &parameters) {
        OutputFilters filters(bestKernel());
        filters.load(parameters);
        double mix[stereo] = {1, 0.5};
        std::array<double, outputCount> spread;
        filters.process(mix, nullptr, spread.data(), 1);
        return spread;
    };
    for (size_t section = 0; section < toneSections; ++section) {
        ChainParameters parameters;
        parameters.placement.fill(1);
        parameters.tone[section] = half;
        QVERIFY((spreadOf(parameters) == std::array<double, outputCount>{0.5, 0.25, 0.5, 0.25, 0.5, 0.25}));
    }
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t stage = 0; stage < crossoverStages; ++stage) {
            ChainParameters parameters;
            parameters.placement.fill(1);
            parameters.crossover[output][stage] = half;
            std::array<double, outputCount> expected = {1, 0.5, 1, 0.5, 1, 0.5};
            expected[output] /= 2;
            QVERIFY(spreadOf(parameters) == expected);
        }
    }
}

void TestOutputFilters::promptsJoinBehindThePlacement() {
    Biquad half;
    half.b0 = 0.5;
    ChainParameters parameters;
    parameters.tone[0] = half;
    parameters.placement = {0.25, 0, 0.5, 2, 4, 8};
    parameters.crossover[FrontLeft][0] = parameters.crossover[SubRight][1] = half;
    OutputFilters filters(bestKernel());
    filters.load(parameters);
    double mix[stereo] = {1, 0.5};
    const double prompts[stereo] = {0.75, 0.375};
    std::array<double, outputCount> spread;
    filters.process(mix, prompts, spread.data(), 1);
    QVERIFY((spread == std::array<double, outputCount>{0.4375, 0.375, 0.25, 0.5, 2, 1}));
}

void TestOutputFilters::onlyTheOutputsConcernedChange_data() {
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
void TestOutputFilters::onlyTheOutputsConcernedChange() {
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

/// The new filters have heard what the old ones have: a tone far from what changes hardly notices.
void TestOutputFilters::otherFiltersGoOnDuringAChange() {
    constexpr double goal = -60;
    constexpr double amplitude = 0.2;
    SoundState state = filtered();
    state.customEq[0] = 24;
    SoundState after = state;
    after.customEq[12] = 13;
    const Stereo signal = tone(63, 48000, amplitude);
    const Sound before = render(state, signal);
    const Sound changed = render(state, signal, {{24000, after}, {36000, state}});
    double highest = 0;
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < before[output].size(); ++frame) {
            const double difference = static_cast<double>(changed[output][frame] - before[output][frame]);
            highest = std::max(highest, std::abs(difference));
        }
    }
    qInfo("a tone away from the change: %.1f dB, goal %.0f", toDecibels(highest / amplitude), goal);
    QVERIFY(toDecibels(highest / amplitude) < goal);
}

/// Filters that are switched off forget; switched on again, they have nothing left of what sounded before.
void TestOutputFilters::whatWasOnceHeardDoesNotComeBack() {
    SoundState on = filtered();
    on.eqType = 3;
    Stereo signal = tone(100, 4000);
    signal.resize(20000 * stereo);
    const size_t again = 4000 + MixHistory::length;
    const Sound sound = render(on, signal, {{4000, neutral()}, {again, on}});
    for (const auto &samples : sound) {
        QVERIFY(std::any_of(samples.begin(), samples.begin() + 4000, [](float sample) { return sample != 0; }));
        QVERIFY(std::all_of(samples.begin() + again, samples.end(), [](float sample) { return sample == 0; }));
    }
}

QTEST_APPLESS_MAIN(TestOutputFilters)
#include "tst_outputfilters.moc"
