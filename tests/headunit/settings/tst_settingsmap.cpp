// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/settingsmap.h"

#include <QtTest>

#include <limits>

using namespace headunit;

class tst_SettingsMap : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void toInt_data();
    void toInt();
    void toBool_data();
    void toBool();
    void storable();
    void same();
};

void tst_SettingsMap::toInt_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("read");
    constexpr int fallback = -77;
    QTest::newRow("nothing") << QVariant() << fallback;
    QTest::newRow("int") << QVariant(5) << 5;
    QTest::newRow("largest") << QVariant(std::numeric_limits<int>::max()) << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << QVariant(std::numeric_limits<int>::min()) << std::numeric_limits<int>::min();
    QTest::newRow("true") << QVariant(true) << 1;
    QTest::newRow("false") << QVariant(false) << 0;
    QTest::newRow("whole double") << QVariant(-3.0) << -3;
    QTest::newRow("broken double") << QVariant(3.5) << fallback;
    QTest::newRow("huge double") << QVariant(1e18) << fallback;
    QTest::newRow("beyond int") << QVariant(Q_INT64_C(5000000000)) << fallback;
    QTest::newRow("number as text") << QVariant("12") << 12;
    QTest::newRow("text") << QVariant("loud") << fallback;
    QTest::newRow("half a number") << QVariant("12dB") << fallback;
    QTest::newRow("empty text") << QVariant("") << fallback;
    QTest::newRow("true as text") << QVariant("true") << fallback;
    QTest::newRow("number beyond int as text") << QVariant("99999999999") << fallback;
}

void tst_SettingsMap::toInt() {
    QFETCH(QVariant, stored);
    QTEST(headunit::toInt(stored, -77), "read");
}

void tst_SettingsMap::toBool_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("ifFalse");  // read with the default false
    QTest::addColumn<bool>("ifTrue");   // read with the default true
    QTest::newRow("nothing") << QVariant() << false << true;
    QTest::newRow("true") << QVariant(true) << true << true;
    QTest::newRow("false") << QVariant(false) << false << false;
    QTest::newRow("1") << QVariant(1) << true << true;
    QTest::newRow("0") << QVariant(0) << false << false;
    QTest::newRow("-5") << QVariant(-5) << true << true;
    QTest::newRow("0.5") << QVariant(0.5) << true << true;
    QTest::newRow("beyond int") << QVariant(Q_INT64_C(5000000000)) << true << true;
    QTest::newRow("text true") << QVariant(" True") << true << true;
    QTest::newRow("text false") << QVariant("FALSE") << false << false;
    QTest::newRow("text 1") << QVariant("1") << true << true;
    QTest::newRow("text 0") << QVariant("0") << false << false;
    QTest::newRow("text") << QVariant("yes") << false << true;
    QTest::newRow("empty text") << QVariant("") << false << true;
}

void tst_SettingsMap::toBool() {
    QFETCH(QVariant, stored);
    QTEST(headunit::toBool(stored, false), "ifFalse");
    QTEST(headunit::toBool(stored, true), "ifTrue");
}

void tst_SettingsMap::storable() {
    QVERIFY(sameValue(storableValue(7), 7));
    QVERIFY(sameValue(storableValue(7U), 7));
    QVERIFY(sameValue(storableValue(Q_INT64_C(7)), 7));
    QVERIFY(sameValue(storableValue(QVariant::fromValue(short(7))), 7));
    QVERIFY(sameValue(storableValue(Q_INT64_C(5000000000)), Q_INT64_C(5000000000)));
    QVERIFY(sameValue(storableValue(true), true));
    QVERIFY(sameValue(storableValue(2.5), 2.5));
    QVERIFY(sameValue(storableValue(QStringLiteral("x")), QStringLiteral("x")));
    QVERIFY(!storableValue(QVariant()).isValid());
    QVERIFY(!storableValue(QStringList{"x"}).isValid());
    QVERIFY(!storableValue(QByteArray("7")).isValid());
    QVERIFY(!storableValue(std::numeric_limits<double>::quiet_NaN()).isValid());
    QVERIFY(!storableValue(std::numeric_limits<double>::infinity()).isValid());
}

void tst_SettingsMap::same() {
    QVERIFY(sameValue(1, 1));
    QVERIFY(!sameValue(1, 2));
    QVERIFY(!sameValue(1, true));
    QVERIFY(!sameValue(1, 1.0));
    QVERIFY(!sameValue(1, QStringLiteral("1")));
}

QTEST_GUILESS_MAIN(tst_SettingsMap)
#include "tst_settingsmap.moc"
