// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/eqcurves.h"

#include "rendering.h"
#include "tests/tables/factorycurves.h"

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
    for (const reference::FactoryCurve &curve : reference::factoryCurves) {
        QVERIFY2(is(curve.type, curve.gains), qPrintable(QString::number(curve.type)));
    }
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
