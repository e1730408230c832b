// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/filterdesign.h"

#include "headunit/audio/engine/layout.h"
#include "headunit/audio/service/soundtables.h"

#include <QTest>

#include <cmath>

using namespace headunit::engine;

namespace {

using Design = CrossoverSections (*)(int order, double hz);

std::complex<double> total(const CrossoverSections &sections, double hz) {
    return response(sections[0], hz) * response(sections[1], hz);
}

/// Magnitude in dB of the analogue filter, its frequency axis bent as the digital one's is.
double analogue(int order, double hz, double cutOff, bool highPass) {
    const double ratio = std::tan(pi * hz / sampleRate) / std::tan(pi * cutOff / sampleRate);
    return -10 * std::log10(1 + std::pow(highPass ? 1 / ratio : ratio, 2 * order));
}

/// Largest distance from the analogue curve in dB, where that is above -80 dB.
double farthest(Design design, int order, double cutOff, bool highPass) {
    constexpr double floor = -80;
    constexpr int points = 400;
    double distance = 0;
    for (int i = 0; i <= points; ++i) {
        const double hz = 20 * std::pow(1000, static_cast<double>(i) / points);
        const double expected = analogue(order, hz, cutOff, highPass);
        if (expected > floor) {
            distance = std::max(distance, std::abs(toDecibels(std::abs(total(design(order, cutOff), hz))) - expected));
        }
    }
    return distance;
}

}  // namespace

class TestFilterDesign : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void knownFigures_data();
    void knownFigures();
    void followsTheAnalogueCurve();
    void sumOfHighAndLow();
    void peak();
    void shelves();
    void neutralIsIdentity();
};

void TestFilterDesign::knownFigures_data() {
    QTest::addColumn<int>("order");
    QTest::addColumn<double>("octave");
    QTest::addColumn<double>("twoOctaves");
    QTest::newRow("6 dB/oct") << 1 << -6.99 << -12.30;
    QTest::newRow("12 dB/oct") << 2 << -12.30 << -24.10;
    QTest::newRow("18 dB/oct") << 3 << -18.13 << -36.12;
}

void TestFilterDesign::knownFigures() {
    QFETCH(int, order);
    QFETCH(double, octave);
    QFETCH(double, twoOctaves);
    constexpr double cutOff = 80;
    const auto near = [](const CrossoverSections &sections, double hz, double expected) {
        return std::abs(toDecibels(std::abs(total(sections, hz))) - expected) < 0.01;
    };
    QVERIFY(near(butterworthHighPass(order, cutOff), cutOff, -3.01));
    QVERIFY(near(butterworthHighPass(order, cutOff), cutOff / 2, octave));
    QVERIFY(near(butterworthHighPass(order, cutOff), cutOff / 4, twoOctaves));
    QVERIFY(near(butterworthLowPass(order, cutOff), cutOff, -3.01));
    QVERIFY(near(butterworthLowPass(order, cutOff), cutOff * 2, octave));
    QVERIFY(near(butterworthLowPass(order, cutOff), cutOff * 4, twoOctaves));
}

void TestFilterDesign::followsTheAnalogueCurve() {
    double worst = 0;
    for (int order = 1; order <= 3; ++order) {
        for (size_t i = 1; i < headunit::frontFrequencies.size(); ++i) {
            worst = std::max(worst, farthest(butterworthHighPass, order, headunit::frontFrequencies[i], true));
        }
        for (size_t i = 1; i < headunit::subwooferFrequencies.size(); ++i) {
            worst = std::max(worst, farthest(butterworthHighPass, order, headunit::rearFrequencies[i], true));
            worst = std::max(worst, farthest(butterworthLowPass, order, headunit::subwooferFrequencies[i], false));
        }
    }
    qInfo("farthest from the analogue curve: %.2g dB", worst);
    QVERIFY(worst < 0.02);
}

void TestFilterDesign::sumOfHighAndLow() {
    constexpr double cutOff = 80;
    for (const double hz : {20.0, 50.0, 80.0, 120.0, 400.0, 5000.0}) {
        for (const int order : {1, 3}) {
            const auto high = total(butterworthHighPass(order, cutOff), hz);
            const auto low = total(butterworthLowPass(order, cutOff), hz);
            QVERIFY(std::abs(std::abs(high + low) - 1) < 1e-6);
            QVERIFY(std::abs(std::abs(high - low) - 1) < 1e-6);
        }
    }
    const auto high = total(butterworthHighPass(2, cutOff), cutOff);
    const auto low = total(butterworthLowPass(2, cutOff), cutOff);
    QVERIFY(std::abs(high + low) < 1e-6);
    QVERIFY(std::abs(toDecibels(std::abs(high - low)) - 3.01) < 0.01);
}

void TestFilterDesign::peak() {
    constexpr double gain = 4;
    constexpr double width = 0.05;
    const Biquad section = peaking(1000, gain, width);
    QVERIFY(std::abs(std::abs(response(section, 1000)) - gain) < 1e-9);
    QVERIFY(std::abs(std::abs(response(section, 1)) - 1) < 1e-4);
    for (const double hz : {300.0, 900.0, 2500.0, 20000.0}) {
        const double x = warpedDistance(hz, 1000);
        const double expected = (x * x + gain * gain * width * width) / (x * x + width * width);
        QVERIFY(std::abs(std::norm(response(section, hz)) - expected) < 1e-9);
    }
}

void TestFilterDesign::shelves() {
    constexpr double gain = 0.25;
    QVERIFY(std::abs(std::abs(response(lowShelf(500, gain), 0)) - gain) < 1e-9);
    QVERIFY(std::abs(std::abs(response(lowShelf(500, gain), 500)) - std::sqrt(gain)) < 1e-9);
    QVERIFY(std::abs(std::abs(response(lowShelf(500, gain), sampleRate / 2)) - 1) < 1e-9);
    QVERIFY(std::abs(std::abs(response(highShelf(500, gain), 0)) - 1) < 1e-9);
    QVERIFY(std::abs(std::abs(response(highShelf(500, gain), 500)) - std::sqrt(gain)) < 1e-9);
    QVERIFY(std::abs(std::abs(response(highShelf(500, gain), sampleRate / 2)) - gain) < 1e-9);
}

void TestFilterDesign::neutralIsIdentity() {
    QVERIFY(Biquad().isIdentity());
    QVERIFY(peaking(1000, 1, 0.1).isIdentity());
    QVERIFY(lowShelf(1000, 1).isIdentity());
    QVERIFY(highShelf(1000, 1).isIdentity());
    QVERIFY(!peaking(1000, 1.1, 0.1).isIdentity());
}

QTEST_APPLESS_MAIN(TestFilterDesign)
#include "tst_filterdesign.moc"
