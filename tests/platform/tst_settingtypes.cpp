// SPDX-License-Identifier: Apache-2.0
// The value that a reader of the other type gets: the same table for every implementation of the contract that this
// links.

#include "platform/audiosettingsutils.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

class tst_SettingTypes : public QObject {
    Q_OBJECT

    AudioSettingsUtils *const store = AudioSettingsUtils::instance();

private slots:
    void truthValuesAreReadAsNumbers_data() {
        QTest::addColumn<QString>("key");
        // Written as a truth value, read as a number: the subwoofer's switch, and loudness.
        for (const char *key : {"Setup_Sub", "Setup_Loudness", "test/switch"}) {
            QTest::newRow(key) << key;
        }
    }
    void truthValuesAreReadAsNumbers() {
        QFETCH(QString, key);
        for (int fallback : {0, 1, 7}) {
            store->setValue(key, 0, true, true);
            QCOMPARE(store->getValue(key, fallback), 1);
            QCOMPARE(store->getValue(key, false), true);
            store->setValue(key, 0, false, true);
            QCOMPARE(store->getValue(key, fallback), 0);
            QCOMPARE(store->getValue(key, true), false);
        }
    }

    void numbersAreReadAsTruthValues_data() {
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("truth");
        QTest::newRow("0") << 0 << false;
        for (int number : {1, -1, 2, 256, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QTest::addRow("%d", number) << number << true;
        }
    }
    void numbersAreReadAsTruthValues() {
        QFETCH(int, number);
        QFETCH(bool, truth);
        store->setValue("test/number", 0, number, true);
        QCOMPARE(store->getValue("test/number", !truth), truth);
        QCOMPARE(store->getValue("test/number", number == 5 ? 6 : 5), number);
    }

    void textsThatAreNeitherAreTheDefault() {
        store->setValue("test/text", QString(), QStringLiteral("loud"), true);
        QCOMPARE(store->getValue("test/text", true), true);
        QCOMPARE(store->getValue("test/text", false), false);
        QCOMPARE(store->getValue("test/text", 9), 9);
    }
};

int main(int argc, char **argv) {
    const QTemporaryDir home;  // the unit keeps its settings below it
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    QCoreApplication application(argc, argv);
    tst_SettingTypes test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_settingtypes.moc"
