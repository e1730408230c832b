// SPDX-License-Identifier: Apache-2.0
#include "conformance/checks/keys.h"
#include "eq/eqwidget.h"
#include "headunit/settings/audiokeys.h"
#include "navigation/audiorootpagtsettings.h"
#include "navigation/pageid.h"
#include "platform/audioeqtype.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"
#include "volume/audiosettingsreset.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

// The tables of docs/porting.md are those of the code: what the page says is what the product asks of a unit.
class TestPorting : public PageTest {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void storeKeys();
    void textIds();
    void englishTexts();
    void formTexts();
    void flatKeys();
    void headers();

private:
    /// The cells of each row of the table that follows a line.
    QVector<QStringList> table(const QString &after) const;
    /// Uses every page and the panel, and takes the log.
    static QStringList useEverything();

    QString m_page;
    QStringList m_log;
};

namespace {

QString read(const QString &path) {
    QFile file(QStringLiteral(SOURCE_FOLDER "/") + path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QWidget *visible(QWidget *root, const QString &name) {
    const QList<QWidget *> widgets = root->findChildren<QWidget *>(name);
    for (QWidget *widget : widgets) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// A row of the table of keys.
struct Row {
    QRegularExpression key;
    QStringList defaults;
    bool used;
};

}  // namespace

QVector<QStringList> TestPorting::table(const QString &after) const {
    QVector<QStringList> rows;
    const QStringList lines = m_page.mid(m_page.indexOf(after)).split('\n');
    for (const QString &line : lines) {
        if (!line.startsWith("| ")) {
            if (!rows.isEmpty() && !line.startsWith("|--")) {
                break;
            }
            continue;
        }
        QStringList cells = line.mid(2).split(" | ");
        cells.last().remove(" |");
        rows << cells;
    }
    return rows.mid(1);  // without the head
}

QStringList TestPorting::useEverything() {
    recording::setLogged(recording::Reads);
    recording::state().eqType = AudioEQCustom;
    AudioRootPagtSettings root(nullptr);
    show(&root);
    for (int page = audiosetting::PageGeneral; page <= audiosetting::PageSettingsRoot; ++page) {
        root.updateCurrentPage(page);
        advance(400);
        const QStringList held = {"key_custom2", "key_preset_1", "key_preset_2"};
        for (const QString &name : held) {
            if (QWidget *const key = visible(&root, name)) {
                finger::hold(key, 1700);
                finger::tap(key);
            }
        }
    }
    root.onShowResetAudiosettings();
    advance(0);
    finger::tap(visible(&root, "Key_accept"));
    advance(6000);
    root.updateCurrentPage(audiosetting::PageGeneral);
    advance(400);
    finger::tap(visible(&root, "key_defeat"));
    finger::tap(visible(&root, "key_defeat"));

    Audiosettingsreset reset(nullptr);
    QMetaObject::invokeMethod(&reset, "makeVolumeDefaultEffect");

    audiosetting::EQWidget panel;
    show(&panel);
    for (int type = 0; type <= 21; ++type) {
        recording::state().eqType = type;
        panel.getEQName();
    }
    return recording::take();
}

void TestPorting::initTestCase() {
    m_page = read("docs/porting.md");
    QVERIFY(!m_page.isEmpty());
}

void TestPorting::storeKeys() {
    QVector<Row> rows;
    for (const QStringList &cells : table("## Store keys")) {
        QCOMPARE(cells.size(), 6);
        const QStringList keys = cells[0].section(" (", 0, 0).split(", ");
        for (const QString &key : keys) {
            const QString pattern = QString(key).replace(QRegularExpression("%[12]"), "\\d+");
            rows << Row{QRegularExpression('^' + pattern + '$'), cells[3].split(", "), false};
        }
    }
    QVERIFY(rows.size() > 30);

    const QRegularExpression call("^(?:SettingsFunc::)?[gs]etValue\\(\"([^\"]+)\", ([^,)]+)");
    QSet<QString> unknown;
    const QStringList log = useEverything();
    for (const QString &line : log) {
        const QRegularExpressionMatch match = call.match(line);
        if (!match.hasMatch()) {
            continue;
        }
        bool known = false;
        for (Row &row : rows) {
            if (row.key.match(match.captured(1)).hasMatch() && row.defaults.contains(match.captured(2))) {
                known = row.used = true;
            }
        }
        if (!known) {
            unknown << match.captured(1) + ", default " + match.captured(2);
        }
    }
    QVERIFY2(unknown.isEmpty(), qPrintable("not on the page: " + unknown.values().join("; ")));
    for (const Row &row : rows) {
        QVERIFY2(row.used, qPrintable("on the page, but nothing reads or writes it: " + row.key.pattern()));
    }
}

void TestPorting::textIds() {
    QSet<int> onThePage;
    for (const QStringList &cells : table("| id | English |")) {
        onThePage << cells[0].toInt();
    }
    QSet<int> asked;
    const QRegularExpression call("^translate\\((-?\\d+)\\)$");
    const QStringList log = useEverything();
    for (const QString &line : log) {
        const QRegularExpressionMatch match = call.match(line);
        if (match.hasMatch()) {
            asked << match.captured(1).toInt();
        }
    }
    QCOMPARE(onThePage, asked);
    const QSet<int> checked(std::begin(conformance::textIds), std::end(conformance::textIds));
    QCOMPARE(checked, asked);
    QVERIFY(m_page.contains(QStringLiteral("the %1 ids").arg(asked.size())));
}

void TestPorting::englishTexts() {
    QHash<int, QString> english;
    QXmlStreamReader xml(read("headunit/translations/headunit_en.ts"));
    int id = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            if (xml.name() == QLatin1String("message")) {
                id = xml.attributes().value("id").toInt();
            } else if (xml.name() == QLatin1String("translation")) {
                english[id] = xml.readElementText().replace('\n', ' ');
            }
        }
    }
    for (const QStringList &cells : table("| id | English |")) {
        QCOMPARE(cells[1], english.value(cells[0].toInt()));
    }
}

void TestPorting::formTexts() {
    QMap<QString, QStringList> expected;
    QXmlStreamReader xml(read("headunit/translations/forms_de.ts"));
    QString form;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            if (xml.name() == QLatin1String("name")) {
                form = xml.readElementText();
            } else if (xml.name() == QLatin1String("source")) {
                expected[form] << '"' + xml.readElementText().replace('\n', "\\n") + '"';
            }
        }
    }
    QMap<QString, QStringList> onThePage;
    for (const QStringList &cells : table("| form | texts |")) {
        onThePage[QString(cells[0]).remove('`')] = cells[1].split(QRegularExpression("(?<=\"), (?=\")"));
    }
    QVERIFY(!expected.isEmpty());
    QCOMPARE(onThePage.keys(), expected.keys());
    for (const QString &name : expected.keys()) {
        QCOMPARE(onThePage[name].join("; "), expected[name].join("; "));
    }
}

void TestPorting::flatKeys() {
    QMap<QString, int> unit;
    for (const headunit::FilterKeys &filter : headunit::keys::filters) {
        for (const headunit::SettingKey &key : {filter.freq, filter.y, filter.heigh, filter.level, filter.slope}) {
            unit[key.name] = key.defaultValue;
        }
    }
    QMap<QString, int> kit;
    for (const conformance::Key &key : conformance::crossoverKeys) {
        kit[key.name] = key.flat;
    }
    QCOMPARE(kit, unit);
    QCOMPARE(kit.size(), 15);
    QVERIFY(m_page.contains("the fifteen `crossover/` keys from frontfreq to subwooferheigh"));
    QCOMPARE(int(std::end(conformance::delayKeys) - std::begin(conformance::delayKeys)), headunit::keys::outputs);
}

void TestPorting::headers() {
    const int count = QDir(QStringLiteral(SOURCE_FOLDER "/platform")).entryList({"*.h"}).size();
    QVERIFY(m_page.contains(QStringLiteral("the %1 headers").arg(count)));
}

PAGE_TEST_MAIN(TestPorting)
#include "tst_porting.moc"
