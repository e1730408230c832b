// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/deskinput.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

using headunit::DeskInput;

namespace {

constexpr double fullTurn = 2 * M_PI;

/// A program and the loudspeakers, each by its own clock, with a tone in between.
struct Desk {
    DeskInput input;
    double programRate = 48000;
    double amplitude = 0.25;
    size_t pushed = 0;
    size_t filled = 0;
    std::vector<float> heard{};  ///< left

    void push(size_t frames) {
        std::vector<float> samples;
        for (size_t i = 0; i < frames; ++i, ++pushed) {
            const double angle = fullTurn * 1000 * static_cast<double>(pushed) / programRate;
            samples.insert(samples.end(), 2, static_cast<float>(amplitude * std::cos(angle)));
        }
        input.push(samples.data(), frames);
    }
    void fill(size_t frames) {
        std::vector<float> samples(2 * frames);
        input.fill(samples.data(), frames);
        filled += frames;
        for (size_t i = 0; i < frames; ++i) {
            heard.push_back(samples[2 * i]);
        }
    }
    /// Both go on for a while, the program in pieces of 240, the loudspeakers in pieces of 288.
    void run(double seconds) {
        const size_t end = filled + static_cast<size_t>(seconds * 48000);
        while (filled < end) {
            while (static_cast<double>(pushed + 240) / programRate <= static_cast<double>(filled) / 48000) {
                push(240);
            }
            fill(144);
            fill(144);
        }
    }
};

/// The remainder of a tone when the best one of that frequency is taken away, as a part of it.
double rest(const float *samples, size_t count, double hz) {
    const double step = fullTurn * hz / 48000;
    double cc = 0, cs = 0, ss = 0, xc = 0, xs = 0, xx = 0;
    for (size_t i = 0; i < count; ++i) {
        const double x = static_cast<double>(samples[i]);
        const double c = std::cos(step * static_cast<double>(i));
        const double s = std::sin(step * static_cast<double>(i));
        cc += c * c, cs += c * s, ss += s * s, xc += x * c, xs += x * s, xx += x * x;
    }
    const double determinant = cc * ss - cs * cs;
    const double a = (xc * ss - xs * cs) / determinant;
    const double b = (xs * cc - xc * cs) / determinant;
    return (xx - a * xc - b * xs) / xx;
}

/// ... of the tone near 1 kHz that leaves least, in dB.
double distortion(const float *samples, size_t count) {
    double low = 999;
    double high = 1001;
    while (high - low > 1e-6) {
        const double first = low + (high - low) / 3;
        const double second = high - (high - low) / 3;
        (rest(samples, count, first) < rest(samples, count, second) ? high : low) =
            rest(samples, count, first) < rest(samples, count, second) ? second : first;
    }
    return 10 * std::log10(rest(samples, count, low));
}

}  // namespace

class TestDeskInput : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void differentClocks_data();
    void differentClocks();
    void beginsAndEnds();
    void silentProgramsAreNotHeard();
    void numbersThatAreNone();
    void aProgramThatStandsStill();
    void aMachineThatStandsStill();
};

void TestDeskInput::differentClocks_data() {
    QTest::addColumn<double>("programRate");
    for (const double rate : {47986.0, 48000.0, 48014.0}) {  // 0.03 %
        QTest::addRow("%g", rate) << rate;
    }
}

void TestDeskInput::differentClocks() {
    QFETCH(double, programRate);
    Desk desk;
    desk.programRate = programRate;
    desk.run(30);
    QCOMPARE(desk.input.takeDropouts(), 0U);
    double worst = -1000;
    for (size_t first = 5 * 48000; first + 2400 < desk.heard.size(); first += 12000) {
        worst = std::max(worst, distortion(desk.heard.data() + first, 2400));
    }
    qInfo("%.1f dB", worst);
    QVERIFY(worst < -80);
    // As much waits as is usual, so that the sound comes no later with time.
    const size_t waiting = desk.input.waiting();
    QVERIFY2(waiting > 240 && waiting < DeskInput::usualFrames + 480, qPrintable(QString::number(waiting)));
}

void TestDeskInput::beginsAndEnds() {
    Desk desk;
    std::vector<bool> changes;
    desk.input.setListener([&changes](bool active) { changes.push_back(active); });
    desk.run(1);
    QVERIFY(desk.input.isActive());
    QCOMPARE(changes, std::vector<bool>({true}));
    // As loud as it was
    QVERIFY(std::abs(*std::max_element(desk.heard.end() - 4800, desk.heard.end()) - 0.25F) < 0.001F);
    desk.amplitude = 0;
    desk.run(0.5);
    QVERIFY(desk.input.isActive());
    desk.run(1);
    QVERIFY(!desk.input.isActive());
    QCOMPARE(changes, std::vector<bool>({true, false}));
    QCOMPARE(desk.input.takeDropouts(), 0U);
    desk.amplitude = 0.25;
    desk.run(0.1);
    desk.input.stop();
    QCOMPARE(changes, std::vector<bool>({true, false, true, false}));
}

void TestDeskInput::silentProgramsAreNotHeard() {
    Desk desk;
    desk.amplitude = 0;
    desk.run(2);
    QVERIFY(!desk.input.isActive());
    QVERIFY(std::all_of(desk.heard.begin(), desk.heard.end(), [](float sample) { return sample == 0; }));
}

/// They are silence, and leave their neighbours alone.
void TestDeskInput::numbersThatAreNone() {
    for (const float number : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        Desk desk;
        desk.run(0.5);
        QVERIFY(!desk.input.hasHadInvalid());
        const std::vector<float> samples(480, number);
        desk.input.push(samples.data(), 240);
        QVERIFY(desk.input.hasHadInvalid());
        desk.run(0.5);
        QVERIFY(std::all_of(desk.heard.begin(), desk.heard.end(), [](float x) { return std::abs(x) < 0.5F; }));
        QVERIFY(std::abs(desk.heard[desk.heard.size() - 48]) > 0);
    }
}

void TestDeskInput::aProgramThatStandsStill() {
    Desk desk;
    desk.run(1);
    for (int i = 0; i < 100; ++i) {
        desk.fill(288);
    }
    QCOMPARE(desk.input.takeDropouts(), 1U);
    QCOMPARE(desk.input.takeDropouts(), 0U);
    QVERIFY(
        std::all_of(desk.heard.end() - 4800, desk.heard.end(), [](float sample) { return std::abs(sample) < 1e-6F; }));
    desk.pushed += 28800;  // what it played meanwhile is lost
    desk.run(1);
    QCOMPARE(desk.input.takeDropouts(), 0U);
    QVERIFY(*std::max_element(desk.heard.end() - 480, desk.heard.end()) > 0.2F);
}

/// Sound that came meanwhile is not heard later.
void TestDeskInput::aMachineThatStandsStill() {
    Desk desk;
    desk.run(1);
    for (int i = 0; i < 400; ++i) {
        desk.push(240);
    }
    desk.fill(288);
    size_t frames = 0;
    while (desk.input.takeDropouts() == 0) {
        desk.fill(48);
        frames += 48;
    }
    QVERIFY(frames < 2 * DeskInput::usualFrames);
}

QTEST_APPLESS_MAIN(TestDeskInput)
#include "tst_deskinput.moc"
