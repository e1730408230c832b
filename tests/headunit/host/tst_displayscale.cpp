// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/displayscale.h"

#include <QTest>

class TestDisplayScale : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void desk_data();
    void desk();
    void fits_data();
    void fits();
};

void TestDisplayScale::desk_data() {
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<double>("scale");
    QTest::newRow("ordinary") << 96.0 << 1.0;
    QTest::newRow("nearly ordinary") << 101.0 << 1.0;
    QTest::newRow("low") << 72.0 << 1.0;
    QTest::newRow("unknown") << 0.0 << 1.0;
    QTest::newRow("a quarter more") << 120.0 << 1.25;
    QTest::newRow("half as much again") << 144.0 << 1.5;
    QTest::newRow("twice") << 192.0 << 2.0;
    QTest::newRow("nearly twice") << 185.0 << 2.0;
}

void TestDisplayScale::desk() {
    QFETCH(double, dotsPerInch);
    QFETCH(double, scale);
    QCOMPARE(headunit::deskScale(dotsPerInch), scale);
}

void TestDisplayScale::fits_data() {
    QTest::addColumn<QSize>("display");
    QTest::addColumn<double>("scale");
    QTest::newRow("the unit's size") << QSize(1136, 600) << 1.0;
    QTest::newRow("full HD: the width decides") << QSize(1920, 1080) << 1.69;
    QTest::newRow("wide: the height decides") << QSize(3840, 600) << 1.0;
    QTest::newRow("twice") << QSize(2272, 1200) << 2.0;
    QTest::newRow("small") << QSize(800, 480) << 0.704;
}

void TestDisplayScale::fits() {
    QFETCH(QSize, display);
    QFETCH(double, scale);
    const QSize unit(1136, 600);
    QCOMPARE(headunit::fittingScale(display, unit), scale);
    QVERIFY(unit.width() * scale <= display.width() && unit.height() * scale <= display.height());
}

QTEST_GUILESS_MAIN(TestDisplayScale)
#include "tst_displayscale.moc"
