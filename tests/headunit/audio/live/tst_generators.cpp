// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/generators.h"

#include "tests/headunit/audio/engine/rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace headunit;

namespace {

template <typename Generator> std::vector<float> play(Generator generator, size_t frames, size_t block) {
    std::vector<float> samples(2 * frames);
    for (size_t done = 0; done < frames; done += block) {
        generator.fill(samples.data() + 2 * done, std::min(block, frames - done));
    }
    return samples;
}

float peak(const std::vector<float> &samples) {
    float highest = 0;
    for (const float sample : samples) {
        highest = std::max(highest, std::abs(sample));
    }
    return highest;
}

template <typename Generator> bool isTheSameInAnyBlocks(const Generator &generator) {
    const std::vector<float> whole = play(generator, 30000, 30000);
    return play(generator, 30000, 256) == whole && play(generator, 30000, 7) == whole;
}

/// Power between two frequencies, from many short spectra.
double power(const std::vector<float> &left, double lowest, double highest) {
    constexpr size_t window = 4800;
    const double step = lowest / 16;
    double sum = 0;
    for (size_t first = 0; first + window <= left.size(); first += window) {
        for (double hz = lowest; hz < highest; hz += step) {
            sum += std::norm(rendering::component(left, hz, first, window));
        }
    }
    return sum * step;
}

}  // namespace

class TestGenerators : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sameInAnyBlocks();
    void withinFullScale();
    void pinkHasTheSameInEveryOctave();
    void sweepRises();
    void chimesDifferAndEnd();
};

void TestGenerators::sameInAnyBlocks() {
    QVERIFY(isTheSameInAnyBlocks(Music()));
    QVERIFY(isTheSameInAnyBlocks(PinkNoise()));
    QVERIFY(isTheSameInAnyBlocks(Sweep()));
    QVERIFY(isTheSameInAnyBlocks(LoudspeakerTone()));
    Chime chime(engine::PhoneInput);
    chime.restart();
    QVERIFY(isTheSameInAnyBlocks(chime));
}

void TestGenerators::withinFullScale() {
    for (const float highest : {peak(play(Music(), 48000 * 16, 480)), peak(play(PinkNoise(), 480000, 480)),
                                peak(play(Sweep(), 480000, 480))}) {
        QVERIFY2(highest > 0.1F && highest < 0.9F, qPrintable(QString::number(static_cast<double>(highest))));
    }
}

void TestGenerators::pinkHasTheSameInEveryOctave() {
    const std::vector<float> samples = play(PinkNoise(), 48000 * 4, 480);
    std::vector<float> left;
    for (size_t i = 0; i < samples.size(); i += 2) {
        left.push_back(samples[i]);
    }
    const double reference = power(left, 640, 1280);
    for (const double hz : {160.0, 320.0, 1280.0, 2560.0, 5120.0}) {
        const double decibels = 10 * std::log10(power(left, hz, 2 * hz) / reference);
        QVERIFY2(std::abs(decibels) < 1.5, qPrintable(QStringLiteral("%1 Hz: %2 dB").arg(hz).arg(decibels)));
    }
}

void TestGenerators::sweepRises() {
    const std::vector<float> samples = play(Sweep(), 480000, 480);
    size_t before = 0;
    for (int second = 0; second < 10; second += 3) {
        size_t crossings = 0;
        for (size_t frame = 0; frame < 9600; ++frame) {
            const size_t i = 2 * (static_cast<size_t>(second) * 48000 + frame);
            crossings += samples[i] < 0 && samples[i + 2] >= 0;
        }
        QVERIFY(crossings > before * 5);
        before = crossings;
    }
}

void TestGenerators::chimesDifferAndEnd() {
    std::vector<std::vector<float>> heard;
    for (size_t input = engine::RingtoneInput; input < engine::inputCount; ++input) {
        Chime chime(static_cast<engine::Input>(input));
        QVERIFY(!chime.isPlaying());
        chime.restart();
        QVERIFY(chime.isPlaying());
        std::vector<float> samples(2 * 96000);
        chime.fill(samples.data(), 96000);
        QVERIFY(!chime.isPlaying());
        QVERIFY(peak(samples) > 0.1F && peak(samples) < 0.5F);
        QVERIFY(std::abs(samples[2 * 95999]) < 0.001F);  // it dies away rather than stops
        QVERIFY(std::find(heard.begin(), heard.end(), samples) == heard.end());
        heard.push_back(samples);
    }
}

QTEST_APPLESS_MAIN(TestGenerators)
#include "tst_generators.moc"
