// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/crossoverflaw.h"

#include "headunit/audio/service/soundtables.h"

#include <QTest>

#include <cmath>

using headunit::CrossoverFlaw;
using headunit::CrossoverRemedy;
using headunit::SoundState;

Q_DECLARE_METATYPE(SoundState)

namespace {

SoundState neutral() {
    SoundState state;
    state.eqType = 16;
    state.customEq.fill(12);
    state.channelLevel.fill(40);
    state.sourceGain.fill(10);
    state.subwooferLevel = 10;
    return state;
}

/// All pairs meet at 63 Hz.
SoundState meeting(int slope, int phase) {
    SoundState state = neutral();
    state.front = {3, slope, 12};
    state.rear = {3, slope, 12};
    state.subwoofer = {3, slope, 12};
    state.subwooferPhase = phase;
    state.subwooferLevel = 14;  // as loud as front and rear together
    return state;
}

}  // namespace

class TestCrossoverFlaw : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void flaws_data();
    void flaws();
    void equaliserAndVolumeAreNoFlaws();
    void remedyKeepsItsWord_data() { flaws_data(); }
    void remedyKeepsItsWord();
    void sentence();
};

void TestCrossoverFlaw::flaws_data() {
    QTest::addColumn<SoundState>("state");
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("decibels");  // as near as 1.5 dB
    QTest::addColumn<double>("hz");        // as near as a quarter of an octave
    QTest::addColumn<int>("remedy");
    const auto row = [](const char *name, const SoundState &state, CrossoverFlaw::Kind kind, double decibels, double hz,
                        CrossoverRemedy::Kind remedy) {
        QTest::newRow(name) << state << int(kind) << decibels << hz << int(remedy);
    };
    row("all the same", neutral(), CrossoverFlaw::None, 0, 0, CrossoverRemedy::None);
    row("6 dB/oct", meeting(1, 0), CrossoverFlaw::None, 0, 0, CrossoverRemedy::None);
    row("6 dB/oct, turned", meeting(1, 1), CrossoverFlaw::None, 0, 0, CrossoverRemedy::None);
    row("18 dB/oct", meeting(3, 0), CrossoverFlaw::None, 0, 0, CrossoverRemedy::None);
    row("12 dB/oct: a null", meeting(2, 0), CrossoverFlaw::Hole, CrossoverFlaw::deepestHole, 63,
        CrossoverRemedy::Phase);
    row("12 dB/oct, turned: 3 dB", meeting(2, 1), CrossoverFlaw::None, 0, 0, CrossoverRemedy::None);
    SoundState state = meeting(1, 0);
    state.subwoofer.freq = 5;  // 250 Hz
    row("both far into each other", state, CrossoverFlaw::Overlap, 4, 125, CrossoverRemedy::Phase);
    state = meeting(2, 1);
    state.subwoofer.freq = 1;  // 25 Hz
    state.front.freq = 7;      // 250 Hz
    state.rear.freq = 5;
    row("a gap", state, CrossoverFlaw::Hole, 19.5, 80, CrossoverRemedy::RearFrequency);
    state = neutral();
    state.subwooferLevel = 0;
    state.delay = {0, 0, 20, 20, 0, 0};  // the rear comes 2 ms late
    row("delays", state, CrossoverFlaw::Hole, CrossoverFlaw::deepestHole, 250, CrossoverRemedy::EqualDelays);
}

void TestCrossoverFlaw::flaws() {
    QFETCH(SoundState, state);
    QFETCH(int, kind);
    QFETCH(double, decibels);
    QFETCH(double, hz);
    QFETCH(int, remedy);
    const CrossoverFlaw flaw = headunit::findFlaw(state);
    const QString found = QString("kind %1, %2 dB at %3 Hz").arg(flaw.kind).arg(flaw.decibels).arg(flaw.hz);
    QVERIFY2(flaw.kind == kind, qPrintable(found));
    if (kind != CrossoverFlaw::None) {
        QVERIFY2(std::abs(flaw.decibels - decibels) < 1.5, qPrintable(found));
        QVERIFY2(std::abs(std::log2(flaw.hz / hz)) < 0.25, qPrintable(found));
    }
    QCOMPARE(int(headunit::findRemedy(state, flaw).kind), remedy);
}

/// What shapes all loudspeakers alike is not their crossover's fault.
void TestCrossoverFlaw::equaliserAndVolumeAreNoFlaws() {
    SoundState state = neutral();
    state.customEq.fill(12);
    state.customEq[3] = 0;
    state.loudness = true;
    state.channelLevel[0] = 0;
    state.muted = true;
    QCOMPARE(int(headunit::findFlaw(state).kind), int(CrossoverFlaw::None));
}

/// Who does what it says has less of a flaw.
void TestCrossoverFlaw::remedyKeepsItsWord() {
    QFETCH(SoundState, state);
    const CrossoverFlaw before = headunit::findFlaw(state);
    const CrossoverRemedy remedy = headunit::findRemedy(state, before);
    const auto indexOf = [&remedy](const auto &table) {
        return int(std::find(table.begin(), table.end(), remedy.value) - table.begin());
    };
    switch (remedy.kind) {
        case CrossoverRemedy::None:
            return;
        case CrossoverRemedy::Phase:
            state.subwooferPhase = remedy.value / 180;
            break;
        case CrossoverRemedy::SubwooferFrequency:
            state.subwoofer.freq = indexOf(headunit::subwooferFrequencies);
            break;
        case CrossoverRemedy::FrontFrequency:
            state.front.freq = indexOf(headunit::frontFrequencies);
            break;
        case CrossoverRemedy::RearFrequency:
            state.rear.freq = indexOf(headunit::rearFrequencies);
            break;
        case CrossoverRemedy::EqualDelays:
            state.delay.fill(0);
            break;
    }
    QVERIFY(headunit::findFlaw(state).decibels <= before.decibels - CrossoverFlaw::least);
}

void TestCrossoverFlaw::sentence() {
    QCOMPARE(headunit::crossoverRemark(neutral()), QString());
    const QString null = headunit::crossoverRemark(meeting(2, 0));
    QVERIFY2(null.startsWith("Hole of more than 30 dB at 6") && null.endsWith("Hz: try phase 180° for the subwoofers"),
             qPrintable(null));
}

QTEST_APPLESS_MAIN(TestCrossoverFlaw)
#include "tst_crossoverflaw.moc"
