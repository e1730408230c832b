// SPDX-License-Identifier: Apache-2.0
#include "unittest.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QLabel>
#include <QRawFont>
#include <QScreen>
#include <QTextLayout>

/// The application as the unit sets it up.
class TestUnitApplication : public QObject {
    Q_OBJECT

    static QStringList familiesOf(const QString &text) {
        QTextLayout layout(text, QApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QStringList families;
        for (const QGlyphRun &run : layout.glyphRuns()) {
            families << run.rawFont().familyName();
            for (quint32 glyph : run.glyphIndexes()) {
                if (glyph == 0) {
                    families << "missing glyph";
                }
            }
        }
        families.sort();
        families.removeDuplicates();
        return families;
    }

private slots:
    void defaultFont() {
        QCOMPARE(headunit::unitFontFamily(), QString("Roboto"));
        QCOMPARE(QApplication::font().family(), headunit::unitFontFamily());
        QVERIFY(QFontInfo(QApplication::font()).exactMatch());
        QCOMPARE(QLabel().font().family(), headunit::unitFontFamily());
    }

    void pointsAreTheSamePixelsEverywhere_data() {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("pixels");
        QTest::newRow("caption") << 18 << 24;
        QTest::newRow("value") << 24 << 32;
        QTest::newRow("title") << 36 << 48;
    }

    void pointsAreTheSamePixelsEverywhere() {
        QFETCH(int, points);
        QFETCH(int, pixels);
        QCOMPARE(QFontInfo(QFont(headunit::unitFontFamily(), points)).pixelSize(), pixels);
        QLabel label("Text");
        label.setFont(QFont(headunit::unitFontFamily(), points));
        QCOMPARE(label.logicalDpiX(), 96);
        QCOMPARE(label.fontInfo().pixelSize(), pixels);
    }

    void onlyTheUnitsFontsAreSeen() {
        // Monospace, Sans Serif and Serif are names that fontconfig always offers.
        QStringList families;
        for (const QString &family : QFontDatabase().families()) {
            if (!family.startsWith("Roboto") && family != "Monospace" && family != "Sans Serif" && family != "Serif") {
                families << family;
            }
        }
        QCOMPARE(families, QStringList("MotoyaLCedar"));
    }

    void otherFamiliesBecomeTheUnitsOwn() {
        QCOMPARE(QRawFont::fromFont(QFont("No Such Family", 18)).familyName(), QString("Roboto"));
    }

    void everyScriptIsCovered_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("families");
        QTest::newRow("latin") << QString::fromUtf8("Égaliseur Möglich ¿Qué?") << QStringList("Roboto");
        QTest::newRow("japanese") << QString::fromUtf8("音量設定タイムアライメント") << QStringList("MotoyaLCedar");
        QTest::newRow("mixed") << QString::fromUtf8("プリセットEQ") << (QStringList{"MotoyaLCedar", "Roboto"});
    }

    void everyScriptIsCovered() {
        QFETCH(QString, text);
        QFETCH(QStringList, families);
        QCOMPARE(familiesOf(text), families);
    }

    void numbersDoNotDependOnTheDesk() {
        QCOMPARE(QLocale(), QLocale::c());
        QCOMPARE(QString("%L1").arg(1234.5), QString("1234.5"));
        QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    }
};

UNIT_TEST_MAIN(TestUnitApplication)
#include "tst_unitapplication.moc"
