// SPDX-License-Identifier: Apache-2.0
#include "navigation/audiosettingstab.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QPushButton>
#include <QSignalSpy>

#include <thread>

namespace {

const char *const names[] = {"key_general", "key_eq", "key_crossover", "key_timing", "key_factoryeq"};
constexpr int tabs = 5;
constexpr int guard = 150;  // ms

}  // namespace

class tst_AudiosettingsTab : public PageTest {
    Q_OBJECT

    /// The tab bar on the screen, with what it announced.
    struct Bar {
        AudiosettingsTab tab{nullptr};
        QSignalSpy clicked{&tab, SIGNAL(itemClicked(int))};

        Bar() { show(&tab); }
        QPushButton *key(int id) { return tab.findChild<QPushButton *>(QLatin1String(names[id])); }
        /// The only checked key, -1 for none, -2 for several.
        int checked() {
            int found = -1;
            for (int id = 0; id < tabs; ++id) {
                if (key(id)->isChecked()) {
                    found = found == -1 ? id : -2;
                }
            }
            return found;
        }
        /// One letter a tab: enabled or disabled.
        QString enabled() {
            QString letters;
            for (int id = 0; id < tabs; ++id) {
                letters += QLatin1Char(key(id)->isEnabled() ? 'e' : 'd');
            }
            return letters;
        }
        QList<int> announced() {
            QList<int> ids;
            for (const QList<QVariant> &arguments : qAsConst(clicked)) {
                ids << arguments.first().toInt();
            }
            clicked.clear();
            return ids;
        }
    };

private slots:
    void everyTabAnnouncesItsId() {
        Bar bar;
        for (int id = tabs - 1; id >= 0; --id) {
            finger::tap(bar.key(id));
            QCOMPARE(bar.announced(), QList<int>({id}));
            QCOMPARE(bar.checked(), id);
            advance(guard);
        }
        // The receiver sounds the beep.
        QCOMPARE(recording::take(), QStringList());
    }

    void tabsAreCheckableAndExclusive() {
        Bar bar;
        for (int id = 0; id < tabs; ++id) {
            QVERIFY(bar.key(id)->isCheckable());
            bar.tab.setItemSelect(id);
            QCOMPARE(bar.checked(), id);
        }
        QCOMPARE(bar.announced(), QList<int>());
    }

    void secondClickTooEarlyIsUndone_data() {
        QTest::addColumn<int>("after");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("0 ms") << 0 << false;
        QTest::newRow("100 ms") << 100 << false;
        QTest::newRow("149 ms") << 149 << false;
        QTest::newRow("150 ms") << 150 << true;
        QTest::newRow("1000 ms") << 1000 << true;
    }
    void secondClickTooEarlyIsUndone() {
        QFETCH(int, after);
        QFETCH(bool, accepted);
        Bar bar;
        connect(&bar.tab, &AudiosettingsTab::itemClicked, &bar.tab, &AudiosettingsTab::setItemSelect);
        finger::tap(bar.key(1));
        advance(after);
        finger::tap(bar.key(3));
        QCOMPARE(bar.announced(), accepted ? QList<int>({1, 3}) : QList<int>({1}));
        QCOMPARE(bar.checked(), accepted ? 3 : 1);
    }

    void undoneClickGoesBackToTheSelectedTabNotToTheClickedOne() {
        Bar bar;  // nobody selects in answer to a click
        bar.tab.setItemSelect(2);
        finger::tap(bar.key(1));
        QCOMPARE(bar.checked(), 1);
        advance(100);
        finger::tap(bar.key(4));
        QCOMPARE(bar.checked(), 2);
        QCOMPARE(bar.announced(), QList<int>({1}));
    }

    void undoneClickDoesNotExtendTheGuard() {
        Bar bar;
        finger::tap(bar.key(1));
        advance(100);
        finger::tap(bar.key(2));
        advance(50);
        finger::tap(bar.key(3));
        QCOMPARE(bar.announced(), QList<int>({1, 3}));
    }

    void clickOnTheSelectedTabIsAnnouncedToo() {
        Bar bar;
        bar.tab.setItemSelect(1);
        finger::tap(bar.key(1));
        QCOMPARE(bar.announced(), QList<int>({1}));
        QCOMPARE(bar.checked(), 1);
    }

    void negativeSelectionIsLoggedAndIgnored() {
        Bar bar;
        bar.tab.setItemSelect(2);
        const int before = debugLines().size();
        bar.tab.setItemSelect(-1);
        bar.tab.setItemSelect(INT_MIN);
        QCOMPARE(bar.checked(), 2);
        const QStringList lines = debugLines().mid(before);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].contains("setItemSelect") && lines[0].endsWith("-1"), qPrintable(lines[0]));
        // The last index is still 2.
        finger::tap(bar.key(3));
        finger::tap(bar.key(4));
        QCOMPARE(bar.checked(), 2);
    }

    void selectionWithoutAButtonIsRemembered() {
        Bar bar;
        bar.tab.setItemSelect(2);
        bar.tab.setItemSelect(9);
        QCOMPARE(bar.checked(), 2);
        finger::tap(bar.key(3));
        finger::tap(bar.key(4));
        QCOMPARE(bar.announced(), QList<int>({3}));
        QCOMPARE(bar.checked(), 4);  // there is no tab 9 to go back to
    }

    void defeatDisablesFourTabs_data() {
        QTest::addColumn<QVariant>("defeat");
        QTest::addColumn<QString>("enabled");
        QTest::newRow("never written") << QVariant() << "eeeee";
        QTest::newRow("off") << QVariant(0) << "eeeee";
        QTest::newRow("on") << QVariant(1) << "edddd";
        QTest::newRow("2") << QVariant(2) << "edddd";
        QTest::newRow("negative") << QVariant(-1) << "edddd";
        QTest::newRow("no number") << QVariant("x") << "eeeee";
    }
    void defeatDisablesFourTabs() {
        QFETCH(QVariant, defeat);
        QFETCH(QString, enabled);
        recording::setStored("ADV_AUDIO_SETTINGS", defeat);
        recording::setLogged(recording::Reads);
        AudiosettingsTab constructed(nullptr);
        QStringList reads = recording::take();
        QCOMPARE(reads.takeFirst(), QStringLiteral("getValue(\"ADV_AUDIO_SETTINGS\", 0)"));
        const QStringList names = {"translate(1065)", "translate(1066)", "translate(1068)", "translate(1069)",
                                   "translate(1067)"};  // what the keys are called
        QCOMPARE(reads, names);
        QCOMPARE(constructed.findChild<QPushButton *>("key_eq")->isEnabled(), enabled[1] == QLatin1Char('e'));
        QVERIFY(constructed.findChild<QPushButton *>("key_general")->isEnabled());
        Bar bar;
        QCOMPARE(bar.enabled(), enabled);
    }

    void defeatIsReadAtEveryShow() {
        Bar bar;
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        QCOMPARE(bar.enabled(), QStringLiteral("eeeee"));
        bar.tab.hide();
        bar.tab.show();
        QCOMPARE(bar.enabled(), QStringLiteral("edddd"));
    }

    void defeatIsReadAtItsAnnouncement() {
        Bar bar;
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        recording::announceSetting("ADV_AUDIO_SETTINGS");
        QCOMPARE(bar.enabled(), QStringLiteral("edddd"));
        recording::setStored("ADV_AUDIO_SETTINGS", 0);
        recording::announceSetting("ADV_AUDIO_SETTINGS");
        QCOMPARE(bar.enabled(), QStringLiteral("eeeee"));
    }

    void announcementFromAnotherThreadWaitsForThisOne() {
        Bar bar;
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        std::thread([] { recording::announceSetting("ADV_AUDIO_SETTINGS"); }).join();
        QCOMPARE(bar.enabled(), QStringLiteral("eeeee"));
        QCoreApplication::sendPostedEvents(&bar.tab);
        QCOMPARE(bar.enabled(), QStringLiteral("edddd"));
    }

    void otherAnnouncementsAreLoggedAndIgnored() {
        Bar bar;
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        recording::setLogged(recording::Reads);
        recording::clear();
        const QStringList keys{"Setup_Loudness", "SettingTouchPageType", "", "adv_audio_settings",
                               "ADV_AUDIO_SETTINGS "};
        for (const QString &key : keys) {
            const int before = debugLines().size();
            recording::announceSetting(key);
            QCOMPARE(recording::take(), QStringList(QStringLiteral("SettingsCacheSig(\"%1\")").arg(key)));
            QVERIFY(debugLines().mid(before).join('\n').contains(QLatin1Char('"') + key + QLatin1Char('"')));
        }
        QCOMPARE(bar.enabled(), QStringLiteral("eeeee"));
    }

    void disabledTabsTakeNoTouch() {
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        Bar bar;
        for (int id = 1; id < tabs; ++id) {
            finger::tap(bar.key(id));
            advance(guard);
        }
        QCOMPARE(bar.announced(), QList<int>());
        finger::tap(bar.key(0));
        QCOMPARE(bar.announced(), QList<int>({0}));
    }

    void signalsAndSlots() {
        QCOMPARE(
            methods(AudiosettingsTab::staticMetaObject),
            QStringList({"signal itemClicked(int)", "slot onPageKeyClicked(int)", "slot onSettingsCacheSig(QString)"}));
    }
};

PAGE_TEST_MAIN(tst_AudiosettingsTab)
#include "tst_audiosettingstab.moc"
