// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/parameters.h"

#include "platform/audioeqtype.h"
#include "rendering.h"

#include <QTest>

#include <cmath>

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

Q_DECLARE_METATYPE(std::vector<headunit::Prompt>)

class TestParameters : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void neutralPassesEverything();
    void channelLevels();
    void beepFollowsTheMainLevel();
    void sourceGains();
    void mute();
    void trim();
    void ducking_data();
    void ducking();
    void balance();
    void fader();
    void subwoofer();
    void crossoverLevels();
    void crossoverFilters();
    void delays();
    void loudnessFollowsTheMainLevel();
    void defeat();
};

void TestParameters::neutralPassesEverything() {
    const Parameters parameters = designParameters(neutral());
    ChainParameters expected;
    expected.placement.fill(1);
    expected.gain.fill(1);
    QVERIFY(parameters.chain == expected);
    for (size_t input = 0; input < inputCount; ++input) {
        QVERIFY(parameters.inputGain[input] == 1.0);
        QVERIFY(parameters.ducking[input] == 1.0);
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

void TestParameters::trim() {
    for (const bool defeat : {false, true}) {
        SoundState state = neutral();
        state.defeat = defeat;
        state.subwooferPhase = 1;
        const auto before = designParameters(state).chain.gain;
        state.trim = -60;
        const auto gains = designParameters(state).chain.gain;
        for (size_t output = 0; output < outputCount; ++output) {
            QVERIFY(before[output] != 0.0);
            QVERIFY(std::abs(toDecibels(gains[output] / before[output]) + 6.0) < 1e-9);
        }
    }
}

void TestParameters::mute() {
    for (const bool defeat : {false, true}) {
        SoundState state = neutral();
        state.defeat = defeat;
        state.muted = true;
        const auto gains = designParameters(state).inputGain;
        QVERIFY(gains[MainInput] == 0.0);
        for (size_t other = RingtoneInput; other < inputCount; ++other) {
            QVERIFY(gains[other] == 1.0);  // calls, guidance and the beep go on
        }
    }
}

void TestParameters::ducking_data() {
    QTest::addColumn<std::vector<Prompt>>("prompts");
    QTest::addColumn<double>("main");
    QTest::addColumn<double>("announcement");
    const double ducked = fromDecibels(-12);
    using P = Prompt;
    QTest::newRow("nothing") << std::vector<P>{} << 1.0 << 1.0;
    QTest::newRow("key beep") << std::vector<P>{P::Beep} << 1.0 << 1.0;
    QTest::newRow("navigation") << std::vector<P>{P::Navigation} << ducked << ducked;
    QTest::newRow("voice") << std::vector<P>{P::Voice} << ducked << ducked;
    QTest::newRow("navigation and voice") << std::vector<P>{P::Navigation, P::Voice} << ducked << ducked;
    QTest::newRow("ringtone") << std::vector<P>{P::Ringtone} << 0.0 << 0.0;
    QTest::newRow("phone") << std::vector<P>{P::Phone} << 0.0 << 0.0;
    QTest::newRow("phone and navigation") << std::vector<P>{P::Phone, P::Navigation} << 0.0 << 0.0;
    QTest::newRow("announcement") << std::vector<P>{P::Announcement} << 0.0 << 1.0;
    QTest::newRow("announcement and navigation") << std::vector<P>{P::Announcement, P::Navigation} << 0.0 << ducked;
    QTest::newRow("announcement and phone") << std::vector<P>{P::Announcement, P::Phone} << 0.0 << 0.0;
    QTest::newRow("all") << std::vector<P>{P::Ringtone, P::Phone, P::Navigation, P::Voice, P::Announcement, P::Beep}
                         << 0.0 << 0.0;
}

/// Prompts never step back for one another, and neither Defeat nor mute changes who steps back.
void TestParameters::ducking() {
    QFETCH(std::vector<Prompt>, prompts);
    QFETCH(double, main);
    QFETCH(double, announcement);
    for (const bool defeat : {false, true}) {
        for (const bool muted : {false, true}) {
            SoundState state = neutral();
            state.defeat = defeat;
            state.muted = muted;
            for (const Prompt prompt : prompts) {
                state.activePrompts[static_cast<size_t>(prompt)] = true;
            }
            const Parameters parameters = designParameters(state);
            for (size_t input = 0; input < inputCount; ++input) {
                QCOMPARE(parameters.ducking[input], input == MainInput           ? main
                                                    : input == AnnouncementInput ? announcement
                                                                                 : 1.0);
                QCOMPARE(parameters.inputGain[input], input == MainInput && muted ? 0.0 : 1.0);
            }
        }
    }
}

void TestParameters::balance() {
    for (int balance = -15; balance <= 15; ++balance) {
        SoundState state = neutral();
        state.balance = balance;
        const auto gains = chainOf(state).placement;
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
        const auto gains = chainOf(state).placement;
        for (size_t side = 0; side < 2; ++side) {
            QVERIFY(fader == 15 ? gains[FrontLeft + side] == 0
                                : isGain(gains[FrontLeft + side], -2 * std::max(fader, 0)));
            QVERIFY(fader == -15 ? gains[RearLeft + side] == 0
                                 : isGain(gains[RearLeft + side], -2 * std::max(-fader, 0)));
            QVERIFY(gains[SubLeft + side] == 1.0);
        }
    }
}

void TestParameters::subwoofer() {
    for (int level = 0; level <= 15; ++level) {
        SoundState state = neutral();
        state.subwooferLevel = level;
        const auto upright = chainOf(state).gain;
        state.subwooferPhase = 1;
        const auto turned = chainOf(state).gain;
        for (size_t output = 0; output < outputCount; ++output) {
            if (output < SubLeft) {
                QVERIFY(upright[output] == 1.0);
                QVERIFY(turned[output] == 1.0);
            } else {
                QVERIFY(level == 0 ? upright[output] == 0 : isGain(upright[output], (level - 10) * 1.5));
                QVERIFY(turned[output] == -upright[output]);
            }
        }
    }
}

void TestParameters::crossoverLevels() {
    constexpr CrossoverFilter SoundState::*filters[] = {&SoundState::front, &SoundState::rear, &SoundState::subwoofer};
    for (size_t filter = 0; filter < std::size(filters); ++filter) {
        for (int freq = 0; freq <= 1; ++freq) {  // off or not
            for (int level = 0; level <= 12; ++level) {
                SoundState state = neutral();
                state.*filters[filter] = {freq, 1, level};
                const auto gains = chainOf(state).gain;
                for (size_t output = 0; output < outputCount; ++output) {
                    QVERIFY(isGain(gains[output], output / 2 == filter ? level - 12 : 0));
                }
            }
        }
    }
}

void TestParameters::crossoverFilters() {
    const auto verify = [](CrossoverFilter SoundState::*filter, size_t left, const auto &frequencies, auto design) {
        for (int slope = 1; slope <= 3; ++slope) {
            for (size_t freq = 0; freq < frequencies.size(); ++freq) {
                SoundState state = neutral();
                state.*filter = {static_cast<int>(freq), slope, 12};
                ChainParameters expected = chainOf(neutral());
                if (freq > 0) {
                    expected.crossover[left] = expected.crossover[left + 1] = design(slope, frequencies[freq]);
                }
                QVERIFY(chainOf(state) == expected);
            }
        }
    };
    verify(&SoundState::front, FrontLeft, frontFrequencies, butterworthHighPass);
    verify(&SoundState::rear, RearLeft, rearFrequencies, butterworthHighPass);
    verify(&SoundState::subwoofer, SubLeft, subwooferFrequencies, butterworthLowPass);
}

void TestParameters::delays() {
    for (size_t output = 0; output < outputCount; ++output) {
        for (int steps = 0; steps <= 99; ++steps) {
            SoundState state = neutral();
            state.delay[output] = steps;
            ChainParameters expected = chainOf(neutral());
            expected.delay[output] = (steps * 48 + 5) / 10;
            QVERIFY(chainOf(state) == expected);
        }
    }
}

void TestParameters::loudnessFollowsTheMainLevel() {
    for (int level = 0; level <= 40; ++level) {
        SoundState state = neutral();
        state.channelLevel[0] = level;
        ChainParameters expected = chainOf(state);
        QVERIFY(expected == chainOf(neutral()));
        state.loudness = true;
        const auto loudness = designLoudness((40 - level) * 1.5);
        std::copy(loudness.begin(), loudness.end(), expected.tone.begin());
        QVERIFY(chainOf(state) == expected);
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
    expected.placement.fill(1);
    expected.gain = {1, 1, 1, 1, -fromDecibels(-3) * fromDecibels(3), -fromDecibels(-3) * fromDecibels(3)};
    QVERIFY(parameters.chain == expected);
    QVERIFY(isGain(parameters.inputGain[MainInput], -30 + 3));
}

QTEST_APPLESS_MAIN(TestParameters)
#include "tst_parameters.moc"
