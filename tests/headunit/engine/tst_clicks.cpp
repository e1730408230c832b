// A change of any control under a steady low tone must not be heard far above the tone.

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

/// What lies above 2 kHz, by three filters of third order in a row: the highest sample in dB of the tone's amplitude.
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

double worstResidual(const SoundState &before, const SoundState &after) {
    constexpr double amplitude = 0.2;
    double worst = -1000;
    for (const double hz : tones) {
        const Stereo signal = tone(hz, frames, amplitude);
        for (const auto &[from, to] : {std::pair(before, after), std::pair(after, before)}) {
            // At a crest, where a jump is largest.
            const size_t crest = changeAt + static_cast<size_t>(std::lround(sampleRate / hz / 4));
            const Sound sound = render(from, signal, {{crest, to}});
            for (const auto &samples : sound) {
                worst = std::max(worst, residual(samples, amplitude));
            }
        }
    }
    return worst;
}

}  // namespace

Q_DECLARE_METATYPE(headunit::SoundState)

class TestClicks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void steadyToneIsSilentAbove();
    void change_data();
    void change();
};

void TestClicks::steadyToneIsSilentAbove() {
    const double floor = worstResidual(neutral(), neutral());
    qInfo("without a change: %.1f dB", floor);
    QVERIFY(floor < -115);
}

void TestClicks::change_data() {
    QTest::addColumn<SoundState>("before");
    QTest::addColumn<SoundState>("after");
    QTest::addColumn<double>("goal");
    constexpr double any = -90;
    constexpr double oneDecibel = -110;
    const auto row = [](const char *name, double goal, auto change, auto prepare) {
        SoundState before = neutral();
        before.delay = {3, 17, 41, 68, 99, 5};  // what changes before a delay comes out later
        prepare(before);
        SoundState after = before;
        change(after);
        QTest::newRow(name) << before << after << goal;
    };
    using S = SoundState &;
    const auto nothing = [](S) {};
    row(
        "source gain, 1 dB", oneDecibel, [](S s) { s.sourceGain[0] = 11; }, nothing);
    row(
        "source gain, 20 dB", any, [](S s) { s.sourceGain[0] = 20; }, [](S s) { s.sourceGain[0] = 0; });
    row(
        "volume, 1.5 dB", any, [](S s) { s.channelLevel[0] = 39; }, nothing);
    row(
        "volume to nothing", any, [](S s) { s.channelLevel[0] = 0; }, nothing);
    row(
        "mute", any, [](S s) { s.muted = true; }, nothing);
    row(
        "balance, a step", any, [](S s) { s.balance = 1; }, nothing);
    row(
        "balance, all the way", any, [](S s) { s.balance = 15; }, [](S s) { s.balance = -15; });
    row(
        "fader, all the way", any, [](S s) { s.fader = 15; }, [](S s) { s.fader = -15; });
    row(
        "crossover level, 1 dB", oneDecibel, [](S s) { s.front.level = s.rear.level = s.subwoofer.level = 11; },
        nothing);
    row(
        "crossover level, 12 dB", any, [](S s) { s.front.level = 0; }, nothing);
    row(
        "subwoofer off", any, [](S s) { s.subwooferLevel = 0; }, nothing);
    row(
        "subwoofer level", any, [](S s) { s.subwooferLevel = 15; }, [](S s) { s.subwooferLevel = 1; });
    row(
        "subwoofer phase", any, [](S s) { s.subwooferPhase = 1; }, nothing);
    row(
        "loudness", any, [](S s) { s.loudness = true; }, [](S s) { s.channelLevel[0] = 16; });
    row(
        "volume under loudness", any, [](S s) { s.channelLevel[0] = 30; },
        [](S s) {
            s.channelLevel[0] = 29;
            s.loudness = true;
        });
    row(
        "delay, a step", any, [](S s) { s.delay[0] = 4; }, nothing);
    row(
        "delay, all the way", any, [](S s) { s.delay.fill(99); }, [](S s) { s.delay.fill(0); });
    row(
        "high-pass on", any,
        [](S s) {
            s.front = {4, 3, 12};
        },
        nothing);
    row(
        "high-pass frequency", any, [](S s) { s.front.freq = 11; },
        [](S s) {
            s.front = {1, 3, 12};
        });
    row(
        "high-pass slope", any, [](S s) { s.rear.slope = 3; },
        [](S s) {
            s.rear = {5, 1, 12};
        });
    row(
        "low-pass on", any,
        [](S s) {
            s.subwoofer = {5, 3, 12};
        },
        nothing);
    row(
        "low-pass frequency", any, [](S s) { s.subwoofer.freq = 5; },
        [](S s) {
            s.subwoofer = {1, 2, 12};
        });
    row(
        "low-pass slope", any, [](S s) { s.subwoofer.slope = 3; },
        [](S s) {
            s.subwoofer = {2, 1, 12};
        });
    row(
        "factory curve", any, [](S s) { s.eqType = 3; }, [](S s) { s.eqType = 8; });
    row(
        "Flat", any, [](S s) { s.eqType = 0; }, [](S s) { s.eqType = 5; });
    row(
        "all bands from one end to the other", any, [](S s) { s.customEq.fill(24); },
        [](S s) {
            s.customEq.fill(0);
            s.channelLevel[0] = 30;
        });
    row(
        "Defeat", any, [](S s) { s.defeat = true; },
        [](S s) {
            s.eqType = 7;
            s.front = {4, 2, 9};
            s.balance = 6;
        });
    for (size_t band = 0; band < bandCount; ++band) {
        row(
            qPrintable(QStringLiteral("band %1 Hz, 1 dB").arg(bandFrequencies[band])), oneDecibel,
            [band](S s) { s.customEq[band] = 13; }, nothing);
        row(
            qPrintable(QStringLiteral("band %1 Hz, 24 dB").arg(bandFrequencies[band])), any,
            [band](S s) { s.customEq[band] = 24; },
            [band](S s) {
                s.customEq[band] = 0;
                s.channelLevel[0] = 32;
            });
    }
}

void TestClicks::change() {
    QFETCH(SoundState, before);
    QFETCH(SoundState, after);
    QFETCH(double, goal);
    const double worst = worstResidual(before, after);
    qInfo("%s: %.1f dB", QTest::currentDataTag(), worst);
    QVERIFY(worst <= goal);
}

QTEST_APPLESS_MAIN(TestClicks)
#include "tst_clicks.moc"
