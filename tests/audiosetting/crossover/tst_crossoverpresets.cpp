// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/crossover/crossoverscreen.h"
#include "tests/platform/testmain.h"

using namespace crossovertest;

namespace {

const All someValues{{{3, 21, 9, 2, 300}, {4, 42, 7, 3, 280}, {5, 63, 5, 2, 260}}};
const All otherValues{{{11, 1, 0, 3, 30}, {1, 2, 12, 1, 28}, {2, 3, 6, 1, 26}}};

QString saved(int number) {
    return QStringLiteral("setValue(\"crossover/PRESET_SWITCH%1\", false, true, true)").arg(number);
}

/// The five fields of each channel, to the current keys or to those of a preset.
QStringList writeAll(const All &all, int preset = -1) {
    static const char *const fields[] = {"freq", "y", "level", "slope", "heigh"};
    static const int defaults[] = {0, 0, 12, 1, 506};
    QStringList lines;
    for (int index : {front, rear, subwoofer}) {
        const Values &v = all[index];
        const int values[] = {v.freq, v.y, v.level, v.slope, v.heigh};
        for (int field = 0; field < 5; ++field) {
            const QString key =
                preset < 0 ? currentKey(index, fields[field]) : channel(index).preset[field].arg(preset);
            lines << write(key, defaults[field], values[field]);
        }
    }
    return lines;
}

QStringList recall(const All &all, int type) {
    return QStringList("doBeep(0)") + writeAll(all) +
           QStringList({send(subwoofer, all[subwoofer]), send(rear, all[rear]), send(front, all[front])}) +
           refreshAll(all, type);
}

void storeAll(const All &all) {
    for (int index : {front, rear, subwoofer}) {
        store(index, all[index]);
    }
}

}  // namespace

class tst_CrossoverPresets : public PageTest {
    Q_OBJECT

    static void presetRows() {
        QTest::addColumn<int>("number");
        QTest::newRow("1") << 0;
        QTest::newRow("2") << 1;
    }
    static const char *keyName(int number) { return number == 0 ? "key_preset_1" : "key_preset_2"; }
    static QString checkedOnly(int number) { return QLatin1String(number == 0 ? "1-" : "-2"); }

    static bool shows(QPushButton *key, QIcon::Mode mode, QIcon::State state, const QString &file) {
        const QPixmap expected(QStringLiteral(":/corvina_icon/%1.png").arg(file));
        return !expected.isNull() && key->icon().pixmap(key->iconSize(), mode, state).toImage() == expected.toImage();
    }

private slots:
    void holdSaves_data() { presetRows(); }
    void holdSaves() {
        QFETCH(int, number);
        storeAll(someValues);
        recording::setStored("crossover/type", int(subwoofer));
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.key(keyName(number));
        recording::clear();
        finger::press(key, key->rect().center());
        advance(1499);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(key->property("long_click"), QVariant(false));
        advance(1);
        const QStringList type(write(QStringLiteral("crossover/PRESET_TYPE%1").arg(number), 0, subwoofer));
        QCOMPARE(recording::take(),
                 QStringList("doBeep(0)") + writeAll(someValues, number) + type + QStringList(saved(number)));
        QCOMPARE(key->property("long_click"), QVariant(true));
        QCOMPARE(screen.presets(), checkedOnly(number));
        // Holding on saves no second time, and the release does not recall.
        advance(5000);
        finger::release(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(key->property("long_click"), QVariant(false));
        QCOMPARE(screen.presets(), checkedOnly(number));
        // The next click does.
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), recall(someValues, subwoofer));
        QCOMPARE(screen.presets(), checkedOnly(number));
    }

    void clickRecalls_data() {
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("type");
        for (int number : {0, 1}) {
            for (int type : {-1, int(front), int(rear), int(subwoofer), 3}) {
                QTest::addRow("%d, channel %d", number + 1, type) << number << type;
            }
        }
    }
    void clickRecalls() {
        QFETCH(int, number);
        QFETCH(int, type);
        storePreset(number, someValues);
        storePreset(1 - number, otherValues);
        recording::setStored("crossover/type", type);
        // The channel of the preset does not count.
        recording::setStored(QStringLiteral("crossover/PRESET_TYPE%1").arg(number), (type + 1) % channels);
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        recording::clear();
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), recall(someValues, type));
        QCOMPARE(screen.presets(), checkedOnly(number));
        QCOMPARE(screen.curve(front)->geometry(), QRect(-215, 21, 1050, 300));
        QCOMPARE(screen.curve(rear)->geometry(), QRect(-85, 42, 1050, 280));
        QCOMPARE(screen.curve(subwoofer)->geometry(), QRect(0, 63, 760, 260));
        const QStringList shown{"12 db, 63 Hz, -3", "18 db, 100 Hz, -5", "12 db, 250 Hz, -7"};
        if (type >= 0 && type < channels) {
            QCOMPARE(screen.shown(), shown[type]);
        }
        screen.tap(keyName(1 - number));
        QCOMPARE(recording::take(), recall(otherValues, type));
        QCOMPARE(screen.presets(), checkedOnly(1 - number));
    }

    void recallFindsTheChannelInTheStore() {
        storePreset(0, someValues);
        Screen screen;
        show(&screen.page);
        // Changed behind the page's back.
        recording::setStored("crossover/type", int(rear));
        recording::clear();
        screen.tap("key_preset_1");
        QCOMPARE(recording::take(), recall(someValues, rear));
        Values stepped = someValues[rear];
        ++stepped.freq;
        screen.tap("key_freq_plus");
        QCOMPARE(recording::take(), QStringList("doBeep(0)") + curveStep(rear, stepped));
    }

    void presetReadsItsOwnDefaults() {
        recording::setStored("crossover/PRESET_SWITCH0", true);
        storeAll(someValues);
        Screen screen;
        show(&screen.page);
        recording::clear();
        screen.tap("key_preset_1");
        QCOMPARE(recording::take(), recall(All(), front));
    }

    void emptyPresetCannotBeSelected_data() { presetRows(); }
    void emptyPresetCannotBeSelected() {
        QFETCH(int, number);
        Screen screen;
        show(&screen.page);
        recording::clear();
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        // With the other one in force, that one stays checked.
        screen.hold(keyName(1 - number), 1500);
        recording::clear();
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.presets(), checkedOnly(1 - number));
    }

    void savedFlagComesBeforeTheHold() {
        Screen screen;
        show(&screen.page);
        screen.key("key_preset_1")->setProperty("long_click", true);
        recording::clear();
        screen.tap("key_preset_1");
        QCOMPARE(screen.key("key_preset_1")->property("long_click"), QVariant(true));
        QCOMPARE(recording::take(), QStringList());
        // Showing the page forgets a hold.
        screen.page.hide();
        screen.page.show();
        QCOMPARE(screen.key("key_preset_1")->property("long_click"), QVariant(false));
    }

    void holdThatEndsBesideTheKeyIsOver_data() { presetRows(); }
    void holdThatEndsBesideTheKeyIsOver() {
        QFETCH(int, number);
        storeAll(someValues);
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.key(keyName(number));
        finger::press(key, key->rect().center());
        advance(1500);
        QCOMPARE(key->property("long_click"), QVariant(true));
        const QPoint beside(key->width() / 2, -40);
        finger::move(key, beside);
        finger::release(key, beside);
        QCOMPARE(key->property("long_click"), QVariant(false));
        QCOMPARE(screen.presets(), checkedOnly(number));
        // No click has followed the hold, so the next one recalls.
        screen.tap("key_freq_plus");
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        recording::clear();
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), recall(someValues, front));
        QCOMPARE(screen.presets(), checkedOnly(number));
    }

    void holdThatComesBackToTheKeyIsOneHold() {
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.key("key_preset_1");
        finger::press(key, key->rect().center());
        advance(1500);
        finger::move(key, QPoint(0, -40));
        finger::move(key, key->rect().center());
        recording::clear();
        finger::release(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(key->property("long_click"), QVariant(false));
    }

    void comparesWhatIsHeard_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("counts");
        for (int index : {front, rear, subwoofer}) {
            for (const char *field : {"freq", "level", "slope", "y", "heigh"}) {
                const QString key = currentKey(index, field);
                QTest::newRow(qPrintable(key)) << key << (*field != 'y' && *field != 'h');
            }
        }
        QTest::newRow("crossover/type") << "crossover/type" << false;
    }
    void comparesWhatIsHeard() {
        QFETCH(QString, key);
        QFETCH(bool, counts);
        storePreset(1, All());
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.presets(), QStringLiteral("-2"));
        QVERIFY(screen.page.comparePreset(1));
        QVERIFY(!screen.page.comparePreset(0));
        // The store counts, not the page.
        recording::setStored(key, 2);
        QCOMPARE(screen.page.comparePreset(1), !counts);
        screen.page.updateCurrentPreset();
        QCOMPARE(screen.presets(), QLatin1String(counts ? "--" : "-2"));
    }

    void comparisonStopsAtTheFirstDifference() {
        const QStringList order{"crossover/frontfreq",      "crossover/PRESET_FRONT_FREQ0",
                                "crossover/frontlevel",     "crossover/PRESET_FRONT_LEVEL0",
                                "crossover/frontslope",     "crossover/PRESET_FRONT_SLOPE0",
                                "crossover/rearfreq",       "crossover/PRESET_REARFREQ0",
                                "crossover/rearlevel",      "crossover/PRESET_REARLEVEL0",
                                "crossover/rearslope",      "crossover/PRESET_REATSLOPE0",
                                "crossover/subwooferlevel", "crossover/PRESET_SUBWOOFERLEVEL0",
                                "crossover/subwooferfreq",  "crossover/PRESET_SUBWOOFERFREQ0",
                                "crossover/subwooferslope", "crossover/PRESET_SUBWOOFERSLOPE0"};
        Screen screen;
        recording::setLogged(recording::Reads);
        const auto keysRead = [] {
            QStringList keys;
            for (const QString &line : recording::take()) {
                keys << line.section(QLatin1Char('"'), 1, 1);
            }
            return keys;
        };
        recording::clear();
        QVERIFY(!screen.page.comparePreset(0));
        QCOMPARE(keysRead(), QStringList("crossover/PRESET_SWITCH0"));
        recording::setStored("crossover/PRESET_SWITCH0", true);
        QVERIFY(screen.page.comparePreset(0));
        QCOMPARE(keysRead(), QStringList("crossover/PRESET_SWITCH0") + order);
        for (int i = 0; i < order.size(); i += 2) {
            recording::setStored(order[i], 5);
            QVERIFY(!screen.page.comparePreset(0));
            QCOMPARE(keysRead(), QStringList("crossover/PRESET_SWITCH0") + order.mid(0, i + 2));
            recording::setStored(order[i + 1], 5);
        }
    }

    void firstOfTwoEqualPresetsIsChecked() {
        storePreset(0, All());
        storePreset(1, All());
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
        // A click checks the one clicked.
        screen.tap("key_preset_2");
        QCOMPARE(screen.presets(), QStringLiteral("-2"));
        screen.tap("key_level_minus");
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        screen.tap("key_level_plus");
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
    }

    void everyChangeUnchecksAndTheWayBackChecks_data() {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("back");
        for (const char *name : {"slope", "freq", "level"}) {
            const QByteArray minus = QByteArray("key_") + name + "_minus";
            const QByteArray plus = QByteArray("key_") + name + "_plus";
            QTest::newRow(minus) << minus << plus;
            QTest::newRow(plus) << plus << minus;
        }
    }
    void everyChangeUnchecksAndTheWayBackChecks() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, back);
        Screen screen;
        show(&screen.page);
        screen.hold("key_preset_2", 1500);
        for (int index : {front, rear, subwoofer}) {
            screen.choose(index);
            QCOMPARE(screen.presets(), QStringLiteral("-2"));
            screen.tap(key);
            QCOMPARE(screen.presets(), QStringLiteral("--"));
            screen.tap(back);
            QCOMPARE(screen.presets(), QStringLiteral("-2"));
        }
    }

    void pictures_data() { presetRows(); }
    void pictures() {
        QFETCH(int, number);
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.key(keyName(number));
        QVERIFY(shows(key, QIcon::Normal, QIcon::Off, "key_preset_click_n"));
        QVERIFY(shows(key, QIcon::Selected, QIcon::Off, "key_preset_click_p"));
        QVERIFY(shows(key, QIcon::Selected, QIcon::On, "key_preset_click_p"));
        screen.hold(keyName(number), 1500);
        const QString picture = QStringLiteral("key_timing_preset_%1_").arg(number + 1);
        QVERIFY(shows(key, QIcon::Normal, QIcon::Off, picture + "n"));
        QVERIFY(shows(key, QIcon::Active, QIcon::On, picture + "s"));
        QVERIFY(shows(key, QIcon::Selected, QIcon::Off, picture + "p"));
        QVERIFY(shows(key, QIcon::Selected, QIcon::On, picture + "s"));
        QVERIFY(shows(screen.key(keyName(1 - number)), QIcon::Normal, QIcon::Off, "key_preset_click_n"));
        // As the page finds them in the store.
        Screen again;
        show(&again.page);
        QVERIFY(shows(again.key(keyName(number)), QIcon::Active, QIcon::On, picture + "s"));
        // A reset from elsewhere empties the preset.
        recording::setStored(QStringLiteral("crossover/PRESET_SWITCH%1").arg(number), false);
        again.page.hide();
        again.page.show();
        QVERIFY(shows(again.key(keyName(number)), QIcon::Normal, QIcon::Off, "key_preset_click_n"));
    }
};

PAGE_TEST_MAIN(tst_CrossoverPresets)
#include "tst_crossoverpresets.moc"
