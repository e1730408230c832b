// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/crossover/crossoverscreen.h"
#include "tests/platform/testmain.h"

#include <limits>

using namespace crossovertest;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr int widgetLimit = 16777215;  // px, of any widget's height
constexpr int furthest = 2000000000;   // px, of the curve from the graph

const QVector<int> oddValues{lowest, lowest + 1, -2000000000, -1000,      -1,          0,
                             4,      13,         1000,        2000000000, highest - 1, highest};

const char *const keys[] = {"key_slope_minus", "key_slope_plus", "key_freq_minus", "key_freq_plus",
                            "key_level_minus", "key_level_plus", "key_front",      "key_rear",
                            "key_sub",         "key_preset_1",   "key_preset_2"};

}  // namespace

/// Stored values that no page would store: used unchecked, and never undefined behaviour.
class tst_CrossoverLimits : public PageTest {
    Q_OBJECT

    static void tapEverything(Screen &screen) {
        for (const char *key : keys) {
            screen.tap(key);
        }
        screen.page.grab();
    }

private slots:
    void oddValue_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<int>("value");
        for (int index : {front, rear, subwoofer}) {
            for (const char *field : {"freq", "y", "level", "slope", "heigh"}) {
                for (int value : oddValues) {
                    QTest::addRow("%s%s %d", qPrintable(channel(index).name), field, value)
                        << index << QByteArray(field) << value;
                }
            }
        }
    }
    void oddValue() {
        QFETCH(int, index);
        QFETCH(QByteArray, field);
        QFETCH(int, value);
        All all;
        Values &v = all[index];
        (field == "freq"    ? v.freq
         : field == "y"     ? v.y
         : field == "level" ? v.level
         : field == "slope" ? v.slope
                            : v.heigh) = value;
        store(index, v);
        recording::setStored("crossover/type", index);
        Screen screen;
        show(&screen.page);
        QCOMPARE(recording::take(), refreshAll(all, index));
        QCOMPARE(screen.text("txt_level_value"), QString::number(qint64(v.level) - 12));
        const bool known = v.freq >= 0 && v.freq < channel(index).frequencies.size();
        QCOMPARE(screen.text("txt_freq_value"),
                 known ? channel(index).frequencies[v.freq].label : QStringLiteral("#1074"));
        QCOMPARE(screen.text("txt_slope_value"), QStringLiteral("6 db"));
        QVERIFY(screen.showsSlope(index, "6db"));
        if (known) {
            QCOMPARE(screen.curve(index)->y(), qBound(-furthest, v.y, furthest));
            QCOMPARE(screen.curve(index)->height(), qBound(0, v.heigh, widgetLimit));
        } else {
            QCOMPARE(screen.curve(index)->y(), 0);
            QCOMPARE(screen.curve(index)->height(), 256);
        }
        // Saved and recalled as they are.
        screen.hold("key_preset_1", 1500);
        recording::clear();
        screen.tap("key_preset_1");
        QCOMPARE(recording::take().mid(19), refreshAll(all, index));
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
        tapEverything(screen);
    }

    void steps_data() {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        const auto row = [](const char *key, const char *field, int from, int to) {
            QTest::addRow("%s %d", key, from) << QByteArray(key) << QByteArray(field) << from << to;
        };
        for (int from : {-1000, -2}) {
            row("key_slope_plus", "slope", from, from + 1);
            row("key_freq_plus", "freq", from, from + 1);
            row("key_level_plus", "level", from, from + 1);
        }
        row("key_slope_plus", "slope", lowest, lowest + 1);
        row("key_freq_plus", "freq", lowest, lowest + 1);
        row("key_level_plus", "level", lowest, lowest + 1);
        for (int from : {12, 1000, highest}) {
            row("key_slope_plus", "slope", from, 1);
            row("key_freq_plus", "freq", from, 0);
            row("key_level_plus", "level", from, 0);
        }
        for (int from : {1000, highest}) {
            row("key_slope_minus", "slope", from, from - 1);
            row("key_freq_minus", "freq", from, from - 1);
            row("key_level_minus", "level", from, from - 1);
        }
        for (int from : {lowest, -1000, -1, 0}) {
            row("key_slope_minus", "slope", from, 3);
            row("key_freq_minus", "freq", from, 11);
            row("key_level_minus", "level", from, 12);
        }
    }
    void steps() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, field);
        QFETCH(int, from);
        QFETCH(int, to);
        recording::setStored(currentKey(front, field), from);
        Screen screen;
        show(&screen.page);
        screen.tap(key);
        QCOMPARE(recording::stored(currentKey(front, field)).toInt(), to);
        const std::array<int, 3> sent = recording::state().frontFilter;
        QCOMPARE(sent[field == "freq" ? 0 : field == "slope" ? 1 : 2], to);
    }

    void oddChannel_data() {
        QTest::addColumn<int>("type");
        for (int type : oddValues) {
            QTest::addRow("%d", type) << type;
        }
    }
    void oddChannel() {
        QFETCH(int, type);
        recording::setStored("crossover/type", type);
        Screen screen;
        show(&screen.page);
        QCOMPARE(recording::take(), refreshAll(All(), type));
        if (type < 0 || type >= channels) {
            // No channel: the keys beep, and that is all.
            for (const char *key : keys) {
                if (QLatin1String(key).size() > 13) {
                    screen.tap(key);
                    QCOMPARE(recording::take(), QStringList("doBeep(0)"));
                }
            }
            for (int index : {front, rear, subwoofer}) {
                QVERIFY(!screen.key(channel(index).key)->isChecked());
            }
        }
        tapEverything(screen);
    }

    void everythingOddAtOnce() {
        for (int value : oddValues) {
            All all;
            for (int index : {front, rear, subwoofer}) {
                all[index] = Values{value, value, value, value, value};
                store(index, all[index]);
            }
            recording::setStored("crossover/type", int(front));
            Screen screen;
            show(&screen.page);
            QCOMPARE(recording::take(), refreshAll(all, front));
            tapEverything(screen);
            recording::clear();
        }
    }

    void otherTypes_data() {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("text") << QVariant("loud");
        QTest::newRow("bytes") << QVariant(QByteArray("\xff\x00", 2));
        QTest::newRow("list") << QVariant(QVariantList{1, 2});
        QTest::newRow("nothing") << QVariant();
    }
    void otherTypes() {
        QFETCH(QVariant, value);
        for (int index : {front, rear, subwoofer}) {
            for (const char *field : {"freq", "y", "level", "slope", "heigh"}) {
                recording::setStored(currentKey(index, field), value);
            }
        }
        recording::setStored("crossover/type", value);
        recording::setStored("crossover/PRESET_SWITCH0", value);
        Screen screen;
        show(&screen.page);
        QCOMPARE(recording::take(), refreshAll(All(), front));
        QCOMPARE(screen.shown(), QStringLiteral("6 db, #1074, 0"));
        tapEverything(screen);
    }
};

PAGE_TEST_MAIN(tst_CrossoverLimits)
#include "tst_crossoverlimits.moc"
