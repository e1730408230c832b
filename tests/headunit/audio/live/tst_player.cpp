// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/player.h"

#include "tests/headunit/audio/engine/rendering.h"
#include "tests/headunit/audio/files/soundfiletest.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace headunit;
using namespace headunit::engine;

namespace {

/// The highest sample of the front left loudspeaker in the next half second.
float heard(Player &player) {
    std::vector<float> samples(24000 * outputCount);
    player.fill(samples.data(), 24000);
    float highest = 0;
    for (size_t i = 0; i < samples.size(); i += outputCount) {
        highest = std::max(highest, std::abs(samples[i]));
    }
    return highest;
}

}  // namespace

class TestPlayer : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everySourceIsHeard_data();
    void everySourceIsHeard();
    void chimesFollowTheirLevel();
    void promptsSoundAsLongAsTheyAreActive();
    void loudspeakersTakeTurns();
    void metersLoseNothing();
    void unknownSource();

private:
    std::string m_error;
};

void TestPlayer::everySourceIsHeard_data() {
    QTest::addColumn<QString>("what");
    for (const char *what : {"music", "noise", "sweep"}) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void TestPlayer::everySourceIsHeard() {
    QFETCH(QString, what);
    Player player;
    QVERIFY(player.choose(what.toStdString(), &m_error));
    QCOMPARE(heard(player), 0.0F);  // as long as there are no settings
    player.setState(rendering::neutral());
    heard(player);  // fades in
    const float loud = heard(player);
    QVERIFY(loud > 0.05F);
    SoundState quiet = rendering::neutral();
    quiet.channelLevel[0] = 0;
    player.setState(quiet);
    heard(player);
    QCOMPARE(heard(player), 0.0F);
}

void TestPlayer::chimesFollowTheirLevel() {
    constexpr std::array<int, inputCount> channels = {0, 1, 2, 3, 4, 6, 0};
    for (size_t input = RingtoneInput; input < inputCount; ++input) {
        Player player;
        SoundState state = rendering::neutral();
        QVERIFY(player.choose("silence", &m_error));
        player.setState(state);
        QCOMPARE(heard(player), 0.0F);
        player.chime(static_cast<Input>(input));
        const float loud = heard(player);
        QVERIFY(loud > 0.05F);
        for (int half = 0; half < 4; ++half) {
            heard(player);
        }
        QCOMPARE(heard(player), 0.0F);
        state.channelLevel[static_cast<size_t>(channels[input])] = 36;
        player.setState(state);
        heard(player);
        player.chime(static_cast<Input>(input));
        QVERIFY(std::abs(heard(player) / loud - fromDecibels(-6)) < 0.001);
    }
}

void TestPlayer::promptsSoundAsLongAsTheyAreActive() {
    for (size_t prompt = 0; prompt < SoundState::prompts; ++prompt) {
        Player player;
        QVERIFY(player.choose("silence", &m_error));
        SoundState state = rendering::neutral();
        player.setState(state);
        QCOMPARE(heard(player), 0.0F);
        state.activePrompts[prompt] = true;
        player.setState(state);
        for (int round = 0; round < 5; ++round) {
            // Within any two seconds
            const float loud = std::max({heard(player), heard(player), heard(player), heard(player)});
            QVERIFY(loud > 0.05F);
        }
        state.activePrompts[prompt] = false;
        player.setState(state);
        for (int half = 0; half < 5; ++half) {
            heard(player);  // rings out
        }
        QCOMPARE(heard(player), 0.0F);
    }
}

void TestPlayer::loudspeakersTakeTurns() {
    Player player;
    QVERIFY(player.choose("loudspeakers", &m_error));
    SoundState state = rendering::neutral();
    state.delay.fill(99);
    state.subwoofer = {4, 3, 12};
    player.setState(state);
    constexpr size_t second = 48000;
    for (size_t turn = 0; turn < 2 * outputCount; ++turn) {
        std::vector<float> samples(second * outputCount);
        player.fill(samples.data(), second);
        for (size_t output = 0; output < outputCount; ++output) {
            float highest = 0;
            for (size_t i = output; i < samples.size(); i += outputCount) {
                highest = std::max(highest, std::abs(samples[i]));
            }
            QCOMPARE(highest > 0.1F, output == turn % outputCount);
            QVERIFY(output == turn % outputCount || highest < 0.001F);
        }
    }
}

void TestPlayer::metersLoseNothing() {
    Player player;
    QVERIFY(!player.takeMeters());
    QVERIFY(player.choose("silence", &m_error));
    SoundState state = rendering::neutral();
    state.balance = 15;
    player.setState(state);
    heard(player);
    const Meters *meters = player.takeMeters();
    QVERIFY(meters);
    QVERIFY(meters->peak == Meters().peak);
    QVERIFY((meters->limiterGain == std::array<double, pairCount>{1, 1, 1}));
    QVERIFY(!player.takeMeters());
    // A chime in the first of many readings that nobody takes
    player.chime(PhoneInput);
    QVERIFY(heard(player) > 0.05F);
    for (int half = 0; half < 10; ++half) {
        heard(player);
    }
    meters = player.takeMeters();
    QVERIFY(meters);
    QVERIFY(meters->peak[FrontRight] > 0.05F);
    QCOMPARE(meters->peak[RearRight], 0.0F);
    // A reading that was taken is not in the next one.
    heard(player);
    meters = player.takeMeters();
    QVERIFY(meters);
    QVERIFY(meters->peak == Meters().peak);
}

void TestPlayer::unknownSource() {
    Player player;
    QVERIFY(!player.choose("no such file.wav", &m_error));
    QVERIFY(m_error.find("no such file.wav: ") == 0);
    player.setState(rendering::neutral());
    QCOMPARE(heard(player), 0.0F);
}

QTEST_APPLESS_MAIN(TestPlayer)
#include "tst_player.moc"
