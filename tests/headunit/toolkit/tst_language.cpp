// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/language.h"
#include "translator.h"
#include "unittest.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

using headunit::Language;

namespace {

/// Numbers of all texts that the plug-in asks for.
const int usedIds[] = {3,    14,   15,   16,   229,  231,  232,  233,  234,  235,  241,  262,  361,
                       427,  439,  681,  969,  970,  971,  972,  973,  1065, 1066, 1067, 1068, 1069,
                       1070, 1071, 1072, 1073, 1074, 1076, 1077, 1078, 1079, 1081, 1082, 1083, 1084};

/// A row of a .ts file, by context and id or source text.
using Rows = QMap<QString, QString>;

Rows readTable(const QString &name) {
    QFile file(QStringLiteral(TRANSLATIONS_DIR "/") + name);
    if (!file.open(QFile::ReadOnly)) {
        qFatal("Cannot read %s", qPrintable(file.fileName()));
    }
    Rows rows;
    QString context;
    QString key;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            key = xml.attributes().value("id").toString();
        } else if (xml.name() == QLatin1String("source")) {
            const QString source = xml.readElementText();
            if (key.isEmpty()) {
                key = source;
            }
        } else if (xml.name() == QLatin1String("translation")) {
            const QString path = context + '|' + key;
            if (rows.contains(path)) {
                qFatal("%s: %s occurs twice", qPrintable(name), qPrintable(path));
            }
            const bool finished = !xml.attributes().hasAttribute("type");
            rows[path] = finished ? xml.readElementText() : QString();
        }
    }
    if (xml.hasError()) {
        qFatal("%s: %s", qPrintable(name), qPrintable(xml.errorString()));
    }
    return rows;
}

/// The parts that a translation must keep: placeholders and markup.
QStringList fixedParts(const QString &text) {
    QStringList parts;
    auto match = QRegularExpression("%L?\\d+|%n|<[^>]+>").globalMatch(text);
    while (match.hasNext()) {
        parts << match.next().captured();
    }
    parts.sort();
    return parts;
}

/// Counts what its one object is told.
struct LanguageChanges : public QObject {
    explicit LanguageChanges(QObject *object) : watchedObject(object) { object->installEventFilter(this); }
    QObject *const watchedObject;
    int count = 0;
    bool eventFilter(QObject *watched, QEvent *event) override {
        count += watched == watchedObject && event->type() == QEvent::LanguageChange;
        return false;
    }
};

}  // namespace

/// Languages, and the completeness of their texts.
class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { Language::set("en"); }

    void offersItsLanguages() {
        QStringList offered;
        for (const Language::Name &name : Language::all()) {
            offered << name.code + ' ' + name.native;
        }
        QCOMPARE(offered, (QStringList{"en English", "de Deutsch", "fr Français", "es Español", "ja 日本語"}));
        QCOMPARE(Language::current(), QString("en"));
    }

    void switchIsOneEvent() {
        QWidget page;
        QLabel label(&page);
        LanguageChanges changes(&label);
        LanguageChanges applicationChanges(qApp);
        QVERIFY(Language::set("fr"));
        advance(0);
        QCOMPARE(changes.count, 1);
        QCOMPARE(Language::current(), QString("fr"));
        QVERIFY(Language::set("fr"));
        advance(0);
        QCOMPARE(changes.count, 1);
        QVERIFY(Language::set("en"));
        advance(0);
        QCOMPARE(changes.count, 2);
        QCOMPARE(applicationChanges.count, 2);
    }

    void unknownLanguageChangesNothing() {
        QVERIFY(Language::set("es"));
        LanguageChanges changes(qApp);
        for (const char *code : {"", "xx", "DE", "de_DE", "../en"}) {
            QVERIFY(!Language::set(code));
        }
        advance(0);
        QCOMPARE(changes.count, 0);
        QCOMPARE(Language::current(), QString("es"));
        QCOMPARE(Language::text(1074), QString("Apagado"));
    }

    void textsFollowTheLanguage_data() {
        QTest::addColumn<QString>("timing");
        QTest::addColumn<QString>("phase");
        QTest::newRow("en") << "Timing"
                            << "Phase";
        QTest::newRow("de") << "Laufzeitkorrektur"
                            << "Phase";
        QTest::newRow("fr") << "Alignement temporel"
                            << "Phase";
        QTest::newRow("es") << QString::fromUtf8("Alineación temporal") << "Fase";
        QTest::newRow("ja") << QString::fromUtf8("タイムアライメント") << QString::fromUtf8("位相");
    }

    void textsFollowTheLanguage() {
        QFETCH(QString, timing);
        QFETCH(QString, phase);
        QVERIFY(Language::set(QTest::currentDataTag()));
        QCOMPARE(Language::text(1069), timing);
        QCOMPARE(QCoreApplication::translate("Audiosetting_right_general_widget", "Phase"), phase);
    }

    void missingTextIsEmpty() {
        QVERIFY(Language::set("de"));
        QCOMPARE(Language::text(99999), QString());
        QCOMPARE(QCoreApplication::translate("Audiosetting_right_general_widget", "Not there"), QString("Not there"));
        QCOMPARE(qtTrId("1070"), QString("Audioeinstellungen"));
    }

    void everyTextInEveryLanguage_data() {
        QTest::addColumn<QString>("code");
        for (const Language::Name &name : Language::all()) {
            QTest::newRow(qPrintable(name.code)) << name.code;
        }
    }

    void everyTextInEveryLanguage() {
        QFETCH(QString, code);
        const Rows english = readTable("headunit_en.ts");
        const Rows rows = readTable(QString("headunit_%1.ts").arg(code));
        QCOMPARE(rows.keys(), english.keys());
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            QVERIFY2(!row->trimmed().isEmpty(), qPrintable(row.key()));
            QVERIFY2(fixedParts(*row) == fixedParts(english[row.key()]), qPrintable(row.key()));
        }
        QVERIFY(Language::set(code));
        for (int id : usedIds) {
            QVERIFY2(rows.contains(QString("|%1").arg(id)), qPrintable(QString::number(id)));
            QCOMPARE(Translator::translate(id), rows[QString("|%1").arg(id)]);
        }
    }

    void everyFormTextInEveryLanguage_data() {
        QTest::addColumn<QString>("code");
        for (const Language::Name &name : Language::all()) {
            if (name.code != "en") {
                QTest::newRow(qPrintable(name.code)) << name.code;
            }
        }
    }

    void everyFormTextInEveryLanguage() {
        QFETCH(QString, code);
        const Rows german = readTable("forms_de.ts");
        const Rows rows = readTable(QString("forms_%1.ts").arg(code));
        QCOMPARE(rows.keys(), german.keys());
        QVERIFY(Language::set(code));
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            const QString context = row.key().section('|', 0, 0);
            const QString source = row.key().section('|', 1);
            QVERIFY2(!row->trimmed().isEmpty(), qPrintable(row.key()));
            QVERIFY2(fixedParts(*row) == fixedParts(source), qPrintable(row.key()));
            QCOMPARE(QCoreApplication::translate(qPrintable(context), qPrintable(source)), *row);
        }
    }
};

UNIT_TEST_MAIN(TestLanguage)
#include "tst_language.moc"
