// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/engine.h"

#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

SoundState busy() {
    SoundState state = neutral();
    state.eqType = 8;
    state.loudness = true;
    state.channelLevel[0] = 35;
    state.balance = 3;
    state.front = {5, 3, 10};
    state.rear = {4, 2, 12};
    state.subwoofer = {3, 1, 11};
    state.delay = {1, 22, 13, 44, 5, 76};
    return state;
}

std::vector<float> process(Engine &engine, const Stereo &signal, Input input = MainInput) {
    std::vector<float> out(signal.size() / stereo * outputCount);
    Inputs inputs{};
    inputs[input] = signal.data();
    engine.process(inputs, out.data(), signal.size() / stereo);
    return out;
}

bool isWithinFullScale(const std::vector<float> &samples) {
    return std::all_of(samples.begin(), samples.end(), [](float sample) { return std::abs(sample) <= 1; });
}

}  // namespace

class TestEngine : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void silentWithoutParameters();
    void firstParametersHoldAtOnce();
    void anyBlockSizeGivesTheSame();
    void fadesInInAnyBlockSize();
    void everyInputIsHeard();
    void inputsAdd();
    void changeIsOverAfterItsFade();
    void changesDuringAFadeAreTakenAfterIt();
    void fadesIn();
    void fadesInHoweverLoud();
    void saysHowMuchItLimits();
    void damagedSamples();
    void damagedSamplesAreTamed();
    void neverBeyondFullScale();
};

void TestEngine::silentWithoutParameters() {
    Engine engine;
    for (const float sample : process(engine, noise(1000))) {
        QVERIFY(sample == 0.0F);
    }
}

void TestEngine::firstParametersHoldAtOnce() {
    const Stereo signal = noise(400);
    QVERIFY(render(neutral(), signal)[0][0] == signal[0]);
    // Of several the last ones, without a fade from the first
    SoundState state = neutral();
    state.channelLevel[0] = 20;
    Engine engine;
    engine.setParameters(designParameters(neutral()));
    engine.setParameters(designParameters(state));
    const float expected = static_cast<float>(signal[0] * fromDecibels(-30));
    QVERIFY(process(engine, signal)[Engine::latency * outputCount] == expected);
}

void TestEngine::anyBlockSizeGivesTheSame() {
    const Stereo signal = noise(20000, 0.9F);
    SoundState other = busy();
    other.eqType = 3;
    other.front.slope = 1;
    other.channelLevel[0] = 40;
    SoundState third = other;
    third.rear = {1, 1, 3};
    // The third one comes while the second one fades in.
    const std::vector<Change> changes = {{3000, other}, {9000, busy()}, {9700, third}};
    const Sound whole = render(busy(), signal, changes);
    const std::vector<std::vector<size_t>> divisions = {{1}, {64}, {480}, {7, 1, 300, 65, 63}, {1024}};
    for (const auto &blocks : divisions) {
        QVERIFY(render(busy(), signal, changes, blocks) == whole);
    }
    QVERIFY(render(busy(), signal, changes) == whole);  // and again
}

void TestEngine::fadesInInAnyBlockSize() {
    const Stereo signal = noise(24000, 0.9F);
    const auto poweredUp = [&signal](size_t block) {
        Engine engine;
        engine.fadeIn();
        engine.setParameters(designParameters(busy()));
        std::vector<float> all;
        for (size_t i = 0; i < signal.size(); i += block * stereo) {
            const auto end = signal.begin() + static_cast<long>(std::min(signal.size(), i + block * stereo));
            const std::vector<float> out = process(engine, Stereo(signal.begin() + static_cast<long>(i), end));
            all.insert(all.end(), out.begin(), out.end());
        }
        return all;
    };
    const std::vector<float> whole = poweredUp(24000);
    for (const size_t block : {1, 100, 480, 1024}) {
        QVERIFY(poweredUp(block) == whole);
    }
}

void TestEngine::everyInputIsHeard() {
    for (size_t input = 0; input < inputCount; ++input) {
        SoundState state = neutral();
        state.channelLevel = {40, 38, 36, 34, 32, 40, 30, 40};
        constexpr double decibels[inputCount] = {0, -3, -6, -9, -12, -15, 0};
        Engine engine;
        engine.setParameters(designParameters(state));
        const Stereo signal = noise(500);
        const std::vector<float> out = process(engine, signal, static_cast<Input>(input));
        const double expected = signal[0] * std::pow(10, decibels[input] / 20);
        QVERIFY(std::abs(out[Engine::latency * outputCount] - expected) < 1e-6);
    }
}

void TestEngine::inputsAdd() {
    Engine engine;
    engine.setParameters(designParameters(neutral()));
    const Stereo music(1000 * stereo, 0.25F);
    const Stereo voice(1000 * stereo, 0.125F);
    Inputs inputs{};
    inputs[MainInput] = music.data();
    inputs[VoiceInput] = voice.data();
    std::vector<float> out(1000 * outputCount);
    engine.process(inputs, out.data(), 1000);
    for (size_t output = 0; output < outputCount; ++output) {
        // Prompts are heard in front.
        QVERIFY(out[999 * outputCount + output] == (output <= FrontRight ? 0.375F : 0.25F));
    }
}

/// Gains are there bit for bit when the fade is over; a change that comes while another one fades in, after the two.
void TestEngine::changeIsOverAfterItsFade() {
    SoundState quiet = neutral();
    quiet.channelLevel[0] = 20;
    quiet.balance = 7;
    const Stereo signal(9600 * stereo, 0.5F);
    SoundState between = neutral();
    between.balance = -7;
    const Sound expected = render(quiet, signal);
    for (const size_t changes : {1, 2}) {
        const std::vector<Change> course = {{4800, between}, {4801, quiet}};
        const Sound sound = render(neutral(), signal, {course.end() - static_cast<long>(changes), course.end()});
        const size_t over = 4800 + 2 - changes + changes * Engine::fadeSamples;
        for (size_t output = 0; output < outputCount; ++output) {
            QVERIFY(sound[output][4800 - Engine::latency - 1] == 0.5F);
            QVERIFY(std::equal(sound[output].begin() + static_cast<long>(over), sound[output].end(),
                               expected[output].begin() + static_cast<long>(over)));
        }
    }
    QVERIFY(Engine::fadeSamples <= static_cast<size_t>(0.05 * sampleRate));
}

void TestEngine::changesDuringAFadeAreTakenAfterIt() {
    Engine engine;
    engine.setParameters(designParameters(neutral()));
    SoundState state = neutral();
    const Stereo signal(100 * stereo, 0.5F);
    float lowest = 1;
    for (int level = 39; level >= 20; --level) {
        state.channelLevel[0] = level;
        engine.setParameters(designParameters(state));
        const std::vector<float> out = process(engine, signal);
        const float before = lowest;
        lowest = std::min(lowest, out.back());
        QVERIFY(level > 38 || (lowest <= before && before - lowest < 0.1F));
    }
    process(engine, Stereo(4800 * stereo, 0.5F));
    QVERIFY(process(engine, signal).back() == static_cast<float>(0.5 * fromDecibels(-30)));
}

/// At power-up, and whenever else that is asked for.
void TestEngine::fadesIn() {
    Engine engine;
    engine.setParameters(designParameters(neutral()));
    for (const size_t first : {Engine::latency, size_t(0)}) {
        engine.fadeIn();
        const std::vector<float> out = process(engine, Stereo(24000 * stereo, 0.5F));
        float before = 0;
        size_t half = 0;
        size_t whole = 0;
        for (size_t i = first * outputCount; i < out.size(); i += outputCount) {
            QVERIFY(out[i] >= before);
            before = out[i];
            half = half == 0 && before >= 0.25F ? i / outputCount : half;
            whole = whole == 0 && before == 0.5F ? i / outputCount : whole;
        }
        QVERIFY(half > 9000 && half < 10000);
        QVERIFY(whole > 18000 && whole <= 19200 + Engine::latency);
    }
}

/// A signal that the limiter holds at full scale fades in like everything else.
void TestEngine::fadesInHoweverLoud() {
    SoundState loud = neutral();
    loud.sourceGain[0] = 20;
    Engine engine;
    engine.fadeIn();
    engine.setParameters(designParameters(loud));
    const std::vector<float> out = process(engine, tone(440, 24000, 1));
    Fade fade(Engine::fadeInSamples);
    fade.restart();
    float highest = 0;
    for (size_t i = 0; i < out.size(); ++i) {
        const size_t frame = i / outputCount;
        const double most = frame < Engine::fadeInSamples ? fade.weights()[frame] : 1;
        QVERIFY(static_cast<double>(std::abs(out[i])) <= most + 1e-7);
        highest = std::max(highest, std::abs(out[i]));
    }
    QVERIFY(highest > 0.97F);
}

void TestEngine::saysHowMuchItLimits() {
    using Gains = std::array<double, pairCount>;
    Engine engine;
    SoundState state = neutral();
    state.sourceGain[0] = 20;  // 10 dB
    state.fader = 15;
    engine.setParameters(designParameters(state));
    process(engine, tone(440, 4800, 0.2));
    QVERIFY((engine.takeLimiterGains() == Gains{1, 1, 1}));
    process(engine, tone(440, 4800, 0.9));
    const Gains lowest = engine.takeLimiterGains();
    const double expected = fromDecibels(-10) / 0.9;
    QVERIFY(lowest[0] == 1);
    QVERIFY(lowest[1] < expected && lowest[1] > 0.9 * expected);
    QVERIFY(lowest[2] < expected && lowest[2] > 0.9 * expected);
    process(engine, Stereo(9600 * stereo));
    const Gains recovering = engine.takeLimiterGains();
    QVERIFY(recovering[1] >= lowest[1] && recovering[1] < 1);
}

void TestEngine::damagedSamplesAreTamed() {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float largest = 16;
    const std::pair<float, float> samples[] = {
        {nan, 0}, {-nan, 0}, {infinity, largest}, {-infinity, -largest}, {1e30F, largest},
        {17, 16}, {-3, -3},  {0.5F, 0.5F}};
    for (size_t input = 0; input < inputCount; ++input) {
        SoundState state = neutral();
        state.channelLevel.fill(20);
        Engine engine;
        engine.setParameters(designParameters(state));
        Stereo signal;
        for (const auto &sample : samples) {
            signal.insert(signal.end(), stereo, sample.first);
        }
        signal.resize((std::size(samples) + Engine::latency) * stereo);
        const std::vector<float> out = process(engine, signal, static_cast<Input>(input));
        for (size_t i = 0; i < std::size(samples); ++i) {
            const float expected = static_cast<float>(samples[i].second * fromDecibels(-30));
            QVERIFY(out[(i + Engine::latency) * outputCount + FrontRight] == expected);
        }
    }
}

void TestEngine::damagedSamples() {
    Engine engine;
    engine.setParameters(designParameters(busy()));
    Stereo signal = noise(20000, 0.1F);
    const float damage[] = {std::numeric_limits<float>::quiet_NaN(),
                            std::numeric_limits<float>::infinity(),
                            -std::numeric_limits<float>::infinity(),
                            std::numeric_limits<float>::max(),
                            1e30F,
                            -1e30F};
    for (size_t i = 0; i < 1000; ++i) {
        signal[i * 3] = damage[i % std::size(damage)];
    }
    const std::vector<float> out = process(engine, signal);
    QVERIFY(isWithinFullScale(out));  // which no NaN is
    QVERIFY(std::any_of(out.end() - 1000, out.end(), [](float sample) { return sample != 0; }));
}

void TestEngine::neverBeyondFullScale() {
    std::mt19937 random(5);
    Engine engine;
    for (int i = 0; i < 100; ++i) {
        SoundState state = busy();
        for (int &band : state.customEq) {
            band = static_cast<int>(random() % 25);
        }
        state.eqType = 16;
        state.sourceGain.fill(20);
        state.channelLevel[0] = 30 + static_cast<int>(random() % 11);
        state.subwooferPhase = static_cast<int>(random() % 2);
        engine.setParameters(designParameters(state));
        QVERIFY(isWithinFullScale(process(engine, noise(1000, 1))));
    }
}

QTEST_APPLESS_MAIN(TestEngine)
#include "tst_engine.moc"
