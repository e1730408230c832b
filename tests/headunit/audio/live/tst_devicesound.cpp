// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/devicesound.h"

#include "headunit/audio/live/player.h"

#include "tests/headunit/audio/engine/rendering.h"
#include "tests/headunit/audio/files/soundfiletest.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace headunit;
using namespace headunit::engine;

namespace {

constexpr double fullTurn = 2 * pi;

/// The level of what is no tone of that frequency, constant or slower, in dB of the tone.
double distortionAndNoise(const std::vector<double> &samples, double cyclesPerSample) {
    // The tone and the mean that leave the least, from the normal equations
    double matrix[3][4] = {};
    const auto basis = [cyclesPerSample](size_t i) {
        const double angle = fullTurn * cyclesPerSample * static_cast<double>(i);
        return std::array<double, 3>{std::cos(angle), std::sin(angle), 1};
    };
    for (size_t i = 0; i < samples.size(); ++i) {
        const auto value = basis(i);
        for (size_t row = 0; row < 3; ++row) {
            for (size_t column = 0; column < 3; ++column) {
                matrix[row][column] += value[row] * value[column];
            }
            matrix[row][3] += value[row] * samples[i];
        }
    }
    for (size_t pivot = 0; pivot < 3; ++pivot) {
        for (size_t row = 0; row < 3; ++row) {
            const double factor = row == pivot ? 0 : matrix[row][pivot] / matrix[pivot][pivot];
            for (size_t column = pivot; column < 4; ++column) {
                matrix[row][column] -= factor * matrix[pivot][column];
            }
        }
    }
    double tone = 0;
    double rest = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const auto value = basis(i);
        double fitted = 0;
        for (size_t term = 0; term < 3; ++term) {
            fitted += matrix[term][3] / matrix[term][term] * value[term];
        }
        tone += fitted * fitted;
        rest += (samples[i] - fitted) * (samples[i] - fitted);
    }
    return 10 * std::log10(rest / tone);
}

/// Samples behind a sharp high-pass at 2 kHz: a windowed sinc of 4095 taps, Blackman-Harris.
std::vector<double> above2kHz(const std::vector<double> &samples, double rate) {
    constexpr int taps = 4095;
    std::vector<double> filter;
    for (int i = 0; i < taps; ++i) {
        const double phase = fullTurn * i / (taps - 1);
        const double window =
            0.35875 - 0.48829 * std::cos(phase) + 0.14128 * std::cos(2 * phase) - 0.01168 * std::cos(3 * phase);
        const double place = pi * (i - (taps - 1) / 2);
        const double low = place == 0 ? 2 * 2000 / rate : std::sin(2 * 2000 / rate * place) / place;
        filter.push_back(window * ((place == 0 ? 1 : 0) - low));
    }
    std::vector<double> result;
    for (size_t first = 0; first + taps <= samples.size(); ++first) {
        double sum = 0;
        for (size_t i = 0; i < taps; ++i) {
            sum += filter[i] * samples[first + i];
        }
        result.push_back(sum);
    }
    return result;
}

DeviceFormat twoChannels(double rate, SampleFormat samples) {
    return {rate, 2, samples, {{FrontLeft, 0, 1}, {RearRight, 1, 0.5F}}};
}

}  // namespace

class TestDeviceSound : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyRate_data();
    void everyRate();
    void ownRateIsBitForBit();
    void sixteenBits_data();
    void sixteenBits();
    void channelsGetTheirOutputs();
    void endFalls_data();
    void endFalls();
    void blocksMakeNoDifference();

private:
    /// Plays a tone that repeats without a seam.
    void startTone(Player *player, int periodFrames, double amplitude);
    /// The first channel of what comes next.
    std::vector<double> take(DeviceSound *sound, const DeviceFormat &format, size_t frames, size_t blockFrames = 441);

    QTemporaryDir m_folder;
};

void TestDeviceSound::startTone(Player *player, int periodFrames, double amplitude) {
    // Short enough to be read at once
    const double hz = sampleRate / periodFrames;
    const double seconds = 3840 / periodFrames / hz;
    const QString file = m_folder.filePath("tone.wav");
    soundfiletest::write(file.toStdString(), soundfiletest::tone(48000, 2, hz, seconds + 1e-6, amplitude));
    std::string error;
    QVERIFY2(player->choose(file.toStdString(), &error), error.c_str());
    player->setState(rendering::neutral());
}

std::vector<double> TestDeviceSound::take(DeviceSound *sound, const DeviceFormat &format, size_t frames,
                                          size_t blockFrames) {
    std::vector<double> samples;
    std::vector<unsigned char> bytes(blockFrames * sound->frameBytes());
    while (samples.size() < frames) {
        sound->fill(bytes.data(), blockFrames);
        for (size_t frame = 0; frame < blockFrames; ++frame) {
            if (format.samples == SampleFormat::Int16) {
                int16_t sample;
                std::memcpy(&sample, &bytes[frame * sound->frameBytes()], sizeof sample);
                samples.push_back(sample / 32768.0);
            } else {
                float sample;
                std::memcpy(&sample, &bytes[frame * sound->frameBytes()], sizeof sample);
                samples.push_back(static_cast<double>(sample));
            }
        }
    }
    samples.resize(frames);
    return samples;
}

void TestDeviceSound::everyRate_data() {
    QTest::addColumn<double>("rate");
    for (const double rate : {8000.0, 32000.0, 44100.0, 48000.0, 88200.0, 96000.0, 176400.0, 192000.0, 384000.0}) {
        QTest::addRow("%g", rate) << rate;
    }
}

void TestDeviceSound::everyRate() {
    QFETCH(double, rate);
    for (const int period : {48, 6, 4}) {  // 1, 8, 12 kHz
        const double hz = sampleRate / period;
        if (hz > 0.45 * rate) {
            continue;
        }
        Player player;
        startTone(&player, period, 0.891);  // 1 dB below full scale
        const DeviceFormat format = twoChannels(rate, SampleFormat::Float32);
        DeviceSound sound(player, format);
        take(&sound, format, static_cast<size_t>(rate / 2));
        const std::vector<double> samples = take(&sound, format, static_cast<size_t>(rate));
        const double rest = distortionAndNoise(samples, hz / rate);
        qInfo("%g Hz at %g Hz: %.1f dB", hz, rate, rest);
        QVERIFY(rest < -130);
        const double highest = *std::max_element(samples.begin(), samples.end());
        QVERIFY(period < 48 || rate < 32000 || std::abs(20 * std::log10(highest / 0.891)) < 0.01);
    }
}

void TestDeviceSound::ownRateIsBitForBit() {
    Player player;
    Player other;
    startTone(&player, 48, 0.5);
    startTone(&other, 48, 0.5);
    const DeviceFormat format = twoChannels(sampleRate, SampleFormat::Float32);
    DeviceSound sound(player, format);
    const std::vector<double> samples = take(&sound, format, 9999);
    std::vector<float> expected(9999 * outputCount);
    other.fill(expected.data(), 9999);
    for (size_t i = 0; i < samples.size(); ++i) {
        QVERIFY(samples[i] == static_cast<double>(expected[i * outputCount]));
    }
}

void TestDeviceSound::sixteenBits_data() {
    QTest::addColumn<double>("rate");
    for (const double rate : {44100.0, 48000.0}) {
        QTest::addRow("%g", rate) << rate;
    }
}

/// Nothing but the noise of an ideal converter with dither: 93.3 dB below a full tone, and no line of it above -110 dB.
void TestDeviceSound::sixteenBits() {
    QFETCH(double, rate);
    constexpr double amplitude = 0.99;
    Player player;
    startTone(&player, 48, amplitude);
    const DeviceFormat format = twoChannels(rate, SampleFormat::Int16);
    DeviceSound sound(player, format);
    take(&sound, format, static_cast<size_t>(rate / 2));
    const std::vector<double> samples = take(&sound, format, static_cast<size_t>(2 * rate));
    const double rest = distortionAndNoise(samples, 1000 / rate);
    qInfo("%g Hz: %.2f dB", rate, rest);
    QVERIFY(rest < -93);
    for (int harmonic = 2; harmonic * 1000 < rate / 2; ++harmonic) {
        std::complex<double> sum = 0;
        for (size_t i = 0; i < samples.size(); ++i) {
            sum += samples[i] * std::polar(1.0, -fullTurn * harmonic * 1000 / rate * static_cast<double>(i));
        }
        const double level = 2 * std::abs(sum) / static_cast<double>(samples.size()) / amplitude;
        QVERIFY2(20 * std::log10(level) < -110, qPrintable(QString::number(harmonic)));
    }
}

void TestDeviceSound::channelsGetTheirOutputs() {
    Player player;
    startTone(&player, 48, 0.5);
    SoundState state = rendering::neutral();
    state.balance = -15;  // left only, but for the subwoofers
    player.setState(state);
    const DeviceFormat format = {sampleRate, 4, SampleFormat::Float32, {{RearLeft, 1, 0.5F}, {FrontRight, 2, 1}}};
    DeviceSound sound(player, format);
    QCOMPARE(sound.frameBytes(), size_t(16));
    std::vector<float> samples(4 * 4800);
    sound.fill(samples.data(), 4800);
    sound.fill(samples.data(), 4800);
    std::array<float, 4> highest{};
    for (size_t i = 0; i < samples.size(); ++i) {
        highest[i % 4] = std::max(highest[i % 4], std::abs(samples[i]));
    }
    QCOMPARE(highest[0], 0.0F);
    QVERIFY(std::abs(highest[1] - 0.25F) < 0.001F);
    QCOMPARE(highest[2], 0.0F);
    QCOMPARE(highest[3], 0.0F);
}

void TestDeviceSound::endFalls_data() {
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("period");
    for (const double rate : {44100.0, 48000.0, 96000.0}) {
        for (const int period : {768, 192, 48}) {  // 62.5, 250, 1000 Hz
            QTest::addRow("%g Hz at %g Hz", sampleRate / period, rate) << rate << period;
        }
    }
}

void TestDeviceSound::endFalls() {
    QFETCH(double, rate);
    QFETCH(int, period);
    constexpr double amplitude = 0.25;
    const size_t lead = static_cast<size_t>(0.2 * rate);
    double worst = -1000;
    for (int phase = 0; phase < 4; ++phase) {
        Player player;
        startTone(&player, period, amplitude);
        const DeviceFormat format = twoChannels(rate, SampleFormat::Float32);
        DeviceSound sound(player, format);
        take(&sound, format, static_cast<size_t>(rate / 2) + static_cast<size_t>(phase * period / 4), 1);
        std::vector<double> samples = take(&sound, format, lead, 1);
        QVERIFY(!sound.hasEnded());
        sound.end();
        sound.end();  // a second time changes nothing
        const size_t length = static_cast<size_t>(std::lround(DeviceSound::endSeconds * rate));
        const std::vector<double> fall = take(&sound, format, length - 1, 1);
        QVERIFY(!sound.hasEnded());
        const std::vector<double> silence = take(&sound, format, lead, 1);
        QVERIFY(sound.hasEnded());
        QVERIFY(std::all_of(silence.begin(), silence.end(), [](double sample) { return sample == 0; }));
        samples.insert(samples.end(), fall.begin(), fall.end());
        samples.insert(samples.end(), silence.begin(), silence.end());
        for (const double sample : above2kHz(samples, rate)) {
            worst = std::max(worst, 20 * std::log10(std::abs(sample) / amplitude + 1e-30));
        }
    }
    qInfo("%.1f dB", worst);
    QVERIFY(worst < -90);
}

void TestDeviceSound::blocksMakeNoDifference() {
    for (const double rate : {44100.0, 48000.0}) {
        const DeviceFormat format = twoChannels(rate, SampleFormat::Int16);
        std::vector<std::vector<double>> results;
        for (const size_t block : {1, 100, 441, 5000}) {
            Player player;
            startTone(&player, 48, 0.5);
            DeviceSound sound(player, format);
            results.push_back(take(&sound, format, 10000, block));
        }
        for (const auto &result : results) {
            QVERIFY(result == results.front());
        }
    }
}

QTEST_APPLESS_MAIN(TestDeviceSound)
#include "tst_devicesound.moc"
