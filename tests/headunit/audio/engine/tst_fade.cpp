// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/fade.h"

#include <QTest>

#include <cmath>

using headunit::engine::Fade;

class TestFade : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void startsAtItsEnd();
    void risesEvenly();
    void leavesItsEndsSlowly();
    void advances();
};

namespace {

constexpr size_t length = 1200;

Fade started() {
    Fade fade(length);
    fade.restart();
    return fade;
}

}  // namespace

void TestFade::startsAtItsEnd() {
    const Fade fade(length);
    QVERIFY(fade.isOver());
    QCOMPARE(fade.remaining(), size_t(0));
}

void TestFade::risesEvenly() {
    const Fade fade = started();
    QCOMPARE(fade.remaining(), length);
    QVERIFY(fade.weights()[length - 1] == 1.0);
    QVERIFY(fade.weights()[0] > 0);
    for (size_t i = 1; i < length; ++i) {
        QVERIFY(fade.weights()[i] > fade.weights()[i - 1] || fade.weights()[i - 1] > 1 - 1e-9);
        QVERIFY(std::abs(fade.weights()[i - 1] + fade.weights()[length - 1 - i] - 1) < 1e-12);
    }
}

/// With three derivatives of zero a curve grows with the fourth power of time.
void TestFade::leavesItsEndsSlowly() {
    const Fade fade = started();
    const double early = fade.weights()[7];  // after 8 samples, then after twice as many
    const double later = fade.weights()[15];
    QVERIFY(std::abs(std::log2(later / early) - 4) < 0.05);
}

void TestFade::advances() {
    Fade fade = started();
    const double *const first = fade.weights();
    fade.advance(500);
    QCOMPARE(fade.remaining(), length - 500);
    QCOMPARE(fade.weights(), first + 500);
    fade.advance(length - 501);
    QVERIFY(!fade.isOver());
    fade.advance(1);
    QVERIFY(fade.isOver());
}

QTEST_APPLESS_MAIN(TestFade)
#include "tst_fade.moc"
