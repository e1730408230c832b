// SPDX-License-Identifier: Apache-2.0
// A change of any control under a steady low tone must not be heard far above the tone.

#include "changesofcontrols.h"
#include "rendering.h"

#include "headunit/audio/engine/filterdesign.h"

#include <QTest>

#include <cmath>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr double tones[] = {250};
#else
constexpr double tones[] = {63, 100, 160, 250};
#endif
constexpr size_t changeAt = 24000;
constexpr size_t frames = 48000;

/// The energy above 2 kHz, by three filters of third order in a row: the highest sample in dB of the tone's amplitude.
double residual(const std::vector<float> &samples, double amplitude) {
    constexpr double cutOff = 2000;
    constexpr int rounds = 3;
    std::vector<double> left(samples.begin(), samples.end());
    for (const Biquad &section : butterworthHighPass(3, cutOff)) {
        for (int round = 0; round < rounds; ++round) {
            double s0 = 0;
            double s1 = 0;
            for (double &sample : left) {
                const double in = sample;
                sample = section.b0 * in + s0;
                s0 = section.b1 * in - section.a1 * sample + s1;
                s1 = section.b2 * in - section.a2 * sample;
            }
        }
    }
    double highest = 0;
    for (size_t i = changeAt / 2; i < left.size(); ++i) {
        highest = std::max(highest, std::abs(left[i]));
    }
    return toDecibels(highest / amplitude);
}

double worstResidual(const SoundState &before, const SoundState &after, Input input = MainInput) {
    constexpr double amplitude = 0.2;
    double worst = -1000;
    for (const double hz : tones) {
        const Stereo signal = tone(hz, frames, amplitude);
        for (const auto &[from, to] : {std::pair(before, after), std::pair(after, before)}) {
            // At a crest, where a jump is largest.
            const size_t crest = changeAt + static_cast<size_t>(std::lround(sampleRate / hz / 4));
            const Sound sound = render(from, signal, {{crest, to}}, {}, input);
            for (const auto &samples : sound) {
                worst = std::max(worst, residual(samples, amplitude));
            }
        }
    }
    return worst;
}

double goal(const ChangeOfControl &row) {
    return row.size == ChangeOfControl::OneDecibel ? -110 : -90;
}

}  // namespace

Q_DECLARE_METATYPE(ChangeOfControl)

class TestClicks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void steadyToneIsSilentAbove();
    void change_data();
    void change();
    void changeDuringAChange_data() { change_data(); }
    void changeDuringAChange();
};

void TestClicks::steadyToneIsSilentAbove() {
    const double floor = worstResidual(neutral(), neutral());
    qInfo("without a change: %.1f dB", floor);
    QVERIFY(floor < -115);
}

void TestClicks::change_data() {
    QTest::addColumn<ChangeOfControl>("row");
    for (const auto *rows : {&changesOfControls(), &changesOfPrompts()}) {
        for (const ChangeOfControl &row : *rows) {
            QTest::newRow(row.name.c_str()) << row;
        }
    }
}

void TestClicks::change() {
    QFETCH(ChangeOfControl, row);
    QVERIFY(row.before != row.after);
    const double worst = worstResidual(row.before, row.after, row.input);
    qInfo("%s: %.1f dB", QTest::currentDataTag(), worst);
    QVERIFY(worst <= goal(row));
}

/// Back again in the middle of the way
void TestClicks::changeDuringAChange() {
    QFETCH(ChangeOfControl, row);
    constexpr double amplitude = 0.2;
    const Stereo signal = tone(tones[0], frames, amplitude);
    const size_t middle = changeAt + Engine::fadeSamples / 2;
    const std::vector<Change> changes = {{changeAt, row.after}, {middle, row.before}};
    for (const auto &samples : render(row.before, signal, changes, {}, row.input)) {
        QVERIFY(residual(samples, amplitude) <= goal(row));
    }
}

QTEST_APPLESS_MAIN(TestClicks)
#include "tst_clicks.moc"
