// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/timing/timingscreen.h"
#include "tests/platform/testmain.h"

#include "platform/audiosettingsutils.h"

#include <QTranslator>

#include <limits>
#include <memory>

using namespace timingtest;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
const QString typeWritten = QStringLiteral("setValue(\"timing/type\", 0, %1, true)");

}  // namespace

class tst_TimingWidget : public PageTest {
    Q_OBJECT

    static void outputRows() {
        QTest::addColumn<int>("output");
        for (int output = 0; output < outputs; ++output) {
            QTest::newRow(names[output]) << output;
        }
    }

private slots:
    // Showing ---------------------------------------------------------------------------------------------------------

    void constructionWritesAndSendsNothing() {
        store({{1, 2, 3, 4, 5, 6}});
        Screen screen;
        QCOMPARE(recording::take(), QStringList());
        // The delays are read when the page is shown.
        QCOMPARE(screen.shown(), QStringList({"0", "0", "0", "0", "0", "0"}));
    }

    void constructionReadsTheUnitOfDelays() {
        recording::setLogged(recording::Reads);
        const Screen screen;
        QCOMPARE(recording::take(),
                 QStringList({"getValue(\"timing/type\", 0)", "getValue(\"timing/PRESET_ENABLE0\", false)",
                              "getValue(\"timing/PRESET_ENABLE1\", false)"}));
    }

    void declaresItsSlots() {
        const QMetaObject &meta = Audiosetting_right_timing_widget::staticMetaObject;
        const QStringList expected{"initUi()",
                                   "onGbButtonClicked(int)",
                                   "onPresetClicked(int)",
                                   "onPreset1LongPressed()",
                                   "onPreset2LongPressed()",
                                   "onFLPrevPressedRepeat()",
                                   "onFLNextPressedRepeat()",
                                   "onFRPrevPressedRepeat()",
                                   "onFRNextPressedRepeat()",
                                   "onRLPrevPressedRepeat()",
                                   "onRLNextPressedRepeat()",
                                   "onRRPrevPressedRepeat()",
                                   "onRRNextPressedRepeat()",
                                   "onSLPrevPressedRepeat()",
                                   "onSLNextPressedRepeat()",
                                   "onSRPrevPressedRepeat()",
                                   "onSRNextPressedRepeat()",
                                   "onFrontLeftMinus()",
                                   "onFrontLeftPlus()",
                                   "onFrontRightMinus()",
                                   "onFrontRightPlus()",
                                   "onRearLeftMinus()",
                                   "onRearLeftPlus()",
                                   "onRearRightMinus()",
                                   "onRearRightPlus()",
                                   "onSubLeftMinus()",
                                   "onSubLeftPlus()",
                                   "onSubRightMinus()",
                                   "onSubRightPlus()",
                                   "onInchToDelayMs(int)",
                                   "onInchToVal(int)",
                                   "onInchSwapMs(int)",
                                   "onMsSwapInch(int)",
                                   "buttonPrevClicked(int)",
                                   "buttonNextClicked(int)",
                                   "onUpdateCurrentSelect()",
                                   "onResetTimeDelay()"};
        QStringList declared;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            declared << QString::fromLatin1(meta.method(i).methodSignature());
        }
        QCOMPARE(declared, expected);
    }

    void showingReadsAndSendsNothing() {
        store({{1, 0, 99, 50, 10, 5}});
        Screen screen;
        show(&screen.page);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.shown(), QStringList({"0.1", "0", "9.9", "5", "1", "0.5"}));
        QCOMPARE(screen.enabled(), QStringList({"ee", "de", "ed", "ee", "ee", "ee"}));
        QCOMPARE(screen.unit(), QStringLiteral("m-"));
        store({{2, 1, 98, 0, 99, 4}});
        recording::setStored("timing/type", 1);
        screen.showAgain();
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.shown(), QStringList({"3", "1", "131", "0", "133", "5"}));
        QCOMPARE(screen.enabled(), QStringList({"ee", "ee", "ee", "de", "ed", "ee"}));
        QCOMPARE(screen.unit(), QStringLiteral("-i"));
    }

    void everyDelayInBothUnits() {
        Screen screen;
        show(&screen.page);
        for (int delay = 0; delay <= 99; ++delay) {
            Delays delays;
            delays.fill(delay);
            store(delays);
            const QString ms =
                delay % 10 == 0 ? QString::number(delay / 10) : QStringLiteral("%1.%2").arg(delay / 10).arg(delay % 10);
            const QString inches = QString::number((delay * 1339 + 500) / 1000);
            for (const auto &unit : {qMakePair(0, ms), qMakePair(1, inches)}) {
                recording::setStored("timing/type", unit.first);
                screen.showAgain();
                for (int output = 0; output < outputs; ++output) {
                    QCOMPARE(screen.value(output)->text(), unit.second);
                    QCOMPARE(screen.minus(output)->isEnabled(), delay > 0);
                    QCOMPARE(screen.plus(output)->isEnabled(), delay < 99);
                }
            }
        }
        QCOMPARE(recording::take(), QStringList());
    }

    void flatReloadsAndSendsNothing() {
        store({{10, 20, 30, 40, 50, 60}});
        Screen screen;
        show(&screen.page);
        screen.key("key_preset_1")->setProperty("long_click", true);
        AudioSettingsUtils::instance()->flatTimeDelay();
        QCOMPARE(recording::take(), QStringList({"flatTimeDelay()", "signal_flatTimeDelay()"}));
        QCOMPARE(screen.shown(), QStringList({"0", "0", "0", "0", "0", "0"}));
        QCOMPARE(screen.enabled(), QStringList({"de", "de", "de", "de", "de", "de"}));
        QCOMPARE(screen.key("key_preset_1")->property("long_click"), QVariant(false));
    }

    void captionsAreTranslatedWhileShown() {
        Screen screen;
        store({{7, 0, 0, 0, 0, 0}});
        show(&screen.page);
        struct Other : QTranslator {
            bool isEmpty() const override { return false; }
            QString translate(const char *context, const char *text, const char *, int) const override {
                const bool ofTheForm = qstrcmp(context, "Audiosetting_right_timing_widget") == 0;
                return ofTheForm ? QStringLiteral("<%1>").arg(QLatin1String(text)) : QString();
            }
        } other;
        QVERIFY(QCoreApplication::installTranslator(&other));
        advance(0);
        const auto text = [&screen](const char *name) {
            return screen.page.findChild<QLabel *>(QLatin1String(name))->text();
        };
        QCOMPARE(text("txt_fl"), QStringLiteral("<Front Left 1>"));
        QCOMPARE(text("txt_sr"), QStringLiteral("<Subwoofer Right>"));
        QCOMPARE(text("txt_msec"), QStringLiteral("<MSEC.>"));
        QCOMPARE(text("txt_presets"), QStringLiteral("<Presets>"));
        // Values are no captions.
        QCOMPARE(text("txt_fl_value"), QStringLiteral("0.7"));
        QCoreApplication::removeTranslator(&other);
        advance(0);
        QCOMPARE(text("txt_fl"), QStringLiteral("Front Left 1"));
        QCOMPARE(text("txt_fl_value"), QStringLiteral("0.7"));
        QCOMPARE(recording::take(), QStringList());
    }

    void presetCaptionEndsAboveItsKeys() {
        // Its label reaches behind the keys.
        Screen screen;
        show(&screen.page);
        const QLabel *const caption = screen.page.findChild<QLabel *>(QStringLiteral("txt_presets"));
        const QRect text = QFontMetrics(caption->font())
                               .boundingRect(caption->contentsRect(), int(caption->alignment()), caption->text());
        const int end = caption->y() + text.bottom();
        for (const char *key : {"key_preset_1", "key_preset_2"}) {
            const int begin = screen.key(QLatin1String(key))->y();
            QVERIFY2(end < begin, qPrintable(QStringLiteral("%1, %2").arg(end).arg(begin)));
        }
    }

    // Stepping --------------------------------------------------------------------------------------------------------

    void aStepShowsThenSendsThenStores() {
        storePreset(0, {{4, 0, 0, 0, 0, 0}});
        store({{3, 0, 0, 0, 0, 0}});
        Screen screen;
        show(&screen.page);
        recording::setLogged(recording::Reads);
        recording::clear();
        screen.tap("key_fl_plus");
        const QStringList lines = recording::take();
        // The preset that the new delays equal is looked for before they are sent.
        const int compared = lines.indexOf(QStringLiteral("getValue(\"timing/PRESETS0_DATA0\", 0)"));
        QCOMPARE(lines.first(), QStringLiteral("doBeep(0)"));
        QVERIFY(compared > 0);
        QVERIFY(lines.indexOf(send({{4, 0, 0, 0, 0, 0}})) > compared);
        QCOMPARE(lines.mid(lines.size() - 2), QStringList({send({{4, 0, 0, 0, 0, 0}}), write(0, 4)}));
        QCOMPARE(screen.presets(), QStringLiteral("1-"));
    }

    void aRecallStoresThenSendsAndComparesNothing() {
        storePreset(1, {{4, 5, 6, 7, 8, 9}});
        Screen screen;
        show(&screen.page);
        recording::setLogged(recording::Reads);
        recording::clear();
        screen.tap("key_preset_2");
        QStringList expected{"getValue(\"timing/PRESET_ENABLE1\", false)", "doBeep(0)"};
        for (int output = 0; output < outputs; ++output) {
            expected << QStringLiteral("getValue(\"timing/PRESETS1_DATA%1\", 0)").arg(output)
                     << write(output, 4 + output);
        }
        QCOMPARE(recording::take(), expected << send({{4, 5, 6, 7, 8, 9}}));
    }

    void keyStepsItsOutput_data() { outputRows(); }
    void keyStepsItsOutput() {
        QFETCH(int, output);
        Delays delays{{10, 20, 30, 40, 50, 60}};
        store(delays);
        Screen screen;
        show(&screen.page);
        finger::tap(screen.plus(output));
        ++delays[output];
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", send(delays), write(output, delays[output])}));
        QCOMPARE(screen.value(output)->text(), QStringLiteral("%1.1").arg(output + 1));
        finger::tap(screen.minus(output));
        finger::tap(screen.minus(output));
        recording::clear();
        finger::tap(screen.minus(output));
        delays[output] -= 3;
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", send(delays), write(output, delays[output])}));
        QCOMPARE(screen.value(output)->text(), QStringLiteral("%1.8").arg(output));
        QCOMPARE(recording::stored(QStringLiteral("timing/DATA_TYPE%1").arg(output)).toInt(), delays[output]);
    }

    void keyLooksUnderTheWholeOfItself() {
        Screen screen;
        show(&screen.page);
        // Captions and values overlap the keys' corners; the keys take the touch.
        for (int output = 0; output < outputs; ++output) {
            QPushButton *const key = screen.plus(output);
            for (const QPoint &corner : {QPoint(0, 0), QPoint(75, 0), QPoint(0, 75), QPoint(75, 75)}) {
                recording::clear();
                finger::tap(key, corner);
                QCOMPARE(recording::take().value(0), QStringLiteral("doBeep(0)"));
            }
        }
    }

    void holdingPlusGoesToTheTop_data() { outputRows(); }
    void holdingPlusGoesToTheTop() {
        QFETCH(int, output);
        Screen screen;
        show(&screen.page);
        Delays delays{};
        QPushButton *const key = screen.plus(output);
        finger::press(key, key->rect().center());
        advance(999);
        QCOMPARE(recording::take(), QStringList());
        advance(1);
        for (int delay = 1; delay <= 99; ++delay) {
            delays[output] = delay;
            QCOMPARE(recording::take(), QStringList({send(delays), write(output, delay)}));
            QCOMPARE(screen.minus(output)->isEnabled(), true);
            QCOMPARE(key->isEnabled(), delay < 99);
            advance(199);
            QCOMPARE(recording::take(), QStringList());
            advance(1);
        }
        // At the top the key is disabled, which ends the repeat and the press.
        advance(1000);
        finger::release(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.value(output)->text(), QStringLiteral("9.9"));
    }

    void holdingMinusGoesToTheBottom_data() { outputRows(); }
    void holdingMinusGoesToTheBottom() {
        QFETCH(int, output);
        Delays delays{{3, 3, 3, 3, 3, 3}};
        store(delays);
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.minus(output);
        finger::press(key, key->rect().center());
        advance(1400);
        QStringList expected;
        for (int delay : {2, 1, 0}) {
            delays[output] = delay;
            expected << send(delays) << write(output, delay);
        }
        QCOMPARE(recording::take(), expected);
        QVERIFY(!key->isEnabled());
        advance(1000);
        QCOMPARE(recording::take(), QStringList());
    }

    void releaseOfAHoldIsAClickToo() {
        Screen screen;
        show(&screen.page);
        QPushButton *const key = screen.plus(0);
        finger::press(key, key->rect().center());
        advance(1200);
        recording::clear();
        finger::release(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", send({{3, 0, 0, 0, 0, 0}}), write(0, 3)}));
        advance(1000);
        QCOMPARE(recording::take(), QStringList());
    }

    void slotsOfEveryOutput() {
        const char *const steps[outputs][4] = {
            {"onFrontLeftMinus", "onFrontLeftPlus", "onFLPrevPressedRepeat", "onFLNextPressedRepeat"},
            {"onFrontRightMinus", "onFrontRightPlus", "onFRPrevPressedRepeat", "onFRNextPressedRepeat"},
            {"onRearLeftMinus", "onRearLeftPlus", "onRLPrevPressedRepeat", "onRLNextPressedRepeat"},
            {"onRearRightMinus", "onRearRightPlus", "onRRPrevPressedRepeat", "onRRNextPressedRepeat"},
            {"onSubLeftMinus", "onSubLeftPlus", "onSLPrevPressedRepeat", "onSLNextPressedRepeat"},
            {"onSubRightMinus", "onSubRightPlus", "onSRPrevPressedRepeat", "onSRNextPressedRepeat"}};
        Delays delays{{10, 20, 30, 40, 50, 60}};
        store(delays);
        Screen screen;
        show(&screen.page);
        for (int output = 0; output < outputs; ++output) {
            for (int slot = 0; slot < 4; ++slot) {
                recording::clear();
                QVERIFY(QMetaObject::invokeMethod(&screen.page, steps[output][slot]));
                delays[output] += slot % 2 == 0 ? -1 : 1;
                QStringList expected{send(delays), write(output, delays[output])};
                if (slot < 2) {
                    expected.prepend("doBeep(0)");
                }
                QCOMPARE(recording::take(), expected);
            }
        }
    }

    void atALimitTheValueIsSentAgain() {
        store({{0, 99, 0, 0, 0, 0}});
        Screen screen;
        show(&screen.page);
        screen.page.onFLPrevPressedRepeat();
        QCOMPARE(recording::take(), QStringList({send({{0, 99, 0, 0, 0, 0}}), write(0, 0)}));
        screen.page.onFrontRightPlus();
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", send({{0, 99, 0, 0, 0, 0}}), write(1, 99)}));
    }

    void otherOutputsDoNothing() {
        Screen screen;
        show(&screen.page);
        for (int output : {lowest, -1, 6, 1000, highest}) {
            screen.page.buttonPrevClicked(output);
            screen.page.buttonNextClicked(output);
            screen.page.buttonStateUpdate(output);
        }
        QCOMPARE(recording::take(), QStringList());
    }

    // Unit ------------------------------------------------------------------------------------------------------------

    void unitKeysChangeTheDisplayOnly() {
        store({{1, 5, 10, 50, 99, 0}});
        Screen screen;
        show(&screen.page);
        screen.tap("key_inches");
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", typeWritten.arg(1)}));
        QCOMPARE(screen.shown(), QStringList({"1", "7", "13", "67", "133", "0"}));
        QCOMPARE(screen.unit(), QStringLiteral("-i"));
        // Stepping shows inches, sends and stores 0.1 ms.
        finger::tap(screen.plus(5));
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", send({{1, 5, 10, 50, 99, 1}}), write(5, 1)}));
        QCOMPARE(screen.value(5)->text(), QStringLiteral("1"));
        screen.tap("key_msec");
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", typeWritten.arg(0)}));
        QCOMPARE(screen.shown(), QStringList({"0.1", "0.5", "1", "5", "9.9", "0.1"}));
        QCOMPARE(screen.unit(), QStringLiteral("m-"));
    }

    void otherUnitNumbersKeepTheUnit() {
        recording::setStored("timing/type", 1);
        store({{10, 0, 0, 0, 0, 0}});
        Screen screen;
        show(&screen.page);
        for (int unit : {-1, 2, highest}) {
            recording::clear();
            screen.page.onGbButtonClicked(unit);
            QCOMPARE(recording::take(), QStringList({"doBeep(0)", typeWritten.arg(1)}));
            QCOMPARE(screen.value(0)->text(), QStringLiteral("13"));
        }
    }

    void storedUnit_data() {
        QTest::addColumn<QVariant>("type");
        QTest::addColumn<QString>("checked");
        QTest::addColumn<QString>("shown");
        QTest::newRow("ms") << QVariant(0) << "m-"
                            << "1";
        QTest::newRow("inches") << QVariant(1) << "-i"
                                << "13";
        for (int type : {lowest, -1, 2, 1000, highest}) {
            QTest::addRow("%d", type) << QVariant(type) << "--"
                                      << "1";
        }
        QTest::newRow("text") << QVariant("inch") << "m-"
                              << "1";
    }
    void storedUnit() {
        QFETCH(QVariant, type);
        QFETCH(QString, checked);
        QFETCH(QString, shown);
        store({{10, 0, 0, 0, 0, 0}});
        Screen screen;
        show(&screen.page);
        recording::setStored("timing/type", type);
        screen.showAgain();
        QCOMPARE(screen.unit(), checked);
        QCOMPARE(screen.value(0)->text(), shown);
        QCOMPARE(recording::take(), QStringList());
    }

    // Stored values that no page would store --------------------------------------------------------------------------

    void oddDelay_data() {
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("afterMinus");
        QTest::addColumn<int>("afterPlus");
        QTest::newRow("lowest") << lowest << 0 << lowest + 1;
        QTest::newRow("-5") << -5 << 0 << -4;
        QTest::newRow("-1") << -1 << 0 << 0;
        QTest::newRow("0") << 0 << 0 << 1;
        QTest::newRow("1") << 1 << 0 << 2;
        QTest::newRow("98") << 98 << 97 << 99;
        QTest::newRow("99") << 99 << 98 << 99;
        QTest::newRow("100") << 100 << 99 << 99;
        QTest::newRow("150") << 150 << 149 << 99;
        QTest::newRow("highest") << highest << highest - 1 << 99;
    }
    void oddDelay() {
        QFETCH(int, delay);
        QFETCH(int, afterMinus);
        QFETCH(int, afterPlus);
        for (int output = 0; output < outputs; ++output) {
            Delays delays{{1, 2, 3, 4, 5, 6}};
            delays[output] = delay;
            store(delays);
            Screen screen;
            show(&screen.page);
            QCOMPARE(screen.minus(output)->isEnabled(), delay >= 1);
            QCOMPARE(screen.plus(output)->isEnabled(), delay < 99);
            // Sent as it is with the next step of another output.
            const int other = (output + 1) % outputs;
            recording::clear();
            finger::tap(screen.plus(other));
            ++delays[other];
            QCOMPARE(recording::take(), QStringList({"doBeep(0)", send(delays), write(other, delays[other])}));
            screen.page.buttonPrevClicked(output);
            delays[output] = afterMinus;
            QCOMPARE(recording::take(), QStringList({send(delays), write(output, afterMinus)}));
            recording::setStored(QStringLiteral("timing/DATA_TYPE%1").arg(output), delay);
            recording::setStored("timing/type", 1);
            screen.showAgain();
            screen.page.buttonNextClicked(output);
            delays[output] = afterPlus;
            QCOMPARE(recording::take(), QStringList({send(delays), write(output, afterPlus)}));
        }
    }

    // The list of outputs, one for the class --------------------------------------------------------------------------

    void pagesComeAndGo() {
        auto first = std::make_unique<Screen>();
        show(&first->page);
        {
            Screen second;
            show(&second.page);
            finger::tap(second.plus(2));
            QCOMPARE(second.value(2)->text(), QStringLiteral("0.1"));
            QCOMPARE(first->value(2)->text(), QStringLiteral("0"));
        }
        finger::tap(first->plus(3));
        QCOMPARE(first->value(3)->text(), QStringLiteral("0.1"));
        first.reset();
        Screen third;
        show(&third.page);
        QCOMPARE(third.shown(), QStringList({"0", "0", "0.1", "0.1", "0", "0"}));
        finger::tap(third.minus(3));
        QCOMPARE(third.value(3)->text(), QStringLiteral("0"));
        QVERIFY(!third.minus(3)->isEnabled());
    }
};

PAGE_TEST_MAIN(tst_TimingWidget)
#include "tst_audiosetting_right_timing_widget.moc"
