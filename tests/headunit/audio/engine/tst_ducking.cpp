// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/ducking.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

using namespace headunit::engine;

namespace {

std::vector<double> advance(Ducking &ducking, size_t frames) {
    std::vector<double> gains(frames);
    ducking.advance(gains.data(), frames);
    return gains;
}

/// The way from one gain to another, until it is over.
std::vector<double> way(double from, double to) {
    Ducking ducking(from);
    ducking.goTo(to);
    std::vector<double> gains;
    while (ducking.isMoving()) {
        gains.push_back(advance(ducking, 1).front());
    }
    return gains;
}

/// The largest step from one sample to the next, and the largest difference between two such steps.
std::pair<double, double> steepness(const std::vector<double> &gains) {
    double steepest = 0;
    double bend = 0;
    for (size_t i = 2; i < gains.size(); ++i) {
        const double step = gains[i] - gains[i - 1];
        steepest = std::max(steepest, std::abs(step));
        bend = std::max(bend, std::abs(step - (gains[i - 1] - gains[i - 2])));
    }
    return {steepest, bend};
}

constexpr double ducked = 0.25118864315095801;  // -12 dB

}  // namespace

class TestDucking : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void restsWhereItIsPut();
    void downIn50Milliseconds();
    void upIn500Milliseconds();
    void turnsBackAtAnyMoment();
    void sameAgainIsNothing();
    void anyBlockSizeGivesTheSame();
    void staysWithinWhereItWasSent();
};

void TestDucking::restsWhereItIsPut() {
    Ducking ducking;
    QCOMPARE(ducking.gain(), 1.0);
    for (const double gain : {0.0, ducked, 1.0}) {
        ducking.jumpTo(gain);
        QVERIFY(!ducking.isMoving());
        QVERIFY(std::abs(ducking.gain() - gain) < 1e-9);
        QCOMPARE(advance(ducking, 3), std::vector<double>(3, ducking.gain()));
    }
    ducking.goTo(0);
    QVERIFY(ducking.isMoving());
    ducking.jumpTo(1);
    QVERIFY(!ducking.isMoving());
    QCOMPARE(advance(ducking, 5000), std::vector<double>(5000, 1.0));
}

void TestDucking::downIn50Milliseconds() {
    for (const auto &[from, to] : {std::pair(1.0, 0.0), std::pair(1.0, ducked), std::pair(ducked, 0.0)}) {
        const std::vector<double> gains = way(from, to);
        QCOMPARE(gains.size(), size_t(2400));
        QVERIFY(std::is_sorted(gains.rbegin(), gains.rend()));
        QVERIFY(gains.front() > from - 1e-6);
        QVERIFY(std::abs(gains[1200] - (from + to) / 2) < 0.005);
        QVERIFY(std::abs(gains.back() - to) < 1e-9);
    }
}

void TestDucking::upIn500Milliseconds() {
    for (const auto &[from, to] : {std::pair(0.0, 1.0), std::pair(ducked, 1.0), std::pair(0.0, ducked)}) {
        const std::vector<double> gains = way(from, to);
        QVERIFY(gains.size() > 23900 && gains.size() <= 24000);
        QVERIFY(std::is_sorted(gains.begin(), gains.end()));
        QVERIFY(std::abs(gains[12000] - (from + to) / 2) < 0.005);
        QVERIFY(std::abs(gains.back() - to) < 1e-9);
    }
}

/// No corner on the way, wherever it is turned: the gain bends hardly more than on an undisturbed way down.
void TestDucking::turnsBackAtAnyMoment() {
    const auto [steepest, bend] = steepness(way(1, 0));
    for (const size_t down : {1, 300, 600, 1200, 2000, 2399}) {
        for (const size_t up : {1, 600, 1200, 5000, 12000, 23999}) {
            Ducking ducking;
            std::vector<double> gains(10, 1.0);
            for (const auto &[target, frames] : {std::pair(0.0, down), std::pair(1.0, up), std::pair(0.0, size_t(2400)),
                                                 std::pair(1.0, size_t(24000))}) {
                ducking.goTo(target);
                const std::vector<double> next = advance(ducking, frames);
                gains.insert(gains.end(), next.begin(), next.end());
            }
            QVERIFY(!ducking.isMoving());
            QCOMPARE(gains.back(), 1.0);
            QCOMPARE(gains[9 + down + up + 2400], 0.0);
            const auto [here, hereBend] = steepness(gains);
            QVERIFY(here <= steepest * 1.2);
            QVERIFY(hereBend <= bend * 1.2);
        }
    }
}

void TestDucking::sameAgainIsNothing() {
    Ducking ducking;
    ducking.goTo(1);
    QVERIFY(!ducking.isMoving());
    ducking.goTo(ducked);
    advance(ducking, 1000);
    Ducking told = ducking;
    told.goTo(ducked);
    QCOMPARE(advance(told, 2000), advance(ducking, 2000));
}

void TestDucking::anyBlockSizeGivesTheSame() {
    const auto inBlocks = [](size_t block) {
        Ducking ducking;
        std::vector<double> gains;
        for (const double target : {0.0, 1.0, ducked}) {
            ducking.goTo(target);
            for (size_t done = 0; done < 30000; done += block) {
                const std::vector<double> next = advance(ducking, std::min(block, 30000 - done));
                gains.insert(gains.end(), next.begin(), next.end());
            }
        }
        return gains;
    };
    const std::vector<double> whole = inBlocks(30000);
    for (const size_t block : {1, 7, 64, 2399}) {
        QCOMPARE(inBlocks(block), whole);
    }
}

void TestDucking::staysWithinWhereItWasSent() {
    std::mt19937 random(4);
    Ducking ducking(ducked);
    for (int i = 0; i < 2000; ++i) {
        ducking.goTo(random() % 2 ? ducked : random() % 2 ? 0.5 : 0.75);
        for (const double gain : advance(ducking, random() % 3000)) {
            QVERIFY(gain >= ducked - 1e-9 && gain <= 0.75);
        }
    }
    ducking.goTo(0.5);
    advance(ducking, Ducking::upSamples);
    QVERIFY(!ducking.isMoving());
    QCOMPARE(ducking.gain(), 0.5);
}

QTEST_APPLESS_MAIN(TestDucking)
#include "tst_ducking.moc"
