#include "headunit/audio/engine/parameters.h"

#include "headunit/audio/engine/eqcurves.h"
#include "platform/audioeqtype.h"
#include "rendering.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <random>

using namespace headunit;
using namespace headunit::engine;
using rendering::neutral;

namespace {

bool isGain(double gain, double decibels) {
    return std::abs(gain - std::pow(10, decibels / 20)) < 1e-12;
}

ChainParameters chainOf(const SoundState &state) {
    return designParameters(state).chain;
}

}  // namespace

class TestParameters : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void neutralPassesEverything();
    void channelLevels();
    void beepFollowsTheMainLevel();
    void sourceGains();
    void mute();
    void balance();
    void fader();
    void subwoofer();
    void crossoverLevels();
    void delays();
    void curves();
    void customCurve();
    void loudnessFollowsTheMainLevel();
    void defeat();
    void anyValueIsSafe();
};

void TestParameters::neutralPassesEverything() {
    const Parameters parameters = designParameters(neutral());
    ChainParameters expected;
    expected.gain.fill(1);
    QVERIFY(parameters.chain == expected);
    for (const double gain : parameters.inputGain) {
        QCOMPARE(gain, 1.0);
    }
}

void TestParameters::channelLevels() {
    constexpr std::array<std::pair<size_t, Input>, 6> channels = {{{0, MainInput},
                                                                   {1, RingtoneInput},
                                                                   {2, PhoneInput},
                                                                   {3, NavigationInput},
                                                                   {4, VoiceInput},
                                                                   {6, AnnouncementInput}}};
    for (const auto &[channel, input] : channels) {
        for (int level = 0; level <= 40; ++level) {
            SoundState state = neutral();
            state.channelLevel[channel] = level;
            const auto gains = designParameters(state).inputGain;
            QVERIFY(level == 0 ? gains[input] == 0 : isGain(gains[input], (level - 40) * 1.5));
            for (size_t other = 0; other < BeepInput; ++other) {
                QVERIFY(other == input || gains[other] == 1);
            }
        }
    }
}

void TestParameters::beepFollowsTheMainLevel() {
    SoundState state = neutral();
    state.channelLevel[0] = 30;
    state.sourceGain[0] = 20;
    QVERIFY(isGain(designParameters(state).inputGain[BeepInput], -15));
}

void TestParameters::sourceGains() {
    for (int source = 0; source < SoundState::sources; ++source) {
        for (int value = 0; value <= 20; ++value) {
            SoundState state = neutral();
            state.sourceGain[static_cast<size_t>(source)] = value;
            for (int active = 0; active < SoundState::sources; ++active) {
                state.activeSource = active;
                QVERIFY(isGain(designParameters(state).inputGain[MainInput], active == source ? value - 10 : 0));
            }
        }
    }
}

void TestParameters::mute() {
    SoundState state = neutral();
    state.muted = true;
    const auto gains = designParameters(state).inputGain;
    QCOMPARE(gains[MainInput], 0.0);
    QCOMPARE(gains[PhoneInput], 1.0);
}

void TestParameters::balance() {
    for (int balance = -15; balance <= 15; ++balance) {
        SoundState state = neutral();
        state.balance = balance;
        const auto gains = chainOf(state).gain;
        for (const size_t left : {FrontLeft, RearLeft, SubLeft}) {
            QVERIFY(balance == 15 ? gains[left] == 0 : isGain(gains[left], -2 * std::max(balance, 0)));
            QVERIFY(balance == -15 ? gains[left + 1] == 0 : isGain(gains[left + 1], -2 * std::max(-balance, 0)));
        }
    }
}

void TestParameters::fader() {
    for (int fader = -15; fader <= 15; ++fader) {
        SoundState state = neutral();
        state.fader = fader;
        const auto gains = chainOf(state).gain;
        for (size_t side = 0; side < 2; ++side) {
            QVERIFY(fader == 15 ? gains[FrontLeft + side] == 0
                                : isGain(gains[FrontLeft + side], -2 * std::max(fader, 0)));
            QVERIFY(fader == -15 ? gains[RearLeft + side] == 0
                                 : isGain(gains[RearLeft + side], -2 * std::max(-fader, 0)));
            QCOMPARE(gains[SubLeft + side], 1.0);
        }
    }
}

void TestParameters::subwoofer() {
    for (int level = 0; level <= 15; ++level) {
        SoundState state = neutral();
        state.subwooferLevel = level;
        const double gain = chainOf(state).gain[SubRight];
        QVERIFY(level == 0 ? gain == 0 : isGain(gain, (level - 10) * 1.5));
        state.subwooferPhase = 1;
        QCOMPARE(chainOf(state).gain[SubRight], -gain);
        QCOMPARE(chainOf(state).gain[RearRight], 1.0);
    }
}

void TestParameters::crossoverLevels() {
    for (int level = 0; level <= 12; ++level) {
        SoundState state = neutral();
        state.front.level = level;
        QVERIFY(isGain(chainOf(state).gain[FrontRight], level - 12));
        QCOMPARE(chainOf(state).gain[RearRight], 1.0);
        state = neutral();
        state.rear.level = level;
        QVERIFY(isGain(chainOf(state).gain[RearLeft], level - 12));
        state = neutral();
        state.subwoofer.level = level;
        QVERIFY(isGain(chainOf(state).gain[SubLeft], level - 12));
        QCOMPARE(chainOf(state).gain[FrontLeft], 1.0);
    }
}

void TestParameters::delays() {
    for (int steps = 0; steps <= 99; ++steps) {
        SoundState state = neutral();
        state.delay = {steps, 0, 99 - steps, 0, 0, steps};
        const auto delay = chainOf(state).delay;
        QVERIFY(std::abs(delay[0] - steps * 4.8) <= 0.5);
        QVERIFY(std::abs(delay[2] - (99 - steps) * 4.8) <= 0.5);
        QCOMPARE(delay[5], delay[0]);
        QCOMPARE(delay[1], 0);
    }
}

void TestParameters::curves() {
    SoundState state = neutral();
    const auto is = [&state](int type, const Curve &gains) {
        state.eqType = type;
        return curveInForce(state) == gains;
    };
    QVERIFY(is(AudioEQFlat, {}));
    QVERIFY(is(1, {1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 3, 1}));
    QVERIFY(is(AudioEQPop, {2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4}));
    QVERIFY(is(AudioEQRock, {5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4}));
    QVERIFY(is(4, {1, 2, 2, 1, 0, -1, 1, 1, 2, 2, 1, 2, 2}));
    QVERIFY(is(AudioEQElectronic, {6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4}));
    QVERIFY(is(AudioEQJazz, {6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4}));
    QVERIFY(is(AudioEQHipHop, {10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4}));
    QVERIFY(is(6, {}));
    QVERIFY(is(15, {}));
    QVERIFY(is(-1, {}));
}

void TestParameters::customCurve() {
    SoundState state = neutral();
    state.customEq = {0, 1, 11, 12, 13, 24, -12, -1, 12, 12, 12, 12, 12};
    const Curve expected = {-12, -11, -1, 0, 1, 12, -12, -12, 0, 0, 0, 0, 0};
    for (const int type : {16, 20, std::numeric_limits<int>::max()}) {
        state.eqType = type;
        QVERIFY(curveInForce(state) == expected);
    }
}

void TestParameters::loudnessFollowsTheMainLevel() {
    SoundState state = neutral();
    state.loudness = true;
    QVERIFY(chainOf(state) == chainOf(neutral()));  // nothing to make up for at full volume
    state.channelLevel[0] = 34;
    const auto loudness = designLoudness(9);
    const ChainParameters chain = chainOf(state);
    for (size_t i = 0; i < loudnessSections; ++i) {
        QVERIFY(chain.tone[bandCount + i] == loudness[i]);
    }
}

void TestParameters::defeat() {
    SoundState state = neutral();
    state.eqType = AudioEQRock;
    state.loudness = true;
    state.channelLevel[0] = 20;
    state.sourceGain[0] = 13;
    state.balance = 5;
    state.fader = -15;
    state.front = {4, 3, 6};
    state.rear = {5, 2, 0};
    state.subwoofer = {3, 2, 9};
    state.subwooferLevel = 12;
    state.subwooferPhase = 1;
    state.delay = {1, 2, 3, 4, 5, 6};
    state.defeat = true;
    const Parameters parameters = designParameters(state);
    ChainParameters expected;
    expected.crossover[SubLeft] = expected.crossover[SubRight] = butterworthLowPass(2, 63);
    expected.gain = {1, 1, 1, 1, -fromDecibels(-3) * fromDecibels(3), -fromDecibels(-3) * fromDecibels(3)};
    QVERIFY(parameters.chain == expected);
    QVERIFY(isGain(parameters.inputGain[MainInput], -30 + 3));
}

void TestParameters::anyValueIsSafe() {
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
            QVERIFY(std::abs(parameters.chain.gain[output]) <= fromDecibels(7.501));
            QVERIFY(parameters.chain.delay[output] >= 0 && parameters.chain.delay[output] <= 475);
        }
        for (const Biquad &section : parameters.chain.tone) {
            QVERIFY(std::isfinite(section.b0 + section.b1 + section.b2 + section.a1 + section.a2));
        }
    }
}

QTEST_APPLESS_MAIN(TestParameters)
#include "tst_parameters.moc"
