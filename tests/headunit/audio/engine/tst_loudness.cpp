// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/loudness.h"

#include "headunit/audio/engine/filterdesign.h"
#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace headunit::engine;

namespace {

size_t pointOf(double hz) {
    return static_cast<size_t>(std::find(loudnessFrequencies.begin(), loudnessFrequencies.end(), hz) -
                               loudnessFrequencies.begin());
}

double decibels(double attenuation, double hz) {
    std::complex<double> product = 1;
    for (const Biquad &section : designLoudness(attenuation)) {
        product *= response(section, hz);
    }
    return toDecibels(std::abs(product));
}

}  // namespace

class TestLoudness : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void knownFigures_data();
    void knownFigures();
    void filtersFollowTheContours();
    void boostIsLimited();
    void nothingAtTheReference();
    void samplesFollow();
};

void TestLoudness::knownFigures_data() {
    QTest::addColumn<double>("hz");
    QTest::addColumn<double>("boost");
    // Contours of 60 and 80 phon, worked out apart from this program
    constexpr std::pair<double, double> figures[] = {
        {20, 10.51},   {25, 9.97},    {31.5, 9.38},  {40, 8.74},    {50, 8.12},    {63, 7.46},
        {80, 6.74},    {100, 6.04},   {125, 5.34},   {160, 4.56},   {200, 3.83},   {250, 3.11},
        {315, 2.44},   {400, 1.76},   {500, 1.2},    {630, 0.68},   {800, 0.19},   {1000, 0},
        {1250, -0.34}, {1600, -0.58}, {2000, -0.71}, {2500, -0.72}, {3150, -0.79}, {4000, -0.8},
        {5000, -0.8},  {6300, -0.5},  {8000, 0.17},  {10000, 1.36}, {12500, 2.97}};
    for (const auto &[hz, boost] : figures) {
        QTest::newRow(qPrintable(QString::number(hz))) << hz << boost;
    }
}

void TestLoudness::knownFigures() {
    QFETCH(double, hz);
    QFETCH(double, boost);
    QVERIFY(std::abs(equalLoudnessBoost(pointOf(hz), 20) - boost) <= 0.006);
}

void TestLoudness::filtersFollowTheContours() {
    double worst = 0;
    for (double attenuation = 1.5; attenuation <= 19.5; attenuation += 1.5) {
        for (size_t point = 0; point < loudnessPoints; ++point) {
            const double there = decibels(attenuation, loudnessFrequencies[point]);
            worst = std::max(worst, std::abs(there - equalLoudnessBoost(point, attenuation)));
        }
    }
    qInfo("filters at most %.2f dB from the contours, 20 Hz to 12.5 kHz", worst);
    QVERIFY(worst <= 0.25);
}

void TestLoudness::boostIsLimited() {
    for (const double attenuation : {19.5, 30.0, 58.5, 1000.0}) {
        for (double hz = 0.1; hz < 20000; hz *= 1.1) {
            QVERIFY(decibels(attenuation, hz) <= 12);
        }
    }
    QVERIFY(decibels(58.5, 20) > 9);
}

void TestLoudness::nothingAtTheReference() {
    for (const double attenuation : {0.0, -5.0}) {
        for (const Biquad &section : designLoudness(attenuation)) {
            QVERIFY(section.isIdentity());
        }
    }
}

void TestLoudness::samplesFollow() {
    rendering::SoundState state = rendering::neutral();
    state.channelLevel[0] = 32;  // 12 dB down
    state.loudness = true;
    for (const double hz : {50.0, 200.0, 1000.0, 10000.0}) {
        const double heard = rendering::gainDecibels(state, hz, FrontRight);
        QVERIFY2(std::abs(heard - (equalLoudnessBoost(pointOf(hz), 12) - 12)) <= 0.3,
                 qPrintable(QString::number(heard)));
    }
}

QTEST_APPLESS_MAIN(TestLoudness)
#include "tst_loudness.moc"
