#include "headunit/audio/engine/eqcurves.h"

#include "platform/audioeqtype.h"
#include "rendering.h"

#include <QTest>

#include <limits>

using namespace headunit;
using namespace headunit::engine;
using rendering::neutral;

class TestEqCurves : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void curves();
    void customCurve();
};

void TestEqCurves::curves() {
    SoundState state = neutral();
    const auto is = [&state](int type, const Curve &gains) {
        state.eqType = type;
        return curveInForce(state) == gains;
    };
    QVERIFY(is(AudioEQFlat, {}));
    QVERIFY(is(1, {1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 3, 1}));
    QVERIFY(is(AudioEQPop, {2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4}));
    QVERIFY(is(AudioEQRock, {5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4}));
    QVERIFY(is(4, {1, 2, 2, 1, 0, -1, 1, 1, 2, 2, 1, 2, 2}));
    QVERIFY(is(AudioEQElectronic, {6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4}));
    QVERIFY(is(AudioEQJazz, {6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4}));
    QVERIFY(is(AudioEQHipHop, {10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4}));
    QVERIFY(is(6, {}));
    QVERIFY(is(15, {}));
    QVERIFY(is(-1, {}));
}

void TestEqCurves::customCurve() {
    SoundState state = neutral();
    state.customEq = {0, 1, 11, 12, 13, 24, -12, -1, 12, 12, 12, 12, 12};
    const Curve expected = {-12, -11, -1, 0, 1, 12, -12, -12, 0, 0, 0, 0, 0};
    for (const int type : {16, 20, std::numeric_limits<int>::max()}) {
        state.eqType = type;
        QVERIFY(curveInForce(state) == expected);
    }
}

QTEST_APPLESS_MAIN(TestEqCurves)
#include "tst_eqcurves.moc"
