// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/timing/timingscreen.h"
#include "tests/platform/testmain.h"

using namespace timingtest;

namespace {

const Delays someDelays{{1, 20, 30, 99, 0, 5}};
const Delays otherDelays{{9, 8, 7, 6, 5, 4}};

QStringList recall(const Delays &delays) {
    QStringList lines("doBeep(0)");
    for (int output = 0; output < outputs; ++output) {
        lines << write(output, delays[output]);
    }
    return lines << send(delays);
}

QStringList save(int number, const Delays &delays, bool first) {
    QStringList lines("doBeep(0)");
    if (first) {
        lines << QStringLiteral("setValue(\"timing/PRESET_ENABLE%1\", false, true, true)").arg(number);
    }
    for (int output = 0; output < outputs; ++output) {
        lines << writePreset(number, output, delays[output]);
    }
    return lines;
}

}  // namespace

class tst_TimingPresets : public PageTest {
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
        store(someDelays);
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.key(keyName(number));
        finger::press(key, key->rect().center());
        // The toolkit's own interval for a long press.
        advance(1499);
        QCOMPARE(recording::take(), QStringList());
        advance(1);
        QCOMPARE(recording::take(), save(number, someDelays, true));
        QCOMPARE(key->property("long_click"), QVariant(true));
        QCOMPARE(screen.presets(), checkedOnly(number));
        advance(5000);
        finger::release(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(key->property("long_click"), QVariant(false));
        QCOMPARE(screen.presets(), checkedOnly(number));
        // Saved again: the flag is true already.
        finger::tap(screen.plus(0));
        recording::clear();
        Delays stepped = someDelays;
        ++stepped[0];
        screen.hold(keyName(number), 1500);
        QCOMPARE(recording::take(), save(number, stepped, false));
        // And the next click recalls.
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), recall(stepped));
    }

    void clickRecalls_data() { presetRows(); }
    void clickRecalls() {
        QFETCH(int, number);
        storePreset(number, someDelays);
        storePreset(1 - number, otherDelays);
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), recall(someDelays));
        QCOMPARE(screen.shown(), QStringList({"0.1", "2", "3", "9.9", "0", "0.5"}));
        QCOMPARE(screen.enabled(), QStringList({"ee", "ee", "ee", "ed", "de", "ee"}));
        QCOMPARE(screen.presets(), checkedOnly(number));
        screen.tap("key_inches");
        recording::clear();
        screen.tap(keyName(1 - number));
        QCOMPARE(recording::take(), recall(otherDelays));
        QCOMPARE(screen.shown(), QStringList({"12", "11", "9", "8", "7", "5"}));
        QCOMPARE(screen.presets(), checkedOnly(1 - number));
        screen.showAgain();
        QCOMPARE(screen.presets(), checkedOnly(1 - number));
    }

    void emptyPresetCannotBeSelected_data() { presetRows(); }
    void emptyPresetCannotBeSelected() {
        QFETCH(int, number);
        Screen screen;
        show(&screen.page);
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        screen.hold(keyName(1 - number), 1500);
        recording::clear();
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.presets(), checkedOnly(1 - number));
    }

    void holdComesBeforeTheSavedFlag() {
        Screen screen;
        show(&screen.page);
        screen.key("key_preset_1")->setProperty("long_click", true);
        screen.tap("key_preset_1");
        // Taken for the release of a hold, though nothing is saved: nothing else happens, the click's check included.
        QCOMPARE(screen.key("key_preset_1")->property("long_click"), QVariant(false));
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
        QCOMPARE(recording::take(), QStringList());
        screen.tap("key_preset_1");
        QCOMPARE(screen.presets(), QStringLiteral("--"));
    }

    void holdThatEndsBesideTheKeyIsOver_data() { presetRows(); }
    void holdThatEndsBesideTheKeyIsOver() {
        QFETCH(int, number);
        store(someDelays);
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
        finger::tap(screen.plus(0));
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        recording::clear();
        screen.tap(keyName(number));
        QCOMPARE(recording::take(), recall(someDelays));
        QCOMPARE(screen.presets(), checkedOnly(number));
    }

    void onlyTwoPresetsAreSaved() {
        Screen screen;
        show(&screen.page);
        screen.page.setPreset(2);
        QCOMPARE(recording::take(), QStringList());
    }

    void comparesTheDelaysOnTheScreen() {
        storePreset(1, someDelays);
        store(someDelays);
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.presets(), QStringLiteral("-2"));
        // The page counts, not the store.
        store(otherDelays);
        QVERIFY(screen.page.comparePreset(1));
        QVERIFY(!screen.page.comparePreset(0));
        for (int output = 0; output < outputs; ++output) {
            const QString key = QStringLiteral("timing/PRESETS1_DATA%1").arg(output);
            recording::setStored(key, 77);
            QVERIFY(!screen.page.comparePreset(1));
            recording::setStored(key, someDelays[output]);
            QVERIFY(screen.page.comparePreset(1));
        }
    }

    void comparisonStopsAtTheFirstDifference() {
        storePreset(0, someDelays);
        store(someDelays);
        Screen screen;
        show(&screen.page);
        recording::setLogged(recording::Reads);
        for (int output = outputs - 1; output >= 0; --output) {
            recording::setStored(QStringLiteral("timing/PRESETS0_DATA%1").arg(output), 77);
            recording::clear();
            QVERIFY(!screen.page.comparePreset(0));
            QStringList expected("getValue(\"timing/PRESET_ENABLE0\", false)");
            for (int read = 0; read <= output; ++read) {
                expected << QStringLiteral("getValue(\"timing/PRESETS0_DATA%1\", 0)").arg(read);
            }
            QCOMPARE(recording::take(), expected);
        }
    }

    void stepsCheckAndUncheck() {
        storePreset(0, {{1, 0, 0, 0, 0, 0}});
        storePreset(1, {{0, 0, 0, 0, 0, 1}});
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        finger::tap(screen.plus(0));
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
        finger::tap(screen.plus(5));
        QCOMPARE(screen.presets(), QStringLiteral("--"));
        finger::tap(screen.minus(0));
        QCOMPARE(screen.presets(), QStringLiteral("-2"));
        // Of two equal ones the first is checked, but a click checks the one clicked.
        storePreset(0, {{0, 0, 0, 0, 0, 1}});
        screen.page.onUpdateCurrentSelect();
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
        screen.tap("key_preset_2");
        QCOMPARE(screen.presets(), QStringLiteral("-2"));
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
        recording::setStored(QStringLiteral("timing/PRESET_ENABLE%1").arg(number), false);
        screen.showAgain();
        QVERIFY(shows(key, QIcon::Normal, QIcon::Off, "key_preset_click_n"));
    }

    void oddPresetIsRecalledAsItIs() {
        const int lowest = std::numeric_limits<int>::min();
        const int highest = std::numeric_limits<int>::max();
        const Delays odd{{lowest, -1, 100, highest, 0, 1}};
        storePreset(0, odd);
        Screen screen;
        show(&screen.page);
        screen.tap("key_preset_1");
        QCOMPARE(recording::take(), recall(odd));
        QCOMPARE(screen.enabled(), QStringList({"de", "de", "ed", "ed", "de", "ee"}));
        screen.tap("key_inches");
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
    }
};

PAGE_TEST_MAIN(tst_TimingPresets)
#include "tst_timingpresets.moc"
