// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/language.h"
#include "unittest.h"

#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QSet>
#include <QTextDocument>
#include <QTranslator>
#include <QXmlStreamReader>

using headunit::Language;

namespace {

/// A text of a form, as designed.
struct FormText {
    QString form;
    QString object;
    QString text;
    QSize room;
    QFont font;
    bool wraps = false;
    bool translated = false;
};

/// Reads a <property> or <widget> element of a form file, with what lies in it.
class FormReader {
public:
    explicit FormReader(const QString &fileName) : m_file(fileName) {
        if (!m_file.open(QFile::ReadOnly)) {
            qFatal("Cannot read %s", qPrintable(fileName));
        }
        m_xml.setDevice(&m_file);
    }

    QVector<FormText> read() {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("ui")) {
                continue;
            }
            if (m_xml.name() == QLatin1String("class")) {
                m_form = m_xml.readElementText();
            } else if (m_xml.name() == QLatin1String("widget")) {
                readWidget();
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (m_xml.hasError()) {
            qFatal("%s: %s", qPrintable(m_file.fileName()), qPrintable(m_xml.errorString()));
        }
        return m_texts;
    }

private:
    void readWidget() {
        FormText text;
        text.form = m_form;
        text.object = m_xml.attributes().value("name").toString();
        text.font = QApplication::font();
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("widget")) {
                readWidget();
            } else if (m_xml.name() == QLatin1String("property")) {
                readProperty(text);
            } else {
                m_xml.skipCurrentElement();
            }
        }
        if (!text.text.isEmpty()) {
            m_texts << text;
        }
    }

    void readProperty(FormText &text) {
        const QString property = m_xml.attributes().value("name").toString();
        while (m_xml.readNextStartElement()) {
            const QString kind = m_xml.name().toString();
            if (property == "geometry" || kind == "font") {
                readParts(text);
            } else if (property == "text" && kind == "string") {
                text.translated = m_xml.attributes().value("notr") != QLatin1String("true");
                text.text = m_xml.readElementText();
            } else if (property == "accessibleName" && kind == "string") {
                FormText name = text;  // read out, not shown: it has room
                name.room = QSize(10000, 10000);
                name.translated = true;
                name.text = m_xml.readElementText();
                m_texts << name;
            } else if (property == "wordWrap") {
                text.wraps = m_xml.readElementText() == "true";
            } else {
                m_xml.skipCurrentElement();
            }
        }
    }

    void readParts(FormText &text) {
        while (m_xml.readNextStartElement()) {
            const QString part = m_xml.name().toString();
            const QString value = m_xml.readElementText();
            if (part == "width") {
                text.room.setWidth(value.toInt());
            } else if (part == "height") {
                text.room.setHeight(value.toInt());
            } else if (part == "pointsize") {
                text.font.setPointSize(value.toInt());
            } else if (part == "bold") {
                text.font.setBold(value == "true");
            }
        }
    }

    QFile m_file;
    QXmlStreamReader m_xml;
    QString m_form;
    QVector<FormText> m_texts;
};

QVector<FormText> allFormTexts() {
    QVector<FormText> texts;
    const QDir dir(FORMS_DIR);
    for (const QString &name : dir.entryList({"*.ui"})) {
        for (const FormText &text : FormReader(dir.filePath(name)).read()) {
            texts << text;
        }
    }
    return texts;
}

/// Texts that the pages set by number: what they have room for.
struct Room {
    const char *where;
    QVector<int> ids;
    int points;
    bool bold;
    int width;
};

const QVector<Room> rooms = {
    {"title", {1065, 1066, 1067, 1068, 1069, 1070, 1071, 1072}, 36, false, 524},
    {"flat key", {1073}, 18, false, 136},
    {"row of the settings root", {439, 1081, 1082, 1083}, 24, false, 450},
    {"crossover value", {1074}, 15, false, 88},
    {"crossover channel", {1076, 262, 231}, 15, false, 148},
    {"crossover caption", {1077, 1078, 1079}, 15, false, 226},
    {"source gain caption", {361, 16, 1084, 14, 15, 427}, 23, false, 864},
    {"reset message", {969}, 30, false, 808},
    {"reset question", {970}, 30, true, 808},
    {"reset key", {971}, 24, false, 488},
    {"reset title", {972}, 36, true, 300},
    {"reset result", {973}, 45, false, 880},
    {"curve name", {3, 232, 234, 233, 235, 241, 229, 681}, 24, false, 300},
};

/// Captions of forms by their size there.
struct FormRoom {
    const char *form;
    QStringList sources;
    int points;
    int width;
};

const QVector<FormRoom> formRooms = {
    {"Audiosetting_right_eq_widget", {"Preset1", "Preset2", "Preset3", "Preset4", "Preset5"}, 18, 136},
    {"Audiosetting_right_factoryeq_widget", {"Rock", "Hip Hop", "Electronic", "Jazz", "Pop", "Flat"}, 26, 271},
    {"Audiosetting_right_crossover_widget", {"Presets"}, 15, 170},
    {"Audiosetting_right_timing_widget",
     {"Front Left 1", "Front Right 1", "Rear Left", "Rear Right", "Subwoofer Left", "Subwoofer Right"},
     18,
     260},
    {"Audiosetting_right_timing_widget", {"MSEC.", "Inches."}, 15, 132},
    {"Audiosetting_right_timing_widget", {"Presets"}, 15, 151},
    {"Audiovolumsettings",
     {"Main Volume", "Phone Volume", "Voice Volume", "Navigation Volume", "Ringtone Volume", "TA Volume"},
     23,
     864},
};

}  // namespace

/// Each text fits where it is shown, in each language.
class TestFormTexts : public QObject {
    Q_OBJECT

    static void addLanguages() {
        QTest::addColumn<QString>("code");
        for (const Language::Name &name : Language::all()) {
            QTest::newRow(qPrintable(name.code)) << name.code;
        }
    }

    static QString tooWide(const QString &where, const QString &text, const QFont &font, int width) {
        const int needed = QFontMetrics(font).size(Qt::TextSingleLine, text).width();
        return needed <= width ? QString()
                               : QString("%1: \"%2\" needs %3 of %4 pixels").arg(where, text).arg(needed).arg(width);
    }

private slots:
    void cleanup() { Language::set("en"); }

    void textsByNumberFit_data() { addLanguages(); }

    void textsByNumberFit() {
        QFETCH(QString, code);
        QVERIFY(Language::set(code));
        QStringList faults;
        for (const Room &room : rooms) {
            QFont font(headunit::unitFontFamily(), room.points);
            font.setBold(room.bold);
            for (int id : room.ids) {
                faults << tooWide(room.where, Language::text(id), font, room.width);
            }
        }
        faults.removeAll(QString());
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void captionsFit_data() { addLanguages(); }

    void captionsFit() {
        QFETCH(QString, code);
        QVERIFY(Language::set(code));
        QStringList faults;
        for (const FormRoom &room : formRooms) {
            for (const QString &source : room.sources) {
                faults << tooWide(room.form, QCoreApplication::translate(room.form, qPrintable(source)),
                                  QFont(headunit::unitFontFamily(), room.points), room.width);
            }
        }
        faults.removeAll(QString());
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    // What a form does not have, or has in every language alike, would be measured in English five times.
    void captionsAreThoseThatTheFormsTranslate() {
        QSet<QString> translated;
        for (const FormText &text : allFormTexts()) {
            if (text.translated) {
                translated << text.form + '/' + text.text;
            }
        }
        for (const FormRoom &room : formRooms) {
            for (const QString &source : room.sources) {
                QVERIFY2(translated.contains(room.form + ('/' + source)), qPrintable(source));
            }
        }
    }

    void nothingIsTranslatedThatNoFormShows_data() {
        QTest::addColumn<QString>("file");
        for (const QString &file : QDir(TRANSLATIONS_DIR).entryList({"forms_*.ts"})) {
            QTest::newRow(qPrintable(file)) << file;
        }
    }

    void nothingIsTranslatedThatNoFormShows() {
        QFETCH(QString, file);
        QSet<QString> shown;
        for (const FormText &text : allFormTexts()) {
            if (text.translated) {
                shown << text.form + '/' + text.text;
            }
        }
        QFile table(TRANSLATIONS_DIR "/" + file);
        QVERIFY(table.open(QFile::ReadOnly));
        QXmlStreamReader xml(&table);
        QString form;
        int messages = 0;
        QStringList unshown;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement()) {
                continue;
            }
            if (xml.name() == QLatin1String("name")) {
                form = xml.readElementText();
            } else if (xml.name() == QLatin1String("source")) {
                const QString text = form + '/' + xml.readElementText();
                ++messages;
                if (!shown.contains(text)) {
                    unshown << text;
                }
            }
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(messages > 0);
        QCOMPARE(unshown, QStringList());
    }

    void formsAreTranslatedAndFit_data() { addLanguages(); }

    void formsAreTranslatedAndFit() {
        QFETCH(QString, code);
        QVERIFY(Language::set(code));
        const QVector<FormText> texts = allFormTexts();
        QVERIFY(!texts.isEmpty());
        QTranslator table;
        QVERIFY(code == "en" || table.load(QString(":/headunit/translations/forms_%1.qm").arg(code)));
        QStringList faults;
        for (const FormText &text : texts) {
            if (!text.translated) {
                continue;
            }
            const QString where = text.form + '.' + text.object;
            QString shown = text.text;
            if (code != "en") {
                shown = table.translate(qPrintable(text.form), text.text.toUtf8().constData());
                if (shown.isNull()) {
                    faults << QString("%1: \"%2\" is not translated").arg(where, text.text);
                }
            }
            if (!text.wraps && !Qt::mightBeRichText(shown)) {
                faults << tooWide(where, shown, text.font, text.room.width());
            }
        }
        faults.removeAll(QString());
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

UNIT_TEST_MAIN(TestFormTexts)
#include "tst_formtexts.moc"
