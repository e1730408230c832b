// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/crossover/crossoverscreen.h"
#include "tests/platform/testmain.h"

#include "platform/audiosettingsutils.h"

#include <QTranslator>

using namespace crossovertest;

class tst_CrossoverWidget : public PageTest {
    Q_OBJECT

    static void channelRows() {
        QTest::addColumn<int>("index");
        QTest::newRow("front") << int(front);
        QTest::newRow("rear") << int(rear);
        QTest::newRow("subwoofer") << int(subwoofer);
    }
    static QRect placed(int index, int freq, int y, int heigh) {
        const int place = channel(index).frequencies[freq].place;
        return index == subwoofer ? QRect(0, y, place, heigh) : QRect(place, y, 1050, heigh);
    }

private slots:
    // Showing ---------------------------------------------------------------------------------------------------------

    void constructionWritesAndSendsNothing() {
        Screen screen;
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.curve(front)->geometry(), QRect(-360, 0, 1050, 256));
        QCOMPARE(screen.curve(rear)->geometry(), QRect(-360, 0, 1050, 256));
        QCOMPARE(screen.curve(subwoofer)->geometry(), QRect(0, 0, 1050, 256));
        for (int index : {front, rear, subwoofer}) {
            QVERIFY(screen.showsSlope(index, "6db"));
        }
        QCOMPARE(screen.text("txt_freq_value"), QStringLiteral("#1074"));
        QCOMPARE(screen.text("txt_slope_value"), QStringLiteral("6 db"));
    }

    void hasTheUnitsFonts() {
        recording::setLogged(recording::Toolkit);
        Screen screen;
        QVERIFY(recording::take().contains("sync_default_font(Audiosetting_right_crossover_widget, \"txt_\")"));
        for (const char *value : {"txt_slope_value", "txt_freq_value", "txt_level_value"}) {
            const QLabel *const label = screen.label(QLatin1String(value));
            const QVariant points = label->property("PRO_FONT_SIZE");
            QVERIFY(points.toInt() > 0);
            QCOMPARE(label->font().pointSize(), points.toInt());
        }
    }

    void declaresItsSlots() {
        const QMetaObject &meta = Audiosetting_right_crossover_widget::staticMetaObject;
        const QStringList expected{"onGeneralButtonClicked(int)",
                                   "onPresetButtonClicked(int)",
                                   "onPreset1LongClicked()",
                                   "onPreset2LongClicked()",
                                   "onSlopMinusClicked()",
                                   "onSlopPlusClicked()",
                                   "onFreqMinusClicked()",
                                   "onFreqPlusClicked()",
                                   "onLevelPlusClicked()",
                                   "onLevelMinusClicked()",
                                   "onLow_Subwoofer_Freq(int,int)",
                                   "onHeigh_Rear_Freq(int,int)",
                                   "onHeigh_Front_Freq(int,int)",
                                   "onSetSubWooferSlopeBg()",
                                   "onSetFrontSlopeBg()",
                                   "onSetRearSlopeBg()",
                                   "setLevel_Minus()",
                                   "setLevel_Plus()",
                                   "onSelectSlope()",
                                   "onSetFrontData(int,int,int)",
                                   "onSetRearData(int,int,int)",
                                   "onSetSubwooferData(int,int,int)",
                                   "onUpdateCurrentSelect()",
                                   "onResetCrossover()"};
        QStringList declared;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            declared << QString::fromLatin1(meta.method(i).methodSignature());
        }
        QCOMPARE(declared, expected);
    }

    void showingSendsEveryChannel_data() {
        channelRows();
        QTest::newRow("no channel") << 3;
        QTest::newRow("below") << -1;
    }
    void showingSendsEveryChannel() {
        QFETCH(int, index);
        const All all{{{3, 21, 9, 2, 300}, {4, 42, 7, 3, 280}, {5, 63, 5, 2, 260}}};
        for (int i : {front, rear, subwoofer}) {
            store(i, all[i]);
        }
        recording::setStored("crossover/type", index);
        Screen screen;
        show(&screen.page);
        QCOMPARE(recording::take(), refreshAll(all, index));
        const QStringList shown{"12 db, 63 Hz, -3", "18 db, 100 Hz, -5", "12 db, 250 Hz, -7"};
        if (index >= 0 && index < channels) {
            QCOMPARE(screen.shown(), shown[index]);
            QVERIFY(screen.key(channel(index).key)->isChecked());
            QVERIFY(screen.isUppermost(index));
        } else {
            // The last one refreshed owns the shared labels; the level stays what the form says.
            QCOMPARE(screen.shown(), QStringLiteral("12 db, 63 Hz, 0"));
            QVERIFY(screen.isUppermost(front));
        }
        QCOMPARE(screen.curve(front)->geometry(), QRect(-215, 21, 1050, 300));
        QCOMPARE(screen.curve(rear)->geometry(), QRect(-85, 42, 1050, 280));
        QCOMPARE(screen.curve(subwoofer)->geometry(), QRect(0, 63, 760, 260));
        QVERIFY(screen.showsSlope(front, "12db"));
        QVERIFY(screen.showsSlope(rear, "18db"));
        QVERIFY(screen.showsSlope(subwoofer, "12db"));
    }

    void everyShowReadsAndSendsAnew() {
        Screen screen;
        show(&screen.page);
        recording::clear();
        screen.page.hide();
        QCOMPARE(recording::take(), QStringList());
        All all;
        all[rear] = Values{2, 5, 3, 2, 400};
        store(rear, all[rear]);
        recording::setStored("crossover/type", int(rear));
        screen.page.show();
        QCOMPARE(recording::take(), refreshAll(all, rear));
        QCOMPARE(screen.shown(), QStringLiteral("12 db, 40 Hz, -9"));
    }

    void captionsAreTranslatedWhileShown() {
        Screen screen;
        show(&screen.page);
        const auto captions = [&screen] {
            return QStringList{screen.text("txt_front1"), screen.text("txt_slope"), screen.text("txt_freq"),
                               screen.text("txt_sub"),    screen.text("txt_rear"),  screen.text("txt_level")};
        };
        QCOMPARE(captions(), QStringList({"#1076", "#1077", "#1078", "#231", "#262", "#1079"}));
        recording::clear();
        recording::state().texts = {{1074, "Aus"},      {1076, "Vorne"}, {1077, "Steil"}, {1078, "Frequenz"},
                                    {231, "Tieftöner"}, {262, "Hinten"}, {1079, "Pegel"}};
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&screen.page, &change);
        QCOMPARE(captions(), QStringList({"Vorne", "Steil", "Frequenz", "Tieftöner", "Hinten", "Pegel"}));
        QCOMPARE(screen.shown(), QStringLiteral("6 db, Aus, 0"));
        screen.tap("key_freq_plus");
        QCoreApplication::sendEvent(&screen.page, &change);
        QCOMPARE(screen.shown(), QStringLiteral("6 db, 25 Hz, 0"));
    }

    void theFormsOwnCaptionIsTranslatedToo() {
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.text("txt_slope_2"), QStringLiteral("Presets"));
        struct Other : QTranslator {
            bool isEmpty() const override { return false; }
            QString translate(const char *context, const char *text, const char *, int) const override {
                const bool ofTheForm = qstrcmp(context, "Audiosetting_right_crossover_widget") == 0;
                return ofTheForm ? QStringLiteral("<%1>").arg(QLatin1String(text)) : QString();
            }
        } other;
        QVERIFY(QCoreApplication::installTranslator(&other));
        advance(0);
        QCOMPARE(screen.text("txt_slope_2"), QStringLiteral("<Presets>"));
        // The unit's own texts stay, and so do the values.
        QCOMPARE(screen.text("txt_front1"), QStringLiteral("#1076"));
        QCOMPARE(screen.shown(), QStringLiteral("6 db, #1074, 0"));
        QCoreApplication::removeTranslator(&other);
    }

    void captionsFollowALanguageThatChangedMeanwhile() {
        Screen screen;
        show(&screen.page);
        screen.page.hide();
        recording::state().texts = {{1076, "Vorne"},    {1077, "Steil"}, {1078, "Frequenz"},
                                    {231, "Tieftöner"}, {262, "Hinten"}, {1079, "Pegel"}};
        screen.page.show();
        const struct {
            const char *label;
            const char *text;
        } captions[] = {{"txt_front1", "Vorne"},  {"txt_slope", "Steil"}, {"txt_freq", "Frequenz"},
                        {"txt_sub", "Tieftöner"}, {"txt_rear", "Hinten"}, {"txt_level", "Pegel"}};
        for (const auto &caption : captions) {
            QCOMPARE(screen.text(caption.label), QString::fromUtf8(caption.text));
        }
    }

    void flatReloads() {
        Screen screen;
        show(&screen.page);
        screen.choose(subwoofer);
        screen.tap("key_freq_plus");
        screen.tap("key_level_minus");
        screen.hold("key_preset_1", 1500);
        recording::clear();
        AudioSettingsUtils::instance()->flatCrossover();
        QCOMPARE(recording::take(),
                 QStringList({"flatCrossover()", "signal_flatCrossover()"}) + refreshAll(All(), subwoofer));
        QCOMPARE(screen.shown(), QStringLiteral("6 db, #1074, 0"));
        QCOMPARE(screen.curve(subwoofer)->geometry(), QRect(0, 0, 1050, 506));
        QVERIFY(screen.key("key_sub")->isChecked());
        QCOMPARE(screen.presets(), QStringLiteral("--"));
    }

    // Channels --------------------------------------------------------------------------------------------------------

    void channelKey_data() { channelRows(); }
    void channelKey() {
        QFETCH(int, index);
        All all{{{3, 21, 9, 2, 300}, {4, 42, 7, 3, 280}, {5, 63, 5, 2, 260}}};
        for (int i : {front, rear, subwoofer}) {
            store(i, all[i]);
        }
        recording::setStored("crossover/type", (index + 1) % channels);
        Screen screen;
        show(&screen.page);
        recording::clear();
        // The caption lies over its key and lets the touch through.
        screen.choose(index);
        QCOMPARE(recording::take(), QStringList("doBeep(0)") + refresh(index, all[index]) +
                                        QStringList(write("crossover/type", 0, index)));
        const QStringList shown{"12 db, 63 Hz, -3", "18 db, 100 Hz, -5", "12 db, 250 Hz, -7"};
        QCOMPARE(screen.shown(), shown[index]);
        QVERIFY(screen.isUppermost(index));
        for (int i : {front, rear, subwoofer}) {
            QCOMPARE(screen.key(channel(i).key)->isChecked(), i == index);
        }
        // The keys now work on this channel.
        screen.tap("key_slope_plus");
        all[index].slope = all[index].slope % 3 + 1;
        QCOMPARE(recording::take(), QStringList("doBeep(0)") + slopeStep(index, all[index]));
    }

    void otherChannelNumbersOnlyBeep() {
        Screen screen;
        show(&screen.page);
        recording::clear();
        for (int index : {-1, 3, 100}) {
            screen.page.onGeneralButtonClicked(index);
            QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        }
        screen.tap("key_slope_plus");
        QCOMPARE(recording::take().last(), QStringLiteral("setCrossoverFrontFreq(0, 2, 12)"));
    }

    // Slope -----------------------------------------------------------------------------------------------------------

    void slopeKeysWrap_data() { channelRows(); }
    void slopeKeysWrap() {
        QFETCH(int, index);
        recording::setStored("crossover/type", index);
        Screen screen;
        show(&screen.page);
        const QRect before = screen.curve(index)->geometry();
        const struct {
            const char *key;
            int slope;
            const char *label;
            const char *picture;
        } steps[] = {{"key_slope_plus", 2, "12 db", "12db"},  {"key_slope_plus", 3, "18 db", "18db"},
                     {"key_slope_plus", 1, "6 db", "6db"},    {"key_slope_minus", 3, "18 db", "18db"},
                     {"key_slope_minus", 2, "12 db", "12db"}, {"key_slope_minus", 1, "6 db", "6db"}};
        Values v;
        for (const auto &step : steps) {
            recording::clear();
            screen.tap(step.key);
            v.slope = step.slope;
            QCOMPARE(recording::take(), QStringList("doBeep(0)") + slopeStep(index, v));
            QCOMPARE(screen.text("txt_slope_value"), QLatin1String(step.label));
            QVERIFY(screen.showsSlope(index, step.picture));
            QCOMPARE(screen.curve(index)->geometry(), before);
        }
    }

    // Frequency -------------------------------------------------------------------------------------------------------

    void frequencyKeysWalkTheTable_data() { channelRows(); }
    void frequencyKeysWalkTheTable() {
        QFETCH(int, index);
        recording::setStored("crossover/type", index);
        const QVector<Frequency> &table = channel(index).frequencies;
        Values v{0, 10, 8, 1, 333};
        store(index, v);
        Screen screen;
        show(&screen.page);
        const auto step = [&](const char *key, int freq) {
            recording::clear();
            screen.tap(key);
            v.freq = freq;
            QCOMPARE(recording::take(), QStringList("doBeep(0)") + curveStep(index, v));
            QCOMPARE(screen.text("txt_freq_value"), table[freq].label);
            QCOMPARE(screen.curve(index)->geometry(), placed(index, freq, 10, 333));
            QVERIFY(screen.isUppermost(index));
        };
        for (int i = 1; i <= table.size(); ++i) {
            step("key_freq_plus", i % table.size());
        }
        for (int i = table.size() - 1; i >= 0; --i) {
            step("key_freq_minus", i);
        }
    }

    // Level -----------------------------------------------------------------------------------------------------------

    void levelKeysMoveTheCurve_data() { channelRows(); }
    void levelKeysMoveTheCurve() {
        QFETCH(int, index);
        recording::setStored("crossover/type", index);
        Screen screen;
        show(&screen.page);
        Values v;
        const auto step = [&](const char *key, int level, int y, int heigh) {
            recording::clear();
            screen.tap(key);
            v.level = level;
            v.y = y;
            v.heigh = heigh;
            QCOMPARE(recording::take(), QStringList("doBeep(0)") + dataStep(index, v) + curveStep(index, v));
            QCOMPARE(screen.text("txt_level_value"), QString::number(level - 12));
            QCOMPARE(screen.curve(index)->geometry(), placed(index, 0, y, heigh));
        };
        // Down from the defaults, around, up again, around.
        for (int level = 11; level >= 0; --level) {
            step("key_level_minus", level, (12 - level) * 21, 506 - (12 - level) * 21);
        }
        step("key_level_minus", 12, 0, 256);
        step("key_level_plus", 0, 250, 256);
        for (int level = 1; level <= 12; ++level) {
            step("key_level_plus", level, 250 - 21 * level, 256 + channel(index).growth * level);
        }
        step("key_level_plus", 0, 250, 256);
    }

    void levelStepsStartFromTheCurveOnTheScreen() {
        // A frequency outside the table leaves the curve where it was, and the level steps from there.
        Values v{77, 100, 6, 1, 200};
        store(front, v);
        Screen screen;
        show(&screen.page);
        QCOMPARE(screen.curve(front)->geometry(), QRect(-360, 0, 1050, 256));
        recording::clear();
        screen.tap("key_level_minus");
        v.level = 5;
        v.y = 21;
        v.heigh = 235;
        QCOMPARE(recording::take(), QStringList("doBeep(0)") + dataStep(front, v) + curveStep(front, v));
        QCOMPARE(screen.curve(front)->geometry(), QRect(-360, 0, 1050, 256));
    }

    // Slots without a key ---------------------------------------------------------------------------------------------

    void channelSlots() {
        const All all{{{3, 21, 9, 2, 300}, {4, 42, 7, 3, 280}, {5, 63, 5, 2, 260}}};
        for (int i : {front, rear, subwoofer}) {
            store(i, all[i]);
        }
        Screen screen;
        show(&screen.page);
        const auto moved = [&](int index, int y, int heigh) {
            QCOMPARE(recording::take(), curveStep(index, all[index]));
            QCOMPARE(screen.curve(index)->geometry(), placed(index, all[index].freq, y, heigh));
            QVERIFY(screen.isUppermost(index));
        };
        recording::clear();
        screen.page.onHeigh_Front_Freq(1, 2);
        moved(front, 1, 2);
        screen.page.onHeigh_Rear_Freq(3, 4);
        moved(rear, 3, 4);
        screen.page.onLow_Subwoofer_Freq(5, 6);
        moved(subwoofer, 5, 6);

        screen.page.onSetFrontSlopeBg();
        QCOMPARE(recording::take(), slopeStep(front, all[front]));
        screen.page.onSetRearSlopeBg();
        QCOMPARE(recording::take(), slopeStep(rear, all[rear]));
        QCOMPARE(screen.text("txt_slope_value"), QStringLiteral("18 db"));
        screen.page.onSetSubWooferSlopeBg();
        QCOMPARE(recording::take(), slopeStep(subwoofer, all[subwoofer]));
        screen.page.onSelectSlope();
        QCOMPARE(recording::take(), slopeStep(front, all[front]));

        const Values data{0, 8, 7, 1, 9};
        screen.page.onSetFrontData(7, 8, 9);
        QCOMPARE(recording::take(), dataStep(front, data));
        screen.page.onSetRearData(7, 8, 9);
        QCOMPARE(recording::take(), dataStep(rear, data));
        screen.page.onSetSubwooferData(7, 8, 9);
        QCOMPARE(recording::take(), dataStep(subwoofer, data));
    }

    void currentChannelIsThatOfTheStore() {
        Screen screen;
        show(&screen.page);
        recording::setStored("crossover/type", int(rear));
        recording::clear();
        screen.page.onUpdateCurrentSelect();
        QCOMPARE(recording::take(), refresh(rear, Values()));
        QVERIFY(screen.isUppermost(rear));
        recording::setStored("crossover/type", 3);
        screen.page.onUpdateCurrentSelect();
        QCOMPARE(recording::take(), QStringList());
    }
};

PAGE_TEST_MAIN(tst_CrossoverWidget)
#include "tst_audiosetting_right_crossover_widget.moc"
