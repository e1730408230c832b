// SPDX-License-Identifier: Apache-2.0
// Prompts as they are heard: beside the driver's taste, above what plays, and without a sound of their coming and
// going.

#include "headunit/audio/engine/filterdesign.h"
#include "headunit/audio/engine/measurement.h"
#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

constexpr Input prompts[] = {RingtoneInput, PhoneInput, NavigationInput, VoiceInput, AnnouncementInput, BeepInput};

/// Whatever the driver prefers, as far from neutral as it goes
SoundState taste() {
    SoundState state = neutral();
    state.eqType = 16;
    state.customEq = {24, 0, 24, 0, 24, 0, 24, 0, 24, 0, 24, 0, 24};
    state.loudness = true;
    state.balance = 15;
    state.fader = 15;
    return state;
}

SoundState with(SoundState state, Prompt prompt) {
    state.activePrompts[static_cast<size_t>(prompt)] = true;
    return state;
}

double decibelsOf(const SoundState &state, double hz, Input input, size_t output) {
    return toDecibels(std::abs(measure(state, {hz}, input).front().outputs[output]));
}

/// Coefficients of a linear-phase filter (Blackman-Harris window) that passes what lies below \a hz, or above.
std::vector<double> linearPhase(double hz, bool highPass) {
    constexpr int taps = 8191;
    constexpr int middle = taps / 2;
    std::vector<double> filter(taps);
    for (int i = 0; i < taps; ++i) {
        const double turn = 2 * pi * i / (taps - 1);
        const double window =
            0.35875 - 0.48829 * std::cos(turn) + 0.14128 * std::cos(2 * turn) - 0.01168 * std::cos(3 * turn);
        const double place = 2 * pi * hz / sampleRate * (i - middle);
        const double low = i == middle ? 2 * hz / sampleRate : std::sin(place) / (pi * (i - middle));
        filter[static_cast<size_t>(i)] = window * (highPass ? (i == middle) - low : low);
    }
    return filter;
}

/// The residue of a change on the other side of \a hz than the tone: the highest sample from 100 ms before it to
/// 290 ms after it, in dB of the tone.
double thump(const std::vector<float> &samples, size_t change, double hz, bool highPass, double amplitude) {
    const std::vector<double> filter = linearPhase(hz, highPass);
    const size_t half = filter.size() / 2;
    double highest = 0;
    for (size_t frame = change - 4800; frame < change + 13920; ++frame) {
        double sum = 0;
        for (size_t i = 0; i < filter.size(); ++i) {
            sum += filter[i] * static_cast<double>(samples[frame + half - i]);
        }
        highest = std::max(highest, std::abs(sum));
    }
    return toDecibels(highest / amplitude);
}

}  // namespace

Q_DECLARE_METATYPE(headunit::SoundState)

class TestPrompts : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void areNotColoured();
    void areHeardInFrontOnly();
    void sidesStayApart();
    void goThroughCrossoverLevelAndDelay();
    void defeatOpensTheFrontPairForThem();
    void promptsDoNotStepBack();
    void downAndUpInTime();
    void leaveNoThump_data();
    void leaveNoThump();
};

void TestPrompts::areNotColoured() {
    for (const Input input : prompts) {
        for (const double hz : {63.0, 1000.0, 10000.0}) {
            for (const size_t output : {FrontLeft, FrontRight}) {
                QVERIFY(std::abs(decibelsOf(taste(), hz, input, output)) < 1e-4);
            }
        }
    }
}

/// Neither the fader nor the balance can silence them.
void TestPrompts::areHeardInFrontOnly() {
    const Stereo signal = noise(2000);
    for (const Input input : prompts) {
        const Sound sound = render(taste(), signal, {}, {}, input);
        for (size_t output = 0; output < outputCount; ++output) {
            for (size_t frame = 0; frame < sound[output].size(); ++frame) {
                QVERIFY(sound[output][frame] == (output <= FrontRight ? signal[frame * stereo + output] : 0.0F));
            }
        }
    }
    const Sound main = render(taste(), signal);
    QVERIFY(std::all_of(main[FrontLeft].begin(), main[FrontLeft].end(), [](float sample) { return sample == 0; }));
}

void TestPrompts::sidesStayApart() {
    for (const Input input : prompts) {
        for (const size_t side : {FrontLeft, FrontRight}) {
            Stereo signal(100 * stereo);
            for (size_t i = side; i < signal.size(); i += stereo) {
                signal[i] = 0.5F;
            }
            const Sound sound = render(neutral(), signal, {}, {}, input);
            QVERIFY(sound[side][50] == 0.5F);
            QVERIFY(sound[1 - side][50] == 0.0F);
        }
    }
}

/// Which protect the loudspeakers
void TestPrompts::goThroughCrossoverLevelAndDelay() {
    SoundState state = taste();
    state.front = {5, 3, 7};  // 100 Hz, -5 dB
    state.delay = {10, 99, 0, 0, 0, 0};
    for (const Input input : prompts) {
        QVERIFY(std::abs(decibelsOf(state, 100, input, FrontLeft) + 5 + 3.0103) < 0.01);
        QVERIFY(std::abs(decibelsOf(state, 50, input, FrontRight) + 5 + 18.13) < 0.02);
        const Sound sound = render(state, impulse(600), {}, {}, input);
        QVERIFY(sound[FrontLeft][47] == 0.0F && sound[FrontLeft][48] != 0.0F);
        QVERIFY(sound[FrontRight][474] == 0.0F && sound[FrontRight][475] != 0.0F);
    }
}

void TestPrompts::defeatOpensTheFrontPairForThem() {
    SoundState state = taste();
    state.front = {5, 3, 7};
    state.delay.fill(33);
    state.defeat = true;
    const Stereo signal = noise(2000);
    const Sound sound = render(state, signal, {}, {}, NavigationInput);
    for (size_t frame = 0; frame < sound[FrontRight].size(); ++frame) {
        QVERIFY(sound[FrontRight][frame] == signal[frame * stereo + 1]);
        QVERIFY(sound[SubRight][frame] == 0.0F);
    }
}

void TestPrompts::promptsDoNotStepBack() {
    SoundState state = neutral();
    state.activePrompts.fill(true);
    for (const Input input : prompts) {
        const double decibels = decibelsOf(state, 1000, input, FrontLeft);
        QVERIFY(input == AnnouncementInput ? decibels < -200 : std::abs(decibels) < 1e-6);
    }
    QVERIFY(decibelsOf(state, 1000, MainInput, RearLeft) < -200);
    state.activePrompts = {};
    QVERIFY(std::abs(decibelsOf(with(state, Prompt::Voice), 1000, MainInput, RearLeft) + 12) < 1e-6);
}

void TestPrompts::downAndUpInTime() {
    const Stereo signal(72000 * stereo, 0.5F);
    const SoundState quiet = with(neutral(), Prompt::Navigation);
    const float ducked = static_cast<float>(0.5 * fromDecibels(-12));
    const Sound sound = render(neutral(), signal, {{4800, quiet}, {24000, neutral()}});
    for (const std::vector<float> &samples : sound) {
        QVERIFY(samples[4800 - Engine::latency - 1] == 0.5F);
        QVERIFY(samples[4800 + 1000] < 0.5F && samples[4800 + 1000] > ducked * 1.1F);
        QVERIFY(std::abs(samples[4800 + 2400] - ducked) < 1e-7F);
        QVERIFY(std::abs(samples[24000] - ducked) < 1e-7F);
        QVERIFY(samples[24000 + 20000] < 0.495F);
        QVERIFY(samples[24000 + 24000] == 0.5F);
    }
}

void TestPrompts::leaveNoThump_data() {
    QTest::addColumn<SoundState>("before");
    QTest::addColumn<SoundState>("after");
    const SoundState none = neutral();
    const SoundState voice = with(neutral(), Prompt::Voice);
    const SoundState phone = with(neutral(), Prompt::Phone);
    QTest::newRow("12 dB down") << none << voice;
    QTest::newRow("back up") << voice << none;
    QTest::newRow("to silence") << none << phone;
    QTest::newRow("from silence") << phone << none;
}

void TestPrompts::leaveNoThump() {
    QFETCH(SoundState, before);
    QFETCH(SoundState, after);
    constexpr double amplitude = 0.25;
    constexpr size_t changeAt = 24000;
    struct Tone {
        double hz;
        double border;
        bool highPass;
    };
    for (const Tone &one : {Tone{63, 150, true}, Tone{1000, 500, false}}) {
        double worst = -1000;
        for (const double phase : {0.0, 0.25}) {
            const size_t change = changeAt + static_cast<size_t>(std::lround(phase * sampleRate / one.hz));
            const Sound sound = render(before, tone(one.hz, 48000, amplitude), {{change, after}});
            worst = std::max(worst, thump(sound[FrontLeft], change, one.border, one.highPass, amplitude));
        }
        qInfo("%s, %.0f Hz: %.1f dB", QTest::currentDataTag(), one.hz, worst);
        QVERIFY(worst <= -70);
    }
}

QTEST_APPLESS_MAIN(TestPrompts)
#include "tst_prompts.moc"
