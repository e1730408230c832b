// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/sampleencoder.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

using headunit::SampleEncoder;
using headunit::SampleFormat;

Q_DECLARE_METATYPE(SampleFormat)

namespace {

/// The bytes as a device reads them: numbers in full scale 1.
std::vector<double> decoded(SampleFormat format, const std::vector<unsigned char> &bytes) {
    const size_t width = headunit::sampleBytes(format);
    std::vector<double> samples;
    for (size_t at = 0; at < bytes.size(); at += width) {
        if (format == SampleFormat::Float32) {
            float sample;
            std::memcpy(&sample, &bytes[at], sizeof sample);
            samples.push_back(static_cast<double>(sample));
            continue;
        }
        const size_t counted = format == SampleFormat::Int24In32 ? 3 : width;
        uint32_t number = 0;
        for (size_t i = 0; i < counted; ++i) {
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
            number |= uint32_t(bytes[at + width - 1 - i]) << (8 * (4 - counted + i));
#else
            number |= uint32_t(bytes[at + i]) << (8 * (4 - counted + i));
#endif
        }
        samples.push_back(static_cast<double>(static_cast<int32_t>(number)) / 2147483648.0);
    }
    return samples;
}

std::vector<double> encoded(SampleFormat format, const std::vector<float> &samples) {
    std::vector<unsigned char> bytes(samples.size() * headunit::sampleBytes(format));
    SampleEncoder(format).encode(samples.data(), samples.size(), bytes.data());
    return decoded(format, bytes);
}

}  // namespace

class TestSampleEncoder : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyFormat_data();
    void everyFormat();
    void ditherIsTriangular();
    void silenceStaysSilent();
};

void TestSampleEncoder::everyFormat_data() {
    QTest::addColumn<SampleFormat>("format");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("tolerance");  // in steps
    QTest::newRow("16") << SampleFormat::Int16 << std::ldexp(1, -15) << 1.5;
    QTest::newRow("24") << SampleFormat::Int24 << std::ldexp(1, -23) << 0.5;
    QTest::newRow("24 in 32") << SampleFormat::Int24In32 << std::ldexp(1, -23) << 0.5;
    QTest::newRow("32") << SampleFormat::Int32 << std::ldexp(1, -31) << 0.5;
    QTest::newRow("float") << SampleFormat::Float32 << 0.0 << 0.0;
}

void TestSampleEncoder::everyFormat() {
    QFETCH(SampleFormat, format);
    QFETCH(double, step);
    QFETCH(double, tolerance);
    const std::vector<float> samples = {0.5F,  -0.5F, 1.0F,  -1.0F, 0.123456789F, -0.987654321F,
                                        1e-7F, 2.0F,  -2.0F, 1e30F, -1e30F,       0.0F};
    const std::vector<double> numbers = encoded(format, samples);
    QCOMPARE(numbers.size(), samples.size());
    for (size_t i = 0; i < samples.size(); ++i) {
        const double wanted = std::clamp(static_cast<double>(samples[i]), -1.0, 1 - step);
        QVERIFY2(std::abs(numbers[i] - wanted) <= tolerance * step,
                 qPrintable(QStringLiteral("%1: %2, not %3").arg(i).arg(numbers[i]).arg(wanted)));
    }
}

/// The mean of what is rounded is the sample itself, and the noise has the same power wherever the sample lies between
/// two steps: a quarter of a step squared.
void TestSampleEncoder::ditherIsTriangular() {
    constexpr size_t count = 200000;
    const double step = std::ldexp(1, -15);
    for (const double place : {0.0, 0.25, 0.5, 0.9}) {
        const double sample = (100 + place) * step;
        const std::vector<double> numbers = encoded(SampleFormat::Int16, std::vector<float>(count, float(sample)));
        double sum = 0;
        double squares = 0;
        double correlated = 0;
        for (size_t i = 0; i < count; ++i) {
            const double error = (numbers[i] - sample) / step;
            QVERIFY(std::abs(error) <= 1.5 + 1e-6);
            sum += error;
            squares += error * error;
            correlated += i > 0 ? error * (numbers[i - 1] - sample) / step : 0;
        }
        const double uncertainty = 5 / std::sqrt(double(count));
        QVERIFY(std::abs(sum / count) < 0.5 * uncertainty);
        QVERIFY(std::abs(squares / count - 0.25) < 0.25 * uncertainty * 1.5);
        QVERIFY(std::abs(correlated / count) < 0.25 * uncertainty);
    }
}

void TestSampleEncoder::silenceStaysSilent() {
    for (const double number : encoded(SampleFormat::Int16, std::vector<float>(1000, 0.0F))) {
        QCOMPARE(number, 0.0);
    }
}

QTEST_APPLESS_MAIN(TestSampleEncoder)
#include "tst_sampleencoder.moc"
