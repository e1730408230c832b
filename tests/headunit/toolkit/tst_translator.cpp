// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/language.h"
#include "translator.h"
#include "unittest.h"

/// Texts by number.
class TestTranslator : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { headunit::Language::set("en"); }

    void englishUntilALanguageIsSet() {
        QCOMPARE(Translator::translate(1070), QString("Audio Settings"));
        QCOMPARE(Translator::translate(1074), QString("Off"));
    }

    void followsTheLanguage() {
        QCOMPARE(Translator::translate(1083), QString("Reset Audio Settings"));
        QVERIFY(headunit::Language::set("de"));
        QCOMPARE(Translator::translate(1083), QString("Audio zurücksetzen"));
        QVERIFY(headunit::Language::set("ja"));
        QCOMPARE(Translator::translate(1083), QString("オーディオ設定の初期化"));
        QVERIFY(headunit::Language::set("en"));
        QCOMPARE(Translator::translate(1083), QString("Reset Audio Settings"));
    }

    void unknownNumberIsAnEmptyText_data() {
        QTest::addColumn<int>("id");
        QTest::newRow("none") << 0;
        QTest::newRow("negative") << -1;
        QTest::newRow("unused") << 1075;
        QTest::newRow("large") << 2147483647;
    }

    void unknownNumberIsAnEmptyText() {
        QFETCH(int, id);
        QCOMPARE(Translator::translate(id), QString());
        QVERIFY(headunit::Language::set("fr"));
        QCOMPARE(Translator::translate(id), QString());
    }
};

UNIT_TEST_MAIN(TestTranslator)
#include "tst_translator.moc"
