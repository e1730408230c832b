#include "headunit/audio/engine/limiter.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <complex>
#include <random>
#include <vector>

using namespace headunit::engine;

namespace {

std::vector<float> limited(Limiter &limiter, const std::vector<double> &frames) {
    std::vector<float> out(frames.size());
    limiter.process(frames.data(), out.data(), frames.size() / outputCount);
    return out;
}

std::vector<double> tone(double amplitude, size_t frames, double hz = 300) {
    std::vector<double> samples(frames * outputCount);
    for (size_t i = 0; i < samples.size(); ++i) {
        samples[i] = amplitude * std::sin(2 * M_PI * hz * static_cast<double>(i / outputCount) / sampleRate);
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
    void gainAloneKeepsPeaksIn();
    void sameGainForAllOutputs();
    void gainComesBackExactly();
    void reportsItsGain();
    void holdsThroughLowTones();
};

void TestLimiter::transparentUpToFullScale() {
    Limiter limiter;
    const std::vector<double> in = tone(1, 5000);
    const std::vector<float> out = limited(limiter, in);
    const size_t late = Limiter::latency * outputCount;
    for (size_t i = late; i < out.size(); ++i) {
        QVERIFY(out[i] == static_cast<float>(in[i - late]));
    }
    QVERIFY(limiter.takeLowestGain() == 1.0);
}

void TestLimiter::neverBeyondFullScale() {
    std::mt19937 random(1);
    Limiter limiter;
    for (int round = 0; round < 200; ++round) {
        std::vector<double> in(500 * outputCount);
        const double loudness = std::pow(10.0, random() % 5);
        for (double &sample : in) {
            sample = random() % 10 == 0 ? loudness * (static_cast<double>(random()) / 2147483648.0 - 1) : 0.3;
        }
        QVERIFY(highest(limited(limiter, in)) <= 1.0F);
    }
}

void TestLimiter::peaksOnAnyOutput() {
    for (size_t output = 0; output < outputCount; ++output) {
        for (const double peak : {4.0, -4.0, 1.0005}) {
            Limiter limiter;
            std::vector<double> in(300 * outputCount, 0.5);
            in[100 * outputCount + output] = peak;
            const std::vector<float> out = limited(limiter, in);
            const size_t late = (100 + Limiter::latency) * outputCount;
            const double gain = 1 / std::abs(peak);
            QVERIFY(std::abs(out[late + output] - peak * gain) < 1e-6);
            QVERIFY(std::abs(out[late + (output + 1) % outputCount] - 0.5 * gain) < 1e-6);
        }
    }
}

/// Nothing is cut off at full scale: beside a steady output the gain can be read, and it explains all others. It never
/// falls faster than the lookahead allows.
void TestLimiter::gainAloneKeepsPeaksIn() {
    constexpr double steady = 0.1;
    constexpr size_t frames = 50000;
    std::mt19937 random(2);
    std::vector<double> in(frames * outputCount);
    for (size_t i = 0; i < in.size(); ++i) {
        const double loudness = random() % 100 == 0 ? std::pow(10.0, random() % 3) : 0.5;
        in[i] = i % outputCount == SubRight ? steady : loudness * (static_cast<double>(random()) / 2147483648.0 - 1);
    }
    Limiter limiter;
    const std::vector<float> out = limited(limiter, in);
    const size_t late = Limiter::latency * outputCount;
    double before = 0;
    for (size_t i = late; i < out.size(); i += outputCount) {
        const double gain = out[i + SubRight] / steady;
        for (size_t output = FrontLeft; output < SubRight; ++output) {
            const double expected = in[i - late + output] * gain;
            QVERIFY(std::abs(out[i + output] - expected) <= 1e-6 * std::max(1.0, std::abs(expected)));
        }
        QVERIFY(before - gain <= 1.0 / Limiter::lookahead + 1e-6);
        before = gain;
    }
}

void TestLimiter::sameGainForAllOutputs() {
    Limiter limiter;
    std::vector<double> in = tone(0.5, 3000);
    for (size_t i = 1000 * outputCount; i < 2000 * outputCount; i += outputCount) {
        in[i + RearRight] *= 6;
    }
    const std::vector<float> out = limited(limiter, in);
    size_t reduced = 0;
    for (size_t i = 0; i < out.size(); i += outputCount) {
        QVERIFY(out[i + FrontLeft] == out[i + SubRight]);
        const size_t before = i - Limiter::latency * outputCount;
        reduced += i > Limiter::latency * outputCount && std::abs(out[i]) < std::abs(in[before]) * 0.9;
    }
    QVERIFY(reduced > 900);
}

void TestLimiter::gainComesBackExactly() {
    Limiter limiter;
    limited(limiter, tone(4, 1000));
    limited(limiter, tone(0.5, static_cast<size_t>(3 * sampleRate)));
    limiter.takeLowestGain();
    const std::vector<double> in = tone(0.5, 2000);
    const std::vector<float> out = limited(limiter, in);
    const size_t late = Limiter::latency * outputCount;
    for (size_t i = late; i < out.size(); ++i) {
        QVERIFY(out[i] == static_cast<float>(in[i - late]));
    }
    QVERIFY(limiter.takeLowestGain() == 1.0);
}

void TestLimiter::reportsItsGain() {
    Limiter limiter;
    limited(limiter, tone(2, 2000));
    QVERIFY(std::abs(limiter.takeLowestGain() - 0.5) < 0.001);
    limited(limiter, tone(0.1, static_cast<size_t>(0.05 * sampleRate)));
    limiter.takeLowestGain();
    // A twentieth of a second later, with a time constant of a tenth
    const double recovering = (limited(limiter, tone(0.1, 10)), limiter.takeLowestGain());
    QVERIFY(std::abs(recovering - (1 - 0.5 * std::exp(-0.5))) < 0.005);
    // The lowest gain counts, though it has come back since.
    limited(limiter, tone(4, 2000));
    limited(limiter, tone(0.1, static_cast<size_t>(3 * sampleRate)));
    QVERIFY(std::abs(limiter.takeLowestGain() - 0.25) < 0.001);
    QVERIFY(limiter.takeLowestGain() == 1.0);
}

void TestLimiter::holdsThroughLowTones() {
    // Within a period of a bass tone the gain must not come back so far that the tone is bent much.
    Limiter limiter;
    const std::vector<float> out = limited(limiter, tone(2, 48000, 40));
    double fundamental = 0;
    double total = 0;
    std::complex<double> sum = 0;
    for (size_t i = 24000; i < 48000; ++i) {
        const double sample = out[i * outputCount];
        sum += sample * std::polar(1.0, -2 * M_PI * 40 * static_cast<double>(i) / sampleRate);
        total += sample * sample;
    }
    fundamental = std::norm(sum) * 2 / 24000;
    const double distortion = std::sqrt(std::max(0.0, total - fundamental) / fundamental);
    qInfo("distortion of a 40 Hz tone 6 dB beyond full scale: %.2f %%", distortion * 100);
    QVERIFY(distortion < 0.05);
}

QTEST_APPLESS_MAIN(TestLimiter)
#include "tst_limiter.moc"
