// SPDX-License-Identifier: Apache-2.0
#include "general/audiosetting_right_general_widget.h"

#include "general/balancefadercontrol.h"
#include "platform/settingscache.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using settings::balanceFaderControl;

namespace {

const QString white = QStringLiteral("color: #FFF;");
const QString grey = QStringLiteral("color: #57575F;");

const QStringList arrowKeys{"Key_balance_left", "Key_balance_right", "Key_fade_front", "Key_fade_rear"};
const QStringList defeatedKeys{"key_Subwoofer",   "key_Phase_0",  "key_Phase_180",    "key_subvol_prev",
                               "key_subvol_next", "Key_update",   "Key_balance_left", "Key_balance_right",
                               "Key_fade_front",  "Key_fade_rear"};
const QStringList defeatedCaptions{"text_Subwoofer", "text_Phase", "text_Subwoofer_3", "txt_bal",
                                   "txt_bal_val",    "txt_fad",    "txt_fad_val"};
const QStringList freeCaptions{"txt_vol_level", "text_defeat", "text_Advanced"};

constexpr int sendInterval = 100;  // ms

}  // namespace

class tst_GeneralWidget : public PageTest {
    Q_OBJECT

    struct General {
        Audiosetting_right_general_widget page{nullptr};
        balanceFaderControl *pad = page.findChild<balanceFaderControl *>();
        QPoint origin{pad->width() / 2 + 2, pad->height() / 2};

        General() { show(&page); }
        QPushButton *key(const QString &name) { return page.findChild<QPushButton *>(name); }
        QLabel *label(const QString &name) { return page.findChild<QLabel *>(name); }
        QString text(const char *name) { return label(QLatin1String(name))->text(); }
        bool enabled(const char *name) { return key(QLatin1String(name))->isEnabled(); }
        bool checked(const char *name) { return key(QLatin1String(name))->isChecked(); }
        void tap(const char *name) { finger::tap(key(QLatin1String(name))); }
        void showAgain() {
            page.hide();
            page.show();
        }
        /// Balance and fader as numbers, pad and enabled step keys say.
        QString balance() {
            QString keys;
            for (const QString &name : arrowKeys) {
                keys += QLatin1Char(key(name)->isEnabled() ? 'e' : 'd');
            }
            return QStringLiteral("%1,%2 pad %3,%4 keys %5")
                .arg(text("txt_bal_val"), text("txt_fad_val"))
                .arg(pad->getValueX())
                .arg(pad->getValueY())
                .arg(keys);
        }
        /// The subwoofer's keys: previous, next.
        QString levelKeys() {
            return QLatin1String(enabled("key_subvol_prev") ? "e" : "d") +
                   QLatin1String(enabled("key_subvol_next") ? "e" : "d");
        }
    };

    /// The pad by itself, without the page's background.
    static QImage picture(balanceFaderControl *pad) {
        QWidget *const parent = pad->parentWidget();
        const QRect place = pad->geometry();
        pad->setParent(nullptr);
        const QImage image = pad->grab().toImage();
        pad->setParent(parent);
        pad->setGeometry(place);
        pad->show();
        return image;
    }

    static QStringList sent(int balance, int fader) {
        return {QStringLiteral("setValue(\"SoundFieldFader\", 0, %1, true)").arg(fader),
                QStringLiteral("setValue(\"SoundFieldBalance\", 0, %1, true)").arg(balance),
                QStringLiteral("setBalanceFader(%1, %2, true)").arg(balance).arg(fader)};
    }

private slots:
    // Showing --------------------------------------------------------------------------------------------------------

    void constructionReadsAndWritesNothing() {
        recording::setLogged(recording::Reads);
        Audiosetting_right_general_widget page(nullptr);
        QCOMPARE(recording::take(), QStringList());
    }

    void showingOnlyReads() {
        Audiosetting_right_general_widget page(nullptr);
        recording::setLogged(recording::Reads);
        show(&page);
        advance(10000);
        const QStringList calls = recording::take();
        QVERIFY(calls.size() >= 6);
        QCOMPARE(calls.filter(QStringLiteral("getValue(")), calls);
        QCOMPARE(calls.mid(0, 4),
                 QStringList({"getValue(\"subwooferLevel\", 3)", "getValue(\"Setup_Sub\", 0)",
                              "getValue(\"subwooferphase\", 0)", "getValue(\"ADV_AUDIO_SETTINGS\", 0)"}));
    }

    void firstStartWithNothingStored() {
        General g;
        QVERIFY(!g.checked("key_Subwoofer"));
        QVERIFY(!g.checked("key_defeat"));
        QCOMPARE(g.text("txt_vol_level"), QStringLiteral("3"));
        QVERIFY(g.checked("key_Phase_0"));
        QVERIFY(!g.checked("key_Phase_180"));
        QCOMPARE(g.levelKeys(), QStringLiteral("dd"));
        QCOMPARE(g.balance(), QStringLiteral("0,0 pad 0,0 keys eeee"));
        QCOMPARE(recording::take(), QStringList());
    }

    void everyShowReadsEverythingAgain() {
        General g;
        recording::setStored("Setup_Sub", 1);
        recording::setStored("subwooferLevel", 11);
        recording::setStored("subwooferphase", 1);
        recording::setStored("SoundFieldBalance", -7);
        recording::setStored("SoundFieldFader", -3);
        g.showAgain();
        QVERIFY(g.checked("key_Subwoofer"));
        QCOMPARE(g.text("txt_vol_level"), QStringLiteral("11"));
        QVERIFY(g.checked("key_Phase_180"));
        QVERIFY(!g.checked("key_Phase_0"));
        QCOMPARE(g.levelKeys(), QStringLiteral("ee"));
        QCOMPARE(g.balance(), QStringLiteral("-7,3 pad -7,3 keys eeee"));
        QCOMPARE(recording::take(), QStringList());
    }

    void theMarkerStandsWhereTheStoredPairIs() {
        General g;
        const auto marker = [&g](int balance, int fader) {
            balanceFaderControl expected(nullptr, g.pad->geometry());
            expected.setValueX(balance);
            expected.setValueY(fader);
            expected.updatePos();
            return expected.grab().toImage() == picture(g.pad);
        };
        QVERIFY(marker(0, 0));
        recording::setStored("SoundFieldBalance", 12);
        recording::setStored("SoundFieldFader", 9);
        g.showAgain();
        QVERIFY(marker(12, -9));
        QVERIFY(!marker(0, 0));
    }

    void storedPhase_data() {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("checked");
        QTest::newRow("never written") << QVariant() << "0";
        QTest::newRow("0") << QVariant(0) << "0";
        QTest::newRow("1") << QVariant(1) << "180";
        QTest::newRow("2") << QVariant(2) << "";
        QTest::newRow("-1") << QVariant(-1) << "";
    }
    void storedPhase() {
        QFETCH(QVariant, stored);
        QFETCH(QString, checked);
        for (const int before : {0, 1}) {  // whatever was checked before
            recording::setStored("subwooferphase", before);
            General g;
            recording::setStored("subwooferphase", stored);
            g.showAgain();
            QCOMPARE(g.checked("key_Phase_0"), checked == "0");
            QCOMPARE(g.checked("key_Phase_180"), checked == "180");
        }
        QCOMPARE(recording::take(), QStringList());
    }

    void storedSubwoofer_data() {
        QTest::addColumn<QVariant>("on");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("keys");
        QTest::newRow("off") << QVariant(0) << 8 << "dd";
        QTest::newRow("on") << QVariant(1) << 8 << "ee";
        QTest::newRow("true") << QVariant(true) << 8 << "ee";
        QTest::newRow("neither") << QVariant(2) << 8 << "dd";
        QTest::newRow("lowest") << QVariant(1) << 0 << "de";
        QTest::newRow("1") << QVariant(1) << 1 << "ee";
        QTest::newRow("14") << QVariant(1) << 14 << "ee";
        QTest::newRow("highest") << QVariant(1) << 15 << "ed";
        QTest::newRow("above") << QVariant(1) << 99 << "ed";
        QTest::newRow("below") << QVariant(1) << -4 << "de";
    }
    void storedSubwoofer() {
        QFETCH(QVariant, on);
        QFETCH(int, level);
        QFETCH(QString, keys);
        recording::setStored("Setup_Sub", on);
        recording::setStored("subwooferLevel", level);
        General g;
        QCOMPARE(g.levelKeys(), keys);
        QCOMPARE(g.text("txt_vol_level"), QString::number(level));
        QCOMPARE(recording::take(), QStringList());
    }

    void storedBalanceAndFader_data() {
        QTest::addColumn<int>("balance");
        QTest::addColumn<int>("fader");
        QTest::addColumn<QString>("shown");
        QTest::newRow("centre") << 0 << 0 << "0,0 pad 0,0 keys eeee";
        QTest::newRow("front right") << 15 << -15 << "15,15 pad 15,15 keys edde";
        QTest::newRow("rear left") << -15 << 15 << "-15,-15 pad -15,-15 keys deed";
        QTest::newRow("one short") << 14 << -14 << "14,14 pad 14,14 keys eeee";
        QTest::newRow("beyond") << 40 << 40 << "40,-40 pad 40,-40 keys eded";
    }
    void storedBalanceAndFader() {
        QFETCH(int, balance);
        QFETCH(int, fader);
        QFETCH(QString, shown);
        recording::setStored("SoundFieldBalance", balance);
        recording::setStored("SoundFieldFader", fader);
        General g;
        QCOMPARE(g.balance(), shown);
    }

    void absurdStoredValuesDoNoHarm_data() {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("balance");
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("levelKeys");
        // The store's fader is shown with the other sign, which the smallest number does not have.
        QTest::newRow("smallest") << INT_MIN << "-2147483648,2147483647 pad -2147483648,2147483647 keys dede"
                                  << INT_MIN + 1 << "de";
        QTest::newRow("largest") << INT_MAX << "2147483647,-2147483647 pad 2147483647,-2147483647 keys eded"
                                 << INT_MAX - 1 << "ed";
    }
    void absurdStoredValuesDoNoHarm() {
        QFETCH(int, value);
        QFETCH(QString, balance);
        QFETCH(int, level);
        QFETCH(QString, levelKeys);
        for (const char *key : {"SoundFieldBalance", "SoundFieldFader", "subwooferLevel", "subwooferphase"}) {
            recording::setStored(QLatin1String(key), value);
        }
        recording::setStored("Setup_Sub", 1);
        General g;
        g.page.grab();
        QCOMPARE(g.balance(), balance);
        QVERIFY(!g.checked("key_Phase_0") && !g.checked("key_Phase_180"));
        // One of the two is enabled and takes its step.
        g.tap("key_subvol_prev");
        g.tap("key_subvol_next");
        g.showAgain();
        QCOMPARE(g.text("txt_vol_level"), QString::number(level));
        QCOMPARE(g.levelKeys(), levelKeys);
    }

    // Defeat ---------------------------------------------------------------------------------------------------------

    void defeatOnKeepsTheCurve() {
        recording::state().eqType = 7;
        recording::setStored("SoundFieldBalance", 4);
        recording::setStored("SoundFieldFader", 5);
        General g;
        g.tap("key_defeat");
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "setValue(\"ADV_AUDIO_SETTINGS\", 0, 1, true)",
                                                 "setValue(\"EQ_DEFEAT_TYPE\", 2, 7, true)",
                                                 "SettingsCacheSig(\"ADV_AUDIO_SETTINGS\")", "updateDefeatSetup()"}));
        QVERIFY(g.checked("key_defeat"));
        QCOMPARE(g.balance(), QStringLiteral("0,0 pad 0,0 keys dddd"));
        advance(1000);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(recording::stored("SoundFieldBalance"), QVariant(4));
    }

    void defeatOffRestoresTheCurve_data() {
        QTest::addColumn<QVariant>("kept");
        QTest::addColumn<int>("type");
        QTest::newRow("never written") << QVariant() << 2;
        QTest::newRow("rock") << QVariant(3) << 3;
        QTest::newRow("custom") << QVariant(20) << 20;
        QTest::newRow("without a name") << QVariant(4) << 4;
    }
    void defeatOffRestoresTheCurve() {
        QFETCH(QVariant, kept);
        QFETCH(int, type);
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        recording::setStored("EQ_DEFEAT_TYPE", kept);
        recording::setStored("SoundFieldBalance", 4);
        recording::setStored("SoundFieldFader", 5);
        General g;
        QVERIFY(g.checked("key_defeat"));
        g.tap("key_defeat");
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "setValue(\"ADV_AUDIO_SETTINGS\", 0, 0, true)",
                                                 QStringLiteral("setEQType(%1, true)").arg(type),
                                                 "SettingsCacheSig(\"ADV_AUDIO_SETTINGS\")", "updateDefeatSetup()"}));
        QVERIFY(!g.checked("key_defeat"));
        QCOMPARE(g.balance(), QStringLiteral("4,-5 pad 4,-5 keys eeee"));
    }

    void defeatDisablesAndGreys_data() {
        QTest::addColumn<int>("stored");
        QTest::newRow("1") << 1;
        QTest::newRow("2") << 2;
        QTest::newRow("-1") << -1;
    }
    void defeatDisablesAndGreys() {
        QFETCH(int, stored);
        recording::setStored("Setup_Sub", 1);
        General g;
        QVERIFY(g.pad->isEnabled());
        for (const QString &name : defeatedKeys) {
            QVERIFY2(g.key(name)->isEnabled(), qPrintable(name));
        }
        for (const QString &name : defeatedCaptions) {
            QCOMPARE(g.label(name)->styleSheet(), white);
        }

        recording::setStored("ADV_AUDIO_SETTINGS", stored);
        g.showAgain();
        QVERIFY(g.checked("key_defeat"));
        QVERIFY(!g.pad->isEnabled());
        for (const QString &name : defeatedKeys) {
            QVERIFY2(!g.key(name)->isEnabled(), qPrintable(name));
        }
        for (const QString &name : defeatedCaptions) {
            QCOMPARE(g.label(name)->styleSheet(), grey);
        }
        for (const QString &name : freeCaptions) {
            QVERIFY2(g.label(name)->styleSheet() != grey, qPrintable(name));
        }
        QVERIFY(g.enabled("key_defeat"));
        QVERIFY(g.enabled("key_advanced"));

        recording::setStored("ADV_AUDIO_SETTINGS", 0);
        g.showAgain();
        for (const QString &name : defeatedKeys) {
            QVERIFY2(g.key(name)->isEnabled(), qPrintable(name));
        }
        for (const QString &name : defeatedCaptions) {
            QCOMPARE(g.label(name)->styleSheet(), white);
        }
    }

    void defeatCoversEveryKeyAndCaptionOfThePage() {
        // A key or caption that is added later must be thought of here, too.
        General g;
        QStringList keys;
        for (const QPushButton *key : g.page.findChildren<QPushButton *>()) {
            keys << key->objectName();
        }
        QStringList expected = defeatedKeys + QStringList{"key_defeat", "key_advanced"};
        keys.sort();
        expected.sort();
        QCOMPARE(keys, expected);
        for (const QString &name : defeatedCaptions + freeCaptions) {
            QVERIFY2(g.label(name), qPrintable(name));
        }
    }

    void defeatOffLeavesTheSubwoofersKeysToTheSubwoofer() {
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        General g;
        g.tap("key_defeat");
        QVERIFY(g.enabled("key_Subwoofer"));
        QCOMPARE(g.levelKeys(), QStringLiteral("dd"));  // it is switched off
        QVERIFY(g.enabled("key_Phase_0") && g.enabled("key_Phase_180"));
    }

    void defeatIsAnnouncedBeforeThePageChanges() {
        General g;
        QString seen;
        const auto connection = connect(mem::SettingsCache::instance(), &mem::SettingsCache::SettingsCacheSig, [&] {
            seen = QStringLiteral("%1 %2").arg(recording::stored("ADV_AUDIO_SETTINGS").toInt()).arg(g.pad->isEnabled());
        });
        g.tap("key_defeat");
        disconnect(connection);
        QCOMPARE(seen, QStringLiteral("1 1"));
        QVERIFY(!g.pad->isEnabled());
    }

    void defeatIsAppliedLast() {
        General g;
        recording::setLogged(recording::Reads);
        for (int round = 0; round < 2; ++round) {  // on, off
            g.tap("key_defeat");
            const QStringList calls = recording::take();
            QCOMPARE(calls.last(), QStringLiteral("updateDefeatSetup()"));
            // Before it the page has read the state that it shows.
            QVERIFY(calls.at(calls.size() - 2).startsWith(QStringLiteral("getValue(")));
            QCOMPARE(calls.count(QStringLiteral("updateDefeatSetup()")), 1);
        }
    }

    void defeatedPadAndKeysTakeNoTouch() {
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        General g;
        finger::press(g.pad, g.origin + QPoint(30, 30));
        finger::move(g.pad, g.origin + QPoint(60, 30));
        finger::release(g.pad, g.origin + QPoint(60, 30));
        for (const QString &name : defeatedKeys) {
            finger::tap(g.key(name));
        }
        advance(1000);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(g.balance(), QStringLiteral("0,0 pad 0,0 keys dddd"));
    }

    void changeThatWaitsWhenDefeatComesIsSentAsShown() {
        General g;
        finger::tap(g.pad, g.origin + QPoint(60, 0));
        g.tap("key_defeat");
        recording::clear();
        advance(sendInterval);
        QCOMPARE(recording::take(), sent(0, 0));
    }

    // Advanced -------------------------------------------------------------------------------------------------------

    void advancedBeepsThenAnnounces() {
        General g;
        connect(&g.page, &Audiosetting_right_general_widget::advancedChanged,
                [] { recording::note("advancedChanged"); });
        g.tap("key_advanced");
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "advancedChanged"}));
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        g.showAgain();
        g.tap("key_advanced");
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "advancedChanged"}));
    }

    // Subwoofer ------------------------------------------------------------------------------------------------------

    void subwooferSwitch() {
        recording::setStored("subwooferLevel", 6);
        General g;
        g.tap("key_Subwoofer");
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"Setup_Sub\", 0, true, true)", "setSubwooferValue(6)"}));
        QCOMPARE(g.levelKeys(), QStringLiteral("ee"));
        g.tap("key_Subwoofer");
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"Setup_Sub\", 0, false, true)", "setSubwooferValue(0)"}));
        QCOMPARE(g.levelKeys(), QStringLiteral("dd"));
        QCOMPARE(g.text("txt_vol_level"), QStringLiteral("6"));
        QCOMPARE(recording::stored("subwooferLevel"), QVariant(6));
    }

    void levelUpToTheEnd() {
        recording::setStored("Setup_Sub", 1);
        General g;
        for (int level = 4; level <= 15; ++level) {
            g.tap("key_subvol_next");
            QCOMPARE(recording::take(),
                     QStringList({"doBeep(0)", QStringLiteral("setValue(\"subwooferLevel\", 3, %1, true)").arg(level),
                                  QStringLiteral("setSubwooferValue(%1)").arg(level)}));
            QCOMPARE(g.text("txt_vol_level"), QString::number(level));
            QCOMPARE(g.levelKeys(), QLatin1String(level == 15 ? "ed" : "ee"));
        }
        g.tap("key_subvol_next");
        QCOMPARE(recording::take(), QStringList());
    }

    void levelDownToTheEnd() {
        recording::setStored("Setup_Sub", 1);
        General g;
        for (int level = 2; level >= 0; --level) {
            g.tap("key_subvol_prev");
            QCOMPARE(recording::take(),
                     QStringList({"doBeep(0)", QStringLiteral("setValue(\"subwooferLevel\", 3, %1, true)").arg(level),
                                  QStringLiteral("setSubwooferValue(%1)").arg(level)}));
            QCOMPARE(g.levelKeys(), QLatin1String(level == 0 ? "de" : "ee"));
        }
        g.tap("key_subvol_prev");
        QCOMPARE(recording::take(), QStringList());
    }

    void levelStopsAtItsEndsEvenWhenAsked() {
        recording::setStored("Setup_Sub", 1);
        recording::setStored("subwooferLevel", 15);
        General g;
        QVERIFY(QMetaObject::invokeMethod(&g.page, "on_key_subvol_next_clicked"));
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferLevel\", 3, 15, true)", "setSubwooferValue(15)"}));
        recording::setStored("subwooferLevel", 0);
        g.showAgain();
        QVERIFY(QMetaObject::invokeMethod(&g.page, "on_key_subvol_prev_clicked"));
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferLevel\", 3, 0, true)", "setSubwooferValue(0)"}));
    }

    void holdingALevelKeyIsOneStep() {
        recording::setStored("Setup_Sub", 1);
        General g;
        finger::hold(g.key("key_subvol_next"), 5000);
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferLevel\", 3, 4, true)", "setSubwooferValue(4)"}));
    }

    void levelStepsFromWhatWasReadOnShow() {
        recording::setStored("Setup_Sub", 1);
        General g;
        recording::setStored("subwooferLevel", 12);
        g.tap("key_subvol_next");
        QCOMPARE(recording::take().last(), QStringLiteral("setSubwooferValue(4)"));
        recording::setStored("subwooferLevel", 12);
        g.showAgain();
        g.tap("key_subvol_next");
        QCOMPARE(recording::take().last(), QStringLiteral("setSubwooferValue(13)"));
    }

    void phaseKeys() {
        General g;
        g.tap("key_Phase_180");
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferphase\", 0, 1, true)", "setSubwooferPhase(1)"}));
        QVERIFY(g.checked("key_Phase_180") && !g.checked("key_Phase_0"));
        g.tap("key_Phase_0");
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferphase\", 0, 0, true)", "setSubwooferPhase(0)"}));
        QVERIFY(!g.checked("key_Phase_180") && g.checked("key_Phase_0"));
        g.tap("key_Phase_0");  // the same again
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferphase\", 0, 0, true)", "setSubwooferPhase(0)"}));
        QVERIFY(g.checked("key_Phase_0"));
    }

    void otherPhasesOnlyBeep() {
        General g;
        for (const int id : {2, -1, 180}) {
            QVERIFY(QMetaObject::invokeMethod(&g.page, "onPhaseBtClicked", Q_ARG(int, id)));
            QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        }
    }

    // Balance and fader ----------------------------------------------------------------------------------------------

    void touchIsShownAtOnceAndSentAfter100Ms() {
        General g;
        finger::press(g.pad, g.origin + QPoint(-12, -18));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(g.balance(), QStringLiteral("-2,3 pad -2,3 keys eeee"));
        finger::release(g.pad, g.origin + QPoint(-12, -18));
        advance(sendInterval - 1);
        QCOMPARE(recording::take(), QStringList());
        advance(1);
        // Front is negative to the service and in the store.
        QCOMPARE(recording::take(), sent(-2, -3));
        advance(1000);
        QCOMPARE(recording::take(), QStringList());
    }

    void dragSendsAtMostOncePer100Ms() {
        General g;
        finger::press(g.pad, g.origin);
        recording::clear();
        for (int ms = 0; ms < 1000; ms += 10) {
            finger::move(g.pad, g.origin + QPoint(ms / 10, 0));
            advance(10);
        }
        finger::release(g.pad, g.origin + QPoint(99, 0));
        QStringList expected;
        // Each time with what the finger last chose, and the next 100 ms begin with the next move.
        for (int ms = 90; ms < 1000; ms += 100) {
            expected += sent(qMin((ms / 10 + 2) / 6, 15), 0);
        }
        advance(1000);
        QCOMPARE(recording::take(), expected);
    }

    void timerStartsWithTheFirstChangeOnly() {
        General g;
        finger::press(g.pad, g.origin + QPoint(6, 0));
        recording::clear();
        advance(60);
        finger::move(g.pad, g.origin + QPoint(12, 0));
        advance(39);
        QCOMPARE(recording::take(), QStringList());
        advance(1);
        QCOMPARE(recording::take(), sent(2, 0));
        finger::release(g.pad, g.origin + QPoint(12, 0));
        advance(1000);
    }

    void dragBeyondThePadStopsAtItsEnds() {
        General g;
        const auto corner = [&](int x, int y) { return g.pad->mapFrom(&g.page, QPoint(x, y)); };
        const QPoint frontRight = corner(g.page.width() - 1, 0);
        const QPoint rearLeft = corner(0, g.page.height() - 1);
        finger::press(g.pad, g.origin);
        finger::move(g.pad, frontRight);
        QCOMPARE(g.balance(), QStringLiteral("15,15 pad 15,15 keys edde"));
        finger::move(g.pad, rearLeft);
        QCOMPARE(g.balance(), QStringLiteral("-15,-15 pad -15,-15 keys deed"));
        finger::release(g.pad, rearLeft);
        recording::clear();
        advance(sendInterval);
        QCOMPARE(recording::take(), sent(-15, 15));
    }

    void stepKeys_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("balance");
        QTest::addColumn<int>("fader");
        QTest::newRow("left") << "Key_balance_left" << -1 << 0;
        QTest::newRow("right") << "Key_balance_right" << 1 << 0;
        QTest::newRow("front") << "Key_fade_front" << 0 << -1;
        QTest::newRow("rear") << "Key_fade_rear" << 0 << 1;
    }
    void stepKeys() {
        QFETCH(QString, key);
        QFETCH(int, balance);
        QFETCH(int, fader);
        // From what the service holds, which differs from what the page shows.
        recording::state().balance = 5;
        recording::state().fader = -6;
        General g;
        finger::tap(g.key(key));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(g.balance(), QStringLiteral("%1,%2 pad %1,%2 keys eeee").arg(5 + balance).arg(6 - fader));
        advance(sendInterval);
        QCOMPARE(recording::take(), sent(5 + balance, -6 + fader));
    }

    void stepKeysReadTheServiceAtEachPress() {
        recording::setLogged(recording::Reads);
        General g;
        recording::clear();
        g.tap("Key_balance_right");
        QCOMPARE(recording::take().mid(0, 2), QStringList({"doBeep(0)", "getBalanceFader()"}));
        // Within 100 ms the service still holds the old pair, so a second step starts there again.
        g.tap("Key_balance_right");
        QCOMPARE(g.text("txt_bal_val"), QStringLiteral("1"));
        advance(sendInterval);
        g.tap("Key_balance_right");
        QCOMPARE(g.text("txt_bal_val"), QStringLiteral("2"));
    }

    void stepsStopAtTheEnds_data() {
        QTest::addColumn<QByteArray>("slot");
        QTest::addColumn<QPoint>("service");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const char *slot, QPoint service, const char *shown) {
            QTest::newRow(name) << QByteArray(slot) << service << QString::fromLatin1(shown);
        };
        row("right from 14", "on_Key_balance_right_clicked", {14, 0}, "15,0");
        row("right from 15", "on_Key_balance_right_clicked", {15, 0}, "15,0");
        row("right from 16", "on_Key_balance_right_clicked", {16, 0}, "16,0");
        row("right from -15", "on_Key_balance_right_clicked", {-15, 0}, "-14,0");
        row("left from -14", "on_Key_balance_left_clicked", {-14, 0}, "-15,0");
        row("left from -15", "on_Key_balance_left_clicked", {-15, 0}, "-15,0");
        row("left from -16", "on_Key_balance_left_clicked", {-16, 0}, "-16,0");
        row("left from 15", "on_Key_balance_left_clicked", {15, 0}, "14,0");
        row("front from 14", "on_Key_fade_front_clicked", {0, -14}, "0,15");
        row("front from 15", "on_Key_fade_front_clicked", {0, -15}, "0,15");
        row("front from -15", "on_Key_fade_front_clicked", {0, 15}, "0,-14");
        row("rear from -14", "on_Key_fade_rear_clicked", {0, 14}, "0,-15");
        row("rear from -15", "on_Key_fade_rear_clicked", {0, 15}, "0,-15");
        row("rear from 15", "on_Key_fade_rear_clicked", {0, -15}, "0,14");
    }
    void stepsStopAtTheEnds() {
        QFETCH(QByteArray, slot);
        QFETCH(QPoint, service);
        QFETCH(QString, shown);
        General g;
        recording::state().balance = service.x();
        recording::state().fader = service.y();
        QVERIFY(QMetaObject::invokeMethod(&g.page, slot));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(g.text("txt_bal_val") + ',' + g.text("txt_fad_val"), shown);
    }

    void stepToTheEndDisablesItsKey() {
        recording::state().balance = 14;
        recording::state().fader = -14;
        General g;
        g.tap("Key_balance_right");
        QCOMPARE(g.balance(), QStringLiteral("15,14 pad 15,14 keys edee"));
        advance(sendInterval);
        g.tap("Key_fade_front");
        QCOMPARE(g.balance(), QStringLiteral("15,15 pad 15,15 keys edde"));
        recording::clear();
        g.tap("Key_fade_front");
        QCOMPARE(recording::take(), QStringList());
        advance(sendInterval);
    }

    void centreKey() {
        recording::setStored("SoundFieldBalance", 9);
        recording::setStored("SoundFieldFader", 9);
        General g;
        g.tap("Key_update");
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(g.balance(), QStringLiteral("0,0 pad 0,0 keys eeee"));
        advance(sendInterval);
        QCOMPARE(recording::take(), sent(0, 0));
    }

    void markerFollowsTheValues() {
        General g;
        const QImage before = g.pad->grab().toImage();
        recording::state().balance = 3;
        g.tap("Key_balance_right");
        const auto expected = new balanceFaderControl(g.pad->parentWidget(), g.pad->geometry());
        expected->setValueX(4);
        expected->updatePos();
        QVERIFY(g.pad->grab().toImage() != before);
        QCOMPARE(g.pad->grab().toImage(), expected->grab().toImage());
    }

    void padStandsOnItsPlaceholder() {
        General g;
        CHILD(QWidget, placeholder, &g.page, "balancefader_bg");
        QCOMPARE(g.pad->parentWidget(), placeholder->parentWidget());
        QCOMPARE(g.pad->geometry(), placeholder->geometry());
        // Nothing lies over it.
        for (const QPoint &pos :
             {g.pad->rect().center(), QPoint(2, 2), QPoint(g.pad->width() - 3, g.pad->height() - 3)}) {
            QCOMPARE(g.page.childAt(g.pad->mapTo(&g.page, pos)), g.pad);
        }
        // Full scale of finger and marker lie on the pad.
        QVERIFY(g.pad->width() >= 2 * 100 && g.pad->height() >= 2 * 100);
    }

    void languageChangeKeepsTheValues() {
        recording::setStored("Setup_Sub", 1);
        recording::setStored("subwooferLevel", 9);
        recording::setStored("SoundFieldBalance", -4);
        recording::setStored("SoundFieldFader", 8);
        General g;
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&g.page, &event);
        QCOMPARE(g.text("txt_vol_level"), QStringLiteral("9"));
        QCOMPARE(g.balance(), QStringLiteral("-4,-8 pad -4,-8 keys eeee"));
    }

    void signalsAndSlots() {
        QCOMPARE(
            methods(Audiosetting_right_general_widget::staticMetaObject),
            QStringList({"signal advancedChanged()", "slot onUpdateBalFadValue()", "slot on_key_advanced_clicked()",
                         "slot on_key_defeat_clicked()", "slot on_key_Subwoofer_clicked()",
                         "slot on_key_subvol_prev_clicked()", "slot on_key_subvol_next_clicked()",
                         "slot onUpdate(int,int)", "slot on_Key_update_clicked()", "slot on_Key_fade_front_clicked()",
                         "slot on_Key_balance_right_clicked()", "slot on_Key_balance_left_clicked()",
                         "slot on_Key_fade_rear_clicked()", "slot onPhaseBtClicked(int)"}));
    }
};

PAGE_TEST_MAIN(tst_GeneralWidget)
#include "tst_audiosetting_right_general_widget.moc"
