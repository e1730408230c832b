// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/limiter.h"
#include "headunit/audio/engine/limitergain.h"

#include "headunit/audio/engine/filterdesign.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <complex>
#include <random>
#include <vector>

using namespace headunit::engine;

namespace {

using Gains = std::array<double, pairCount>;
constexpr Gains none = {1, 1, 1};

std::vector<float> limited(Limiter &limiter, const std::vector<double> &frames) {
    std::vector<float> out(frames.size());
    limiter.process(frames.data(), out.data(), frames.size() / outputCount);
    return out;
}

std::vector<double> tone(double amplitude, size_t frames, double hz = 300) {
    std::vector<double> samples(frames * outputCount);
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = amplitude * std::sin(2 * pi * hz * static_cast<double>(i / outputCount) / sampleRate);
    }
    return samples;
}

float highest(const std::vector<float> &samples) {
    float peak = 0;
    for (const float sample : samples) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

}  // namespace

class TestLimiter : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void transparentUpToFullScale();
    void neverBeyondFullScale();
    void peaksOnAnyOutput();
    void peaksBetweenSamples();
    void gainAloneKeepsPeaksIn();
    void sameGainForBothOfAPair();
    void anyBlockSizeGivesTheSame();
    void gainComesBackExactly();
    void reportsItsGain();
    void countsWhatGoesBeyond();
    void holdsThroughLowTones();
    void holdsNoLongerThanItMust();
};

void TestLimiter::transparentUpToFullScale() {
    Limiter limiter(bestKernel());
    const std::vector<double> in = tone(1, 5000);
    const std::vector<float> out = limited(limiter, in);
    const size_t late = Limiter::latency * outputCount;
    for (size_t i = late; i < out.size(); ++i) {
        QVERIFY(out[i] == static_cast<float>(in[i - late]));
    }
    QVERIFY(limiter.takeLowestGains() == none);
}

void TestLimiter::neverBeyondFullScale() {
    std::mt19937 random(1);
    Limiter limiter(bestKernel());
    for (int round = 0; round < 200; ++round) {
        std::vector<double> in(500 * outputCount);
        const double loudness = std::pow(10.0, random() % 5);
        for (double &sample : in) {
            sample = random() % 10 == 0 ? loudness * (static_cast<double>(random()) / 2147483648.0 - 1) : 0.3;
        }
        QVERIFY(highest(limited(limiter, in)) <= 1.0F);
    }
}

/// Each crest of an output by itself, its neighbour's not.
void TestLimiter::countsWhatGoesBeyond() {
    Limiter limiter(bestKernel());
    constexpr double hz = 100;
    std::vector<double> in = tone(0, static_cast<size_t>(sampleRate));
    for (size_t frame = 0; frame < in.size() / outputCount; ++frame) {
        in[frame * outputCount + RearRight] = 1.5 * std::sin(2 * pi * hz * static_cast<double>(frame) / sampleRate);
        in[frame * outputCount + SubLeft] = in[frame * outputCount + RearRight] / 2;
    }
    limited(limiter, in);
    const std::array<unsigned, outputCount> overs = limiter.takeOvers();
    QVERIFY2(overs[RearRight] >= 199 && overs[RearRight] <= 201, qPrintable(QString::number(overs[RearRight])));
    QCOMPARE(overs[RearLeft], 0U);
    QCOMPARE(overs[SubLeft], 0U);
    QVERIFY((limiter.takeOvers() == std::array<unsigned, outputCount>{}));
}

/// Only its pair goes down.
void TestLimiter::peaksOnAnyOutput() {
    for (size_t output = 0; output < outputCount; ++output) {
        for (const double peak : {4.0, -4.0, 1.0005}) {
            Limiter limiter(bestKernel());
            std::vector<double> in(1000 * outputCount, 0.5);
            in[500 * outputCount + output] = peak;
            const std::vector<float> out = limited(limiter, in);
            const size_t late = (500 + Limiter::latency) * outputCount;
            for (size_t other = 0; other < outputCount; ++other) {
                const double before = other == output ? peak : 0.5;
                if (other / stereo == output / stereo) {
                    const double gain = out[late + other] / before;
                    QVERIFY(gain < 1 / std::abs(peak) && gain > 0.8 / std::abs(peak));
                } else {
                    QVERIFY(out[late + other] == 0.5F);
                }
            }
            const auto gains = limiter.takeLowestGains();
            for (size_t pair = 0; pair < pairCount; ++pair) {
                QCOMPARE(gains[pair] < 1, pair == output / stereo);
            }
        }
    }
}

/// No sample of this tone exceeds 0.85, but the tone does.
void TestLimiter::peaksBetweenSamples() {
    std::vector<double> in(20000 * outputCount);
    for (size_t i = 0; i < in.size(); ++i) {
        in[i] = 1.2 * std::sin(pi / 2 * static_cast<double>(i / outputCount) + pi / 4);
    }
    Limiter limiter(bestKernel());
    const std::vector<float> out = limited(limiter, in);
    const float crest = highest({out.end() - 10000 * outputCount, out.end()});
    QVERIFY(crest <= static_cast<float>(std::sqrt(0.5)) && crest > 0.68F);
}

/// Nothing is cut off at full scale: beside a steady output the gain can be read, and it explains the other. It never
/// falls faster than along its curve.
void TestLimiter::gainAloneKeepsPeaksIn() {
    constexpr double steady = 0.1;
    constexpr double steepest = 2.0 / 3 / LimiterGain::boxFrames;
    constexpr size_t frames = 50000;
    std::mt19937 random(2);
    std::vector<double> in(frames * outputCount);
    for (size_t i = 0; i < in.size(); ++i) {
        const double loudness = random() % 100 == 0 ? std::pow(10.0, random() % 3) : 0.5;
        in[i] = i % stereo == 1 ? steady : loudness * (static_cast<double>(random()) / 2147483648.0 - 1);
    }
    Limiter limiter(bestKernel());
    const std::vector<float> out = limited(limiter, in);
    const size_t late = Limiter::latency * outputCount;
    for (size_t left = 0; left < outputCount; left += stereo) {
        double before = 0;
        for (size_t i = late + left; i < out.size(); i += outputCount) {
            const double gain = out[i + 1] / steady;
            const double expected = in[i - late] * gain;
            QVERIFY(std::abs(out[i] - expected) <= 1e-6 * std::max(1.0, std::abs(expected)));
            QVERIFY(before - gain <= steepest + 1e-6);
            before = gain;
        }
    }
}

void TestLimiter::sameGainForBothOfAPair() {
    Limiter limiter(bestKernel());
    std::vector<double> in = tone(0.5, 3000);
    for (size_t i = 1000 * outputCount; i < 2000 * outputCount; i += outputCount) {
        in[i + RearRight] *= 6;
    }
    const std::vector<float> out = limited(limiter, in);
    size_t reduced = 0;
    for (size_t i = Limiter::latency * outputCount; i < out.size(); i += outputCount) {
        const size_t before = i - Limiter::latency * outputCount;
        for (const size_t other : {FrontLeft, FrontRight, SubLeft, SubRight}) {
            QVERIFY(out[i + other] == static_cast<float>(in[before + other]));
        }
        const double left = in[before + RearLeft] == 0 ? 1 : out[i + RearLeft] / in[before + RearLeft];
        const double right = in[before + RearRight] == 0 ? 1 : out[i + RearRight] / in[before + RearRight];
        QVERIFY(std::abs(left - right) < 1e-5 || std::abs(in[before + RearLeft]) < 1e-3);
        reduced += left < 0.9;
    }
    QVERIFY(reduced > 900);
}

void TestLimiter::anyBlockSizeGivesTheSame() {
    const std::vector<double> in = tone(1.5, 6000, 300);
    Limiter once(bestKernel());
    const std::vector<float> whole = limited(once, in);
    for (const size_t block : {1, 7, 16, 100}) {
        Limiter limiter(bestKernel());
        std::vector<float> out(in.size());
        for (size_t done = 0; done < 6000; done += block) {
            limiter.process(&in[done * outputCount], &out[done * outputCount], std::min<size_t>(block, 6000 - done));
        }
        QVERIFY(out == whole);
        QVERIFY(limiter.takeLowestGains() == Limiter(once).takeLowestGains());
    }
}

void TestLimiter::gainComesBackExactly() {
    Limiter limiter(bestKernel());
    limited(limiter, tone(4, 1000));
    limited(limiter, tone(0.5, static_cast<size_t>(3 * sampleRate)));
    limiter.takeLowestGains();
    const std::vector<double> in = tone(0.5, 2000);
    const std::vector<float> out = limited(limiter, in);
    const size_t late = Limiter::latency * outputCount;
    for (size_t i = late; i < out.size(); ++i) {
        QVERIFY(out[i] == static_cast<float>(in[i - late]));
    }
    QVERIFY(limiter.takeLowestGains() == none);
}

void TestLimiter::reportsItsGain() {
    const auto isNear = [](const Gains &gains, double expected) {
        return std::all_of(gains.begin(), gains.end(),
                           [expected](double gain) { return std::abs(gain - expected) < 0.01; });
    };
    Limiter limiter(bestKernel());
    limited(limiter, tone(2, 4000));
    QVERIFY(isNear(limiter.takeLowestGains(), 0.485));
    // From the last crest on the gain is held, and then comes back with a time constant of a tenth of a second.
    limited(limiter, tone(0.1, Limiter::latency + LimiterGain::holdFrames + static_cast<size_t>(0.1 * sampleRate)));
    limiter.takeLowestGains();
    QVERIFY(isNear((limited(limiter, tone(0.1, 10)), limiter.takeLowestGains()), 1 - 0.515 * std::exp(-1)));
    // The lowest gain counts, though it has come back since.
    limited(limiter, tone(4, 4000));
    limited(limiter, tone(0.1, static_cast<size_t>(3 * sampleRate)));
    QVERIFY(isNear(limiter.takeLowestGains(), 0.243));
    QVERIFY(limiter.takeLowestGains() == none);
}

/// After a single peak the gain stays at its lowest for the hold, in whole groups, and not a group longer.
void TestLimiter::holdsNoLongerThanItMust() {
    constexpr double lowest = 0.25;
    constexpr size_t group = LimiterGain::groupFrames;
    constexpr size_t expected = 1476;  // 104 groups, less the 188 frames in which the moving averages get there
    LimiterGain limiter;
    size_t held = 0;
    size_t last = 0;
    for (size_t frame = 0; frame < 5000; ++frame) {
        if (frame % group == 0) {
            limiter.want(frame == 10 * group ? lowest : 1);
        }
        if (limiter.next() == lowest) {
            ++held;
            QVERIFY(last == 0 || last + 1 == frame);
            last = frame;
        }
    }
    QCOMPARE(held, expected);
    QVERIFY(held >= LimiterGain::holdFrames && held < LimiterGain::holdFrames + 4 * group);
}

/// Within half a period of a bass tone the gain must not come back at all, or it bends the tone.
void TestLimiter::holdsThroughLowTones() {
    constexpr double goal = -100;
    for (const double hz : {20.0, 30.0, 40.0, 50.0, 100.0}) {
        Limiter limiter(bestKernel());
        const std::vector<float> out = limited(limiter, tone(2, 72000, hz));
        double total = 0;
        std::complex<double> sum = 0;
        for (size_t i = 24000; i < 72000; ++i) {
            const double sample = static_cast<double>(out[i * outputCount]);
            sum += sample * std::polar(1.0, -2 * pi * hz * static_cast<double>(i) / sampleRate);
            total += sample * sample;
        }
        const double fundamental = std::norm(sum) * 2 / 48000;
        const double distortion = toDecibels(std::sqrt(std::abs(total - fundamental) / fundamental));
        qInfo("distortion of a tone of %.0f Hz 6 dB beyond full scale: %.1f dB, goal %.0f", hz, distortion, goal);
        QVERIFY(distortion < goal);
    }
}

QTEST_APPLESS_MAIN(TestLimiter)
#include "tst_limiter.moc"
