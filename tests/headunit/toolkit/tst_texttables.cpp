// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/texttables.h"
#include "unittest.h"

using headunit::TextTables;

/// Tables of texts: English (1, 2), German (1, 3, and a form), and French without its forms.
class TestTextTables : public QObject {
    Q_OBJECT

    const QString dir = TEXTS_DIR;

private slots:
    void englishFirst() {
        TextTables tables(dir);
        QCOMPARE(tables.code(), QString("en"));
        QCOMPARE(tables.text(1), QString("one"));
        QCOMPARE(tables.text(3), QString());
    }

    void missingTextFallsBackToEnglish() {
        TextTables tables(dir);
        QVERIFY(tables.choose("de"));
        QCOMPARE(tables.text(1), QString("eins"));
        QCOMPARE(tables.text(2), QString("two"));
        QCOMPARE(tables.text(3), QString("drei"));
        QCOMPARE(tables.text(4), QString());
        QVERIFY(tables.choose("en"));
        QCOMPARE(tables.text(1), QString("one"));
        QCOMPARE(tables.text(3), QString());
    }

    void formsHaveTheirContext() {
        TextTables tables(dir);
        QVERIFY(tables.translate("Form", "Back", nullptr, -1).isNull());
        QVERIFY(tables.choose("de"));
        QCOMPARE(tables.translate("Form", "Back", nullptr, -1), QString("Zurück"));
        QVERIFY(tables.translate("Other", "Back", nullptr, -1).isNull());
        QVERIFY(tables.translate("Form", "Forth", nullptr, -1).isNull());
    }

    void languageWithoutAllItsTablesIsNotChosen() {
        TextTables tables(dir);
        QVERIFY(tables.choose("de"));
        QVERIFY(!tables.choose("fr"));
        QVERIFY(!tables.choose("xx"));
        QCOMPARE(tables.code(), QString("de"));
        QCOMPARE(tables.text(1), QString("eins"));
    }

    void withoutTablesTheTextsAreEmpty() {
        QTest::ignoreMessage(QtWarningMsg, "No English texts in /no/such/directory");
        TextTables tables("/no/such/directory");
        QCOMPARE(tables.text(1), QString());
        QVERIFY(!tables.choose("de"));
    }
};

UNIT_TEST_MAIN(TestTextTables)
#include "tst_texttables.moc"
