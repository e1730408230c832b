// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/truepeak.h"

#include "headunit/audio/engine/filterdesign.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <random>

using namespace headunit::engine;

namespace {

using Window = std::array<float, TruePeak::window>;

Window tone(double hz, double degrees) {
    Window window;
    for (size_t i = 0; i < window.size(); ++i) {
        window[i] =
            static_cast<float>(std::sin(2 * pi * hz * static_cast<double>(i) / sampleRate + degrees / 180 * pi));
    }
    return window;
}

}  // namespace

class TestTruePeak : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tones();
    void whatItCannotRead();
    void harmlessSamples();
    void onlyItsOwnFrames();
};

/// Of a tone that has at least one crest among the frames
void TestTruePeak::tones() {
    const TruePeak truePeak(bestKernel());
    constexpr double goal = 0.05;
    double lowest = 0;
    double highest = -100;
    for (double hz = 1600; hz <= 20000; hz += 93) {
        for (double degrees = 0; degrees < 180; degrees += 7) {
            const double reading = toDecibels(truePeak.read(tone(hz, degrees)).peak);
            lowest = std::min(lowest, reading);
            highest = std::max(highest, reading);
        }
    }
    qInfo("tones up to 20 kHz are read from %.4f to %.4f dB, goal -%.2f to 0", lowest, highest, goal);
    QVERIFY(lowest > -goal);
    QVERIFY(highest < 1e-4);
}

void TestTruePeak::whatItCannotRead() {
    const TruePeak truePeak(bestKernel());
    for (double hz = 1000; hz <= 18000; hz += 100) {
        QVERIFY(truePeak.read(tone(hz, 20)).unread < 0.05);
    }
    for (double hz = 20000; hz < 24000; hz += 100) {
        const TruePeak::Reading reading = truePeak.read(tone(hz, 90 - hz / sampleRate * 360 * 20));
        QVERIFY(reading.peak < 1 + 1e-5);
        QVERIFY(reading.peak + reading.unread > 1);
    }
}

/// Whatever signs such samples have, nothing between them exceeds 1.
void TestTruePeak::harmlessSamples() {
    const TruePeak truePeak(bestKernel());
    const float harmless = static_cast<float>(truePeak.harmlessSample());
    QVERIFY(harmless > 0.3F);
    double highest = 0;
    std::mt19937 random(1);
    for (int round = 0; round < 10000; ++round) {
        Window window;
        for (float &sample : window) {
            sample = random() % 2 ? harmless : -harmless;
        }
        highest = std::max(highest, truePeak.read(window).peak);
    }
    // The worst there is between two samples: signs in turn, but alike on both sides of it
    for (size_t middle = TruePeak::before; middle < TruePeak::before + TruePeak::frames; ++middle) {
        Window window;
        for (size_t i = 0; i < window.size(); ++i) {
            const size_t distance = i > middle ? i - middle - 1 : middle - i;
            window[i] = distance % 2 ? -harmless : harmless;
        }
        highest = std::max(highest, truePeak.read(window).peak);
    }
    QVERIFY(highest <= 1);
    QVERIFY(highest > 0.7);
}

/// A single sample is seen where it is, and from between it and its neighbours.
void TestTruePeak::onlyItsOwnFrames() {
    const TruePeak truePeak(bestKernel());
    for (size_t place = 0; place < TruePeak::window; ++place) {
        Window window{};
        window[place] = 1;
        const double peak = truePeak.read(window).peak;
        if (place >= TruePeak::before && place < TruePeak::before + TruePeak::frames) {
            QVERIFY(peak >= 1 && peak < 1.01);
        } else {
            QVERIFY(peak < 0.95);
        }
    }
}

QTEST_APPLESS_MAIN(TestTruePeak)
#include "tst_truepeak.moc"
