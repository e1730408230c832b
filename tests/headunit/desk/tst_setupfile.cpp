// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/setupfile.h"

#include "headunit/desk/setups/setupnumber.h"
#include "headunit/desk/setups/setuptable.h"
#include "headunit/settings/factoryfile.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using headunit::parseSetup;
using headunit::SettingsMap;
using headunit::SetupFile;
using headunit::setupText;
using headunit::SetupValue;
using headunit::setupValues;

class TestSetupFile : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void namesAndKeysAreUnique();
    void everyNumberThereAndBack();
    void wholeFileThereAndBack();
    void firstAndLastLine();
    void looksAsDocumented();
    void units_data();
    void units();
    void clampedWithALine_data();
    void clampedWithALine();
    void unknownIsLeftOut();
    void namesOfTheFirstVersion();
    void refused_data();
    void refused();
    void everyCutIsRefused();
    void filesThatAreNone();
    void changes();
    void documentKnowsEveryName();

private:
    static QByteArray file(const QByteArray &lines) {
        return "Audio set-up, version 1\n" + lines + "\nend of set-up\n";
    }
};

void TestSetupFile::namesAndKeysAreUnique() {
    QSet<QString> names;
    QSet<QString> keys;
    for (const SetupValue &value : setupValues()) {
        QVERIFY2(!names.contains(value.name) && !keys.contains(value.key), qPrintable(value.name));
        QVERIFY2(!value.name.contains('%') && !value.key.contains('%'), qPrintable(value.name));
        QVERIFY2(value.low <= value.defaultValue && value.defaultValue <= value.high, qPrintable(value.name));
        QCOMPARE(headunit::setupValueOfKey(value.key), &value);
        names << value.name;
        keys << value.key;
    }
    QVERIFY(!headunit::setupValueOfKey("another"));
}

void TestSetupFile::everyNumberThereAndBack() {
    for (const SetupValue &value : setupValues()) {
        for (int number = value.low; number <= value.high; ++number) {
            const QString text = headunit::setupNumberText(value, number);
            const headunit::SetupNumber parsed = headunit::parseSetupNumber(value, text);
            QVERIFY2(parsed.problem.isEmpty() && parsed.remark.isEmpty(), qPrintable(value.name + " " + text));
            QVERIFY2(parsed.number == number, qPrintable(value.name + " " + text));
        }
    }
}

void TestSetupFile::wholeFileThereAndBack() {
    // Each value away from its default, and from its neighbour.
    SettingsMap settings;
    int i = 0;
    for (const SetupValue &value : setupValues()) {
        const int number = value.low + ++i % (value.high - value.low + 1);
        settings.insert(value.key,
                        value.unit == headunit::SetupUnit::Switch ? QVariant(number != 0) : QVariant(number));
    }
    const SetupFile read = parseSetup(setupText(settings));
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.remarks, QStringList());
    QCOMPARE(read.values, settings);
    // A value that was never set is written as its readers' default.
    const SetupFile defaults = parseSetup(setupText(SettingsMap()));
    QCOMPARE(defaults.values.size(), setupValues().size());
    QCOMPARE(defaults.values.value("subwooferLevel"), QVariant(3));
    QCOMPARE(defaults.values.value("inputgain0"), QVariant(16));
}

void TestSetupFile::firstAndLastLine() {
    const QByteArray text = setupText(SettingsMap());
    QVERIFY(text.startsWith("Audio set-up, version 1\n"));
    QVERIFY(text.endsWith("\nend of set-up\n"));
}

void TestSetupFile::looksAsDocumented() {
    const SettingsMap settings = {{"crossover/frontfreq", 3},
                                  {"crossover/frontslope", 2},
                                  {"crossover/frontlevel", 10},
                                  {"timing/DATA_TYPE0", 5},
                                  {"eq0", 15},
                                  {"Setup_Loudness", true},
                                  {"subwooferphase", 1},
                                  {"customeq1_0", 9}};
    const QString text = QString::fromUtf8(setupText(settings));
    for (const char *line : {"crossover.front.frequency = 63 Hz", "crossover.front.slope = 12 dB/oct",
                             "crossover.front.level = -2 dB", "delay.front_left = 0.5 ms", "equaliser.live.63 = +3 dB",
                             "general.loudness = on", "subwoofer.phase = 180 deg", "equaliser.preset1.63 = +3 dB",
                             "crossover.rear.frequency = off", "volume.main = 16 steps"}) {
        QVERIFY2(text.contains(QString("\n%1\n").arg(line)), line);
    }
}

void TestSetupFile::units_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("spaces") << QByteArray("  delay.front_left=0.5ms  ") << "timing/DATA_TYPE0" << QVariant(5);
    QTest::newRow("plus") << QByteArray("gain.usb = +3 dB") << "audioinputgain1" << QVariant(3);
    QTest::newRow("without a plus") << QByteArray("gain.usb = 3 dB") << "audioinputgain1" << QVariant(3);
    QTest::newRow("minus") << QByteArray("general.balance = -4 steps") << "SoundFieldBalance" << QVariant(-4);
    QTest::newRow("off") << QByteArray("crossover.sub.frequency = off") << "crossover/subwooferfreq" << QVariant(0);
    QTest::newRow("carriage return") << QByteArray("subwoofer.level = 7 steps\r") << "subwooferLevel" << QVariant(7);
    QTest::newRow("comment") << QByteArray("# a word\nsubwoofer.on = on") << "Setup_Sub" << QVariant(true);
}

void TestSetupFile::units() {
    QFETCH(QByteArray, line);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const SetupFile read = parseSetup(file(line));
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.values, (SettingsMap{{key, value}}));
}

void TestSetupFile::clampedWithALine_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("remark");
    QTest::newRow("above") << QByteArray("delay.rear_left = 12.0 ms") << 99
                           << "line 2: delay.rear_left: 12.0 ms is not within 0.0 ms and 9.9 ms, taken as 9.9 ms";
    QTest::newRow("below") << QByteArray("delay.rear_left = -1 ms") << 0
                           << "line 2: delay.rear_left: -1 ms is not within 0.0 ms and 9.9 ms, taken as 0.0 ms";
    QTest::newRow("between") << QByteArray("delay.rear_left = 0.52 ms") << 5
                             << "line 2: delay.rear_left: 0.52 ms lies between two steps, taken as 0.5 ms";
    QTest::newRow("huge") << QByteArray("delay.rear_left = 999999999 ms") << 99
                          << "line 2: delay.rear_left: 999999999 ms is not within 0.0 ms and 9.9 ms, taken as 9.9 ms";
}

void TestSetupFile::clampedWithALine() {
    QFETCH(QByteArray, line);
    QFETCH(int, value);
    QFETCH(QString, remark);
    const SetupFile read = parseSetup(file(line));
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.values.value("timing/DATA_TYPE2"), QVariant(value));
    QCOMPARE(read.remarks, QStringList{remark});
    const SetupFile frequency = parseSetup(file("crossover.front.frequency = 70 Hz"));
    QCOMPARE(frequency.values.value("crossover/frontfreq"), QVariant(3));
    QCOMPARE(frequency.remarks,
             QStringList{"line 2: crossover.front.frequency: 70 Hz is none of its frequencies, taken as 63 Hz"});
}

void TestSetupFile::unknownIsLeftOut() {
    const SetupFile read = parseSetup(file("colour = red\nsubwoofer.level = 4 steps"));
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.values, (SettingsMap{{"subwooferLevel", 4}}));
    QCOMPARE(read.remarks, QStringList{"line 2: \"colour\" is not known here, left out"});
}

/// Version 1.0.0 called a preset of the equaliser a slot, and one that is saved stored.
void TestSetupFile::namesOfTheFirstVersion() {
    const SetupFile read =
        parseSetup(file("equaliser.slot1.63 = +3 dB\nequaliser.slot5.stored = on\n"
                        "equaliser.last_slot = 3\nequaliser.highlighted_slot = 2\n"
                        "crossover.preset1.stored = on\ndelay.preset2.stored = on"));
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.remarks, QStringList());
    QCOMPARE(read.values, (SettingsMap{{"customeq1_0", 9},
                                       {"EqPresetSwitch4", true},
                                       {"custom_eq_type_id", 3},
                                       {"HIGHLIGHT_PRESET_ID", 2},
                                       {"crossover/PRESET_SWITCH0", true},
                                       {"timing/PRESET_ENABLE1", true}}));
    QCOMPARE(parseSetup(file("equaliser.last_slot = 3\nequaliser.last_preset = 3")).problem,
             QString("line 3: equaliser.last_preset stands in line 2 already"));
    QCOMPARE(parseSetup(file("slot = 3")).remarks, QStringList{"line 2: \"slot\" is not known here, left out"});
}

void TestSetupFile::refused_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const QByteArray good = "subwoofer.level = 4 steps";
    QTest::newRow("empty") << QByteArray()
                           << "line 1: this is no set-up, which begins with \"Audio set-up, version 1\"";
    QTest::newRow("other file") << QByteArray("{\n}\n")
                                << "line 1: this is no set-up, which begins with \"Audio set-up, version 1\"";
    QTest::newRow("other version") << QByteArray("Audio set-up, version 2\nend of set-up\n")
                                   << "line 1: version 2 is not known here, only version 1";
    QTest::newRow("cut off") << QByteArray("Audio set-up, version 1\n" + good)
                             << "line 2: the file is cut off: it has no \"end of set-up\"";
    QTest::newRow("wrong unit") << file(good + "\ndelay.front_left = 5 s")
                                << "line 3: delay.front_left: \"5 s\": a number of ms is wanted";
    QTest::newRow("no unit") << file("delay.front_left = 5")
                             << "line 2: delay.front_left: \"5\": a number of ms is wanted";
    QTest::newRow("no number") << file("crossover.page = first")
                               << "line 2: crossover.page: \"first\": a number is wanted";
    QTest::newRow("no frequency")
        << file("crossover.front.frequency = high")
        << "line 2: crossover.front.frequency: \"high\": a frequency in Hz, or off, is wanted";
    QTest::newRow("no switch") << file("general.loudness = yes")
                               << "line 2: general.loudness: \"yes\": on or off is wanted";
    QTest::newRow("no value") << file("subwoofer.level")
                              << "line 2: \"subwoofer.level\" is not of the form name = value";
    QTest::newRow("twice") << file(good + "\n" + good) << "line 3: subwoofer.level stands in line 2 already";
    QTest::newRow("NUL") << file(QByteArray("subwoofer.level\0 = 4 steps", 26))
                         << "line 2: a NUL byte: this is not text";
    QTest::newRow("not text") << file("subwoofer.level = \xff\xfe") << "line 2: this is not text";
    QTest::newRow("large") << QByteArray(2 << 20, '\n') << "larger than 1024 KiB: this is no set-up";
}

void TestSetupFile::refused() {
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    const SetupFile read = parseSetup(text);
    QCOMPARE(read.problem, problem);
    QVERIFY(read.values.isEmpty());
    QVERIFY(read.remarks.isEmpty());
}

void TestSetupFile::everyCutIsRefused() {
    const QByteArray whole = setupText(SettingsMap());
    for (int length = 0; length < whole.size() - 1; length += length < 100 || length > whole.size() - 100 ? 1 : 37) {
        const SetupFile read = parseSetup(whole.left(length));
        QVERIFY2(!read.problem.isEmpty() && read.values.isEmpty(), qPrintable(QString::number(length)));
    }
}

void TestSetupFile::filesThatAreNone() {
    const QTemporaryDir folder;
    QCOMPARE(headunit::readSetup(folder.filePath("none.txt")).problem,
             folder.filePath("none.txt") + ": there is no such file");
    QCOMPARE(headunit::readSetup(folder.path()).problem, folder.path() + ": this is no file");
    QFile large(folder.filePath("large.txt"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64(100) << 20));
    QCOMPARE(headunit::readSetup(large.fileName()).problem,
             large.fileName() + ": larger than 1024 KiB: this is no set-up");
    QCOMPARE(headunit::writeSetup(folder.filePath("no/folder.txt"), SettingsMap()).left(folder.path().size()),
             folder.path());
}

void TestSetupFile::changes() {
    const SettingsMap now = {{"subwooferLevel", 4}, {"Setup_Sub", 1}};
    const auto changes =
        headunit::setupChanges(now, {{"subwooferLevel", 5}, {"Setup_Sub", true}, {"timing/DATA_TYPE0", 5}});
    QCOMPARE(changes.size(), 2);
    QCOMPARE(headunit::setupChangeText(changes[0]), QString("subwoofer.level: 4 steps → 5 steps"));
    QCOMPARE(headunit::setupChangeText(changes[1]), QString("delay.front_left: 0.0 ms → 0.5 ms"));
}

/// docs/setups.md names each value once, with numbers and places written as in the table there.
void TestSetupFile::documentKnowsEveryName() {
    QFile document(SETUPS_DOCUMENT);
    QVERIFY(document.open(QIODevice::ReadOnly));
    QStringList patterns;
    auto found = QRegularExpression("^\\| `([a-z0-9_.{}, ]+)` \\|", QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(document.readAll()));
    while (found.hasNext()) {
        // {a, b} stands for one of them.
        QString pattern = QRegularExpression::escape(found.next().captured(1));
        pattern.replace("\\{", "(").replace("\\}", ")").replace("\\,\\ ", "|");
        patterns << "^" + pattern + "$";
    }
    QVERIFY(patterns.size() > 20);
    for (const SetupValue &value : setupValues()) {
        int matches = 0;
        for (const QString &pattern : qAsConst(patterns)) {
            matches += QRegularExpression(pattern).match(value.name).hasMatch();
        }
        QVERIFY2(matches == 1, qPrintable(QString("%1: %2").arg(value.name).arg(matches)));
    }
}

QTEST_GUILESS_MAIN(TestSetupFile)
#include "tst_setupfile.moc"
