// SPDX-License-Identifier: Apache-2.0
#include "navigation/audiorootpagtsettings.h"

#include "crossover/audiosetting_right_crossover_widget.h"
#include "eq/audiosetting_right_eq_widget.h"
#include "eq/audiosetting_right_factoryeq_widget.h"
#include "general/audiosetting_right_general_widget.h"
#include "navigation/audiosettingsroot.h"
#include "navigation/audiosettingstab.h"
#include "navigation/audiosettingstop.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"
#include "timing/audiosetting_right_timing_widget.h"
#include "volume/audiosettingsreset.h"
#include "volume/audiosourcegainsettings.h"
#include "volume/audiovolumsettings.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

#include <thread>

namespace {

const QStringList tabKeys{"key_general", "key_eq", "key_crossover", "key_timing", "key_factoryeq"};
constexpr int guard = 150;  // ms, between two taps on tabs

const QStringList pageClasses{
    "Audiosetting_right_general_widget",
    "Audiosetting_right_eq_widget",
    "Audiosetting_right_crossover_widget",
    "Audiosetting_right_timing_widget",
    "Audiosetting_right_factoryeq_widget",
    "Audiovolumsettings",
    "Audiosourcegainsettings",
    "AudiosettingsRoot",
    "Audiosettingsreset",
};

/// The text on the screen that tells a page.
struct Page {
    int id;
    QString shown;
    int title;
    int tab;  ///< -1: the tab bar is hidden
    bool flat;
};

const QList<Page> pages{
    {0, "Audiosetting_right_general_widget", 1065, 0, false},
    {1, "Audiosetting_right_eq_widget", 1066, 1, false},
    {2, "Audiosetting_right_crossover_widget", 1068, 2, true},
    {3, "Audiosetting_right_timing_widget", 1069, 3, true},
    {4, "Audiosetting_right_factoryeq_widget", 1067, 4, false},
    {5, "Audiovolumsettings", 1071, -1, false},
    {6, "Audiosourcegainsettings", 1072, -1, false},
    {7, "AudiosettingsRoot", 1070, 0, false},
};

}  // namespace

class tst_AudioRootPagtSettings : public PageTest {
    Q_OBJECT

    /// The whole screen, and what is on it.
    struct Screen {
        QWidget window;
        AudioRootPagtSettings *root;

        Screen() {
            window.resize(1024, 600);
            root = new AudioRootPagtSettings(&window);
            show(&window);
        }
        template <typename Type> Type *child(const char *name) { return root->findChild<Type *>(QLatin1String(name)); }
        template <typename Type> Type *page() { return root->findChild<Type *>(); }

        QString shown() {
            QStringList names;
            const QList<QWidget *> widgets = root->findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                const QString name = QLatin1String(widget->metaObject()->className());
                if (pageClasses.contains(name) && widget->isVisible()) {
                    names << name;
                }
            }
            return names.join('+');
        }
        QString title() { return child<QLabel>("Txt_title")->text(); }
        bool tabShown() { return page<AudiosettingsTab>()->isVisible(); }
        int tab() {
            for (int i = 0; i < tabKeys.size(); ++i) {
                if (root->findChild<QPushButton *>(tabKeys[i])->isChecked()) {
                    return i;
                }
            }
            return -1;
        }
        QPushButton *topKey(const char *name) {
            return page<AudiosettingsTop>()->findChild<QPushButton *>(QLatin1String(name));
        }
        /// Everything at once, to compare in one line.
        QString state() {
            return QStringLiteral("%1 %2 tab %3%4%5")
                .arg(shown(), title())
                .arg(tab())
                .arg(QLatin1String(tabShown() ? "" : " hidden"))
                .arg(QLatin1String(topKey("Key_update")->isVisible() ? " flat" : ""));
        }
        void back() {
            finger::tap(topKey("key_return"));
            advance(0);
        }
        void tapTab(int id) {
            advance(guard);
            finger::tap(root->findChild<QPushButton *>(tabKeys[id]));
        }
        void request(int value) {
            recording::setShared("SettingTouchPageType", value);
            recording::announceSetting("SettingTouchPageType");
            recording::clear();
        }
    };

    /// The log without what a page reads, stores and sends by itself when it is shown.
    static QStringList acts() {
        static const QRegularExpression act(
            QStringLiteral("^(doBeep|postTouch|SettingsFunc::|flat|signal_flat|SettingsCacheSig)"));
        return recording::take().filter(act);
    }

    /// The value that Volume Settings stores whenever it is hidden: the request for it is answered.
    static QString answered() { return QStringLiteral("SettingsFunc::setValue(\"SettingTouchPageType\", 0, 0, true)"); }

    static QString stateOf(int id, int tab) {
        const Page page = pages.at(id);
        return QStringLiteral("%1 #%2 tab %3%4%5")
            .arg(page.shown)
            .arg(page.title)
            .arg(page.tab < 0 || id == 7 ? tab : page.tab)
            .arg(QLatin1String(page.tab < 0 ? " hidden" : ""))
            .arg(QLatin1String(page.flat ? " flat" : ""));
    }

private slots:
    void startsOnGeneral_data() {
        QTest::addColumn<QVariant>("request");
        QTest::newRow("never written") << QVariant();
        for (const int value : {0, 1, 2, 4, 5, -3, 33}) {
            QTest::addRow("%d", value) << QVariant(value);
        }
    }
    void startsOnGeneral() {
        QFETCH(QVariant, request);
        recording::setShared("SettingTouchPageType", request);
        Screen screen;
        QCOMPARE(screen.state(), stateOf(0, 0));
        QCOMPARE(recording::take(), QStringList());
    }

    void startReadsTheRequestOnce() {
        recording::setLogged(recording::Reads);
        QWidget window;
        AudioRootPagtSettings root(&window);
        QCOMPARE(recording::take().filter("SettingTouchPageType"),
                 QStringList("SettingsFunc::getValue(\"SettingTouchPageType\", 0)"));
    }

    void startsOnRequestedVolumeSettings() {
        recording::setShared("SettingTouchPageType", 3);
        Screen screen;
        QCOMPARE(screen.state(), stateOf(5, -1));
        QCOMPARE(acts(), QStringList());
        // Back answers the request: leaves for the application that asked, General is due next.
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)", answered()}));
        QCOMPARE(recording::shared("SettingTouchPageType"), QVariant(0));
        screen.root->onShowInitWidget();
        QCOMPARE(screen.state(), stateOf(0, 0));
    }

    void requestOnResumeReturnsToThePageBefore_data() {
        QTest::addColumn<int>("before");
        for (const int id : {0, 1, 2, 3, 4, 6, 7}) {
            QTest::addRow("%d", id) << id;
        }
    }
    void requestOnResumeReturnsToThePageBefore() {
        QFETCH(int, before);
        Screen screen;
        screen.root->updateCurrentPage(before);
        const QString state = screen.state();
        recording::setShared("SettingTouchPageType", 3);
        screen.root->onShowInitWidget();
        QCOMPARE(screen.shown(), QStringLiteral("Audiovolumsettings"));
        recording::clear();
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)", answered()}));
        screen.root->onShowInitWidget();
        QCOMPARE(screen.state(), state);
    }

    void requestReturnsToItsRequesterAlsoWhenLeftFromVolumeSettings() {
        Screen screen;
        screen.root->onShowAudioSettings();
        recording::clear();
        // The host hides the window (home key), then another application asks for Volume Settings.
        screen.window.hide();
        QCOMPARE(acts(), QStringList(answered()));
        recording::setShared("SettingTouchPageType", 3);
        screen.root->onShowInitWidget();
        show(&screen.window);
        QCOMPARE(acts(), QStringList());
        QCOMPARE(screen.state(), stateOf(5, 0));
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)", answered()}));
        QCOMPARE(recording::shared("SettingTouchPageType"), QVariant(0));
    }

    void requestWhileRunningReturnsWithoutLeaving_data() { requestOnResumeReturnsToThePageBefore_data(); }
    void requestWhileRunningReturnsWithoutLeaving() {
        QFETCH(int, before);
        Screen screen;
        screen.root->updateCurrentPage(before);
        const QString state = screen.state();
        screen.request(3);
        QCOMPARE(screen.shown(), QStringLiteral("Audiovolumsettings"));
        QVERIFY(!screen.tabShown());
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", answered()}));
        QCOMPARE(screen.state(), state);
    }

    void requestWhileRunningIsAnsweredOnce() {
        Screen screen;
        screen.root->updateCurrentPage(1);
        screen.request(3);
        screen.back();
        QCOMPARE(screen.state(), stateOf(1, 1));
        // The way back was taken: with the request in the store once more, the next one leaves.
        recording::setShared("SettingTouchPageType", 3);
        screen.root->updateCurrentPage(5);
        recording::clear();
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)", answered()}));
        screen.root->onShowInitWidget();
        QCOMPARE(screen.state(), stateOf(1, 1));
    }

    void requestFromAnotherThreadWaitsForThisOne() {
        Screen screen;
        recording::setShared("SettingTouchPageType", 3);
        std::thread([] { recording::announceSetting("SettingTouchPageType"); }).join();
        QCOMPARE(screen.state(), stateOf(0, 0));
        QCoreApplication::sendPostedEvents(screen.root);
        QCOMPARE(screen.state(), stateOf(5, 0));
    }

    void anotherPageForgetsTheRequestWhileRunning() {
        Screen screen;
        screen.root->updateCurrentPage(1);
        screen.request(3);
        screen.root->updateCurrentPage(6);
        recording::setShared("SettingTouchPageType", 3);
        screen.root->updateCurrentPage(5);
        recording::clear();
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)", answered()}));
        screen.root->onShowInitWidget();
        QCOMPARE(screen.state(), stateOf(1, 1));
    }

    void requestOnVolumeSettingsItselfKeepsIt() {
        Screen screen;
        screen.root->onShowAudioSettings();
        screen.request(3);
        QCOMPARE(screen.state(), stateOf(5, 0));
        // The page before is the page itself; from there Back goes on as ever.
        screen.back();
        QCOMPARE(screen.state(), stateOf(5, 0));
        screen.back();
        QCOMPARE(screen.state(), stateOf(7, 0));
    }

    void announcedNonRequestShowsTheCurrentPageAgain() {
        Screen screen;
        screen.root->updateCurrentPage(2);
        screen.request(0);
        QCOMPARE(screen.state(), stateOf(2, 2));
        // It marks the visit all the same, which the next page change forgets.
        screen.root->onShowAudioSettings();
        screen.back();
        QCOMPARE(screen.state(), stateOf(7, 2));
    }

    void announcedNonRequestOnVolumeSettingsLeadsBackToGeneral() {
        Screen screen;
        screen.root->onShowAudioSettings();
        screen.request(0);
        QCOMPARE(screen.state(), stateOf(5, 0));
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", answered()}));
        QCOMPARE(screen.state(), stateOf(0, 0));
    }

    void otherAnnouncementsAreIgnored() {
        Screen screen;
        screen.root->updateCurrentPage(5);
        recording::setShared("SettingTouchPageType", 3);
        recording::setLogged(recording::Reads);
        for (const char *key : {"ADV_AUDIO_SETTINGS", "settingtouchpagetype", "SettingTouchPageType2", ""}) {
            recording::clear();
            recording::announceSetting(QLatin1String(key));
            QCOMPARE(recording::take().filter("SettingTouchPageType\", 0"), QStringList());
        }
        recording::setShared("SettingTouchPageType", 0);
        screen.back();
        QCOMPARE(screen.state(), stateOf(7, 0));  // no way back was marked
    }

    void showsEveryPage_data() {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("page");
        for (int id = 0; id <= 7; ++id) {
            QTest::addRow("%d", id) << id << id;
        }
        for (const int id : {-1, 8, 100, INT_MAX, INT_MIN}) {
            QTest::addRow("%d", id) << id << 0;
        }
    }
    void showsEveryPage() {
        QFETCH(int, id);
        QFETCH(int, page);
        Screen screen;
        screen.root->updateCurrentPage(4);
        const QRegularExpression line(
            QStringLiteral("^\\[DBG\\] \\d+ .*updateCurrentPage\\(int\\).* \\d+ -- +\"?audioSettingsPage: \"? +%1$")
                .arg(id));
        const int before = debugLines().size();
        screen.root->updateCurrentPage(id);
        QCOMPARE(screen.state(), stateOf(page, 4));
        QCOMPARE(acts(), QStringList());
        QVERIFY2(debugLines().mid(before).filter(line).size() == 1, qPrintable(debugLines().mid(before).join('\n')));
    }

    void showOperationsIgnoreTheirArgument() {
        Screen screen;
        for (const bool argument : {false, true}) {
            screen.root->showEQWidget(argument);
            QCOMPARE(screen.state(), stateOf(1, 1));
            screen.root->showCrossoverWidget(argument);
            QCOMPARE(screen.state(), stateOf(2, 2));
            screen.root->showTimingWidget(argument);
            QCOMPARE(screen.state(), stateOf(3, 3));
            screen.root->showFactoryEqWidget(argument);
            QCOMPARE(screen.state(), stateOf(4, 4));
            screen.root->showGeneralWidget(argument);
            QCOMPARE(screen.state(), stateOf(0, 0));
        }
    }

    void everyPageFollowsEveryPage() {
        Screen screen;
        int tab = 0;
        for (int from = 0; from <= 7; ++from) {
            for (int to = 0; to <= 7; ++to) {
                screen.root->updateCurrentPage(from);
                tab = from <= 4 ? from : tab;
                screen.root->updateCurrentPage(to);
                tab = to <= 4 ? to : tab;
                QCOMPARE(screen.state(), stateOf(to, tab));
                QCOMPARE(acts(), from == 5 ? QStringList(answered()) : QStringList());
                screen.root->updateCurrentPage(0);
                tab = 0;
                recording::clear();
            }
        }
        QCOMPARE(acts(), QStringList());
    }

    void pagesAreCreatedWhenFirstShownAndKept() {
        Screen screen;
        const auto created = [&] {
            QStringList names;
            const QList<QWidget *> widgets = screen.root->findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                if (pageClasses.contains(QLatin1String(widget->metaObject()->className()))) {
                    names << QLatin1String(widget->metaObject()->className());
                }
            }
            names.sort();
            return names;
        };
        QCOMPARE(created(), QStringList("Audiosetting_right_general_widget"));
        QStringList expected = created();
        for (const Page &page : pages) {
            screen.root->updateCurrentPage(page.id);
            if (!expected.contains(page.shown)) {
                expected << page.shown;
            }
            expected.sort();
            QCOMPARE(created(), expected);
        }
        const auto eq = screen.page<Audiosetting_right_eq_widget>();
        for (const Page &page : pages) {
            screen.root->updateCurrentPage(page.id);
        }
        QCOMPARE(created(), expected);
        QCOMPARE(screen.page<Audiosetting_right_eq_widget>(), eq);
    }

    void pagesStandInTheirRegions() {
        Screen screen;
        for (const Page &page : pages) {
            screen.root->updateCurrentPage(page.id);
        }
        screen.root->onShowResetAudiosettings();
        const QObject *const right = screen.child<QWidget>("right_widget");
        QCOMPARE(screen.page<AudiosettingsTop>()->parent(), screen.child<QWidget>("top_widget"));
        QCOMPARE(screen.page<AudiosettingsTab>()->parent(), screen.child<QWidget>("left_widget"));
        QCOMPARE(screen.page<Audiosetting_right_general_widget>()->parent(), right);
        QCOMPARE(screen.page<Audiosetting_right_eq_widget>()->parent(), right);
        QCOMPARE(screen.page<Audiosetting_right_crossover_widget>()->parent(), right);
        QCOMPARE(screen.page<Audiosetting_right_timing_widget>()->parent(), right);
        QCOMPARE(screen.page<Audiosetting_right_factoryeq_widget>()->parent(), right);
        QCOMPARE(screen.page<AudiosettingsRoot>()->parent(), right);
        QCOMPARE(screen.page<Audiovolumsettings>()->parent(), screen.root);
        QCOMPARE(screen.page<Audiosourcegainsettings>()->parent(), screen.root);
        QCOMPARE(screen.page<Audiosettingsreset>()->parent(), screen.root);
    }

    void topBarStaysReachableOnEveryPage() {
        Screen screen;
        for (const Page &page : pages) {
            screen.root->updateCurrentPage(page.id);
            recording::clear();
            finger::tap(screen.topKey("Key_close"));
            advance(0);
            QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(1, -1, -1, 0)"}));
            QCOMPARE(screen.shown(), page.shown);
        }
        screen.root->onShowResetAudiosettings();
        finger::tap(screen.topKey("Key_close"));
        advance(0);
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(1, -1, -1, 0)"}));
    }

    // Order: pages refresh themselves when shown, the tab bar is shown after the page, the title comes last.
    void titleComesAfterThePageAndTheTabBar() {
        Screen screen;
        screen.root->updateCurrentPage(6);
        recording::setLogged(recording::Reads);
        recording::clear();
        screen.root->updateCurrentPage(0);
        const QStringList reads = recording::take();
        QCOMPARE(reads.first(), QStringLiteral("getValue(\"subwooferLevel\", 3)"));
        QCOMPARE(reads.at(reads.size() - 2), QStringLiteral("getValue(\"ADV_AUDIO_SETTINGS\", 0)"));  // the tab bar
        QCOMPARE(reads.last(), QStringLiteral("translate(1065)"));
    }

    void tabsBeepOnceAndSwitch() {
        Screen screen;
        for (const int id : {1, 2, 3, 4, 0}) {
            const int before = debugLines().size();
            screen.tapTab(id);
            QCOMPARE(acts(), QStringList("doBeep(0)"));
            QCOMPARE(screen.state(), stateOf(id, id));
            const QRegularExpression line(QStringLiteral("^\\[DBG\\] .*onPageChanged.* -- +\"?iIdx: \"? +%1$").arg(id));
            QCOMPARE(debugLines().mid(before).filter(line).size(), 1);
        }
    }

    void aTabBeepsBeforeItsPageIsMade() {
        Screen screen;
        recording::setLogged(recording::Reads);
        for (const int id : {1, 2, 3, 4, 0}) {
            advance(guard);
            recording::clear();
            finger::tap(screen.root->findChild<QPushButton *>(tabKeys[id]));
            QCOMPARE(recording::take().first(), QStringLiteral("doBeep(0)"));
        }
    }

    void backBeepsBeforeItLeadsAnywhere() {
        Screen screen;
        for (const int id : {5, 6, 7}) {
            screen.root->updateCurrentPage(id);
            recording::setLogged(recording::Reads);
            recording::clear();
            screen.back();
            QCOMPARE(recording::take().first(), QStringLiteral("doBeep(0)"));
        }
    }

    void tooEarlySecondTabIsSilent() {
        Screen screen;
        screen.tapTab(1);
        recording::clear();
        finger::tap(screen.child<QPushButton>("key_timing"));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(screen.state(), stateOf(1, 1));
    }

    void tabsWorkFromTheSettingsRoot() {
        Screen screen;
        screen.tapTab(3);
        screen.root->showAudiosettingsRoot();
        QCOMPARE(screen.state(), stateOf(7, 3));
        screen.tapTab(3);
        QCOMPARE(screen.state(), stateOf(3, 3));
    }

    void advancedOpensTheSettingsRoot() {
        Screen screen;
        finger::tap(screen.child<QPushButton>("key_advanced"));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(screen.state(), stateOf(7, 0));
        screen.back();
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(screen.state(), stateOf(0, 0));
        // Connected once, however often the page is shown.
        finger::tap(screen.child<QPushButton>("key_advanced"));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
    }

    void entriesOfTheSettingsRoot() {
        Screen screen;
        screen.root->showAudiosettingsRoot();
        finger::tap(screen.child<QPushButton>("Key_003_source_gain"));
        QCOMPARE(acts(), QStringList("doBeep(0)"));
        QCOMPARE(screen.state(), stateOf(6, 0));
        screen.back();
        QCOMPARE(acts(), QStringList("doBeep(0)"));
        QCOMPARE(screen.state(), stateOf(7, 0));
        finger::tap(screen.child<QPushButton>("Key_004_vol_settings"));
        QCOMPARE(acts(), QStringList("doBeep(0)"));
        QCOMPARE(screen.state(), stateOf(5, 0));
        screen.back();
        QCOMPARE(acts(), QStringList({"doBeep(0)", answered()}));
        QCOMPARE(screen.state(), stateOf(7, 0));
        finger::tap(screen.child<QPushButton>("Key_005_res_audio"));
        QCOMPARE(acts(), QStringList("doBeep(0)"));
        QCOMPARE(screen.shown(), QStringLiteral("AudiosettingsRoot+Audiosettingsreset"));
    }

    void resetDialogLiesOverWhatIsShown() {
        Screen screen;
        screen.root->updateCurrentPage(2);
        screen.root->onShowResetAudiosettings();
        QCOMPARE(screen.shown(), QStringLiteral("Audiosetting_right_crossover_widget+Audiosettingsreset"));
        // Title, tab and Flat stay as they are.
        QCOMPARE(screen.title(), QStringLiteral("#1068"));
        QCOMPARE(screen.tab(), 2);
        QVERIFY(screen.topKey("Key_update")->isVisible());
        // Back is that of the settings root, which lends the dialog its id.
        screen.back();
        QCOMPARE(screen.state(), stateOf(0, 0));

        screen.root->updateCurrentPage(5);
        screen.root->onShowResetAudiosettings();
        QVERIFY(screen.tabShown());
        QCOMPARE(screen.title(), QStringLiteral("#1071"));
    }

    void resetDialogEndsOnTheSettingsRoot_data() {
        QTest::addColumn<QByteArray>("end");
        QTest::newRow("accept") << QByteArray("acceptClicked");
        QTest::newRow("reject") << QByteArray("rejectClicked");
    }
    void resetDialogEndsOnTheSettingsRoot() {
        QFETCH(QByteArray, end);
        Screen screen;
        for (int round = 0; round < 2; ++round) {
            screen.root->showAudiosettingsRoot();
            screen.root->onShowResetAudiosettings();
            QVERIFY(QMetaObject::invokeMethod(screen.page<Audiosettingsreset>(), end));
            QCOMPARE(screen.state(), stateOf(7, 0));
        }
        QCOMPARE(acts(), QStringList());
        QCOMPARE(screen.root->findChildren<Audiosettingsreset *>().size(), 1);
    }

    void backFromTheResetDialogShowsGeneral() {
        Screen screen;
        screen.root->showAudiosettingsRoot();
        screen.root->onShowResetAudiosettings();
        screen.back();
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(screen.state(), stateOf(0, 0));
    }

    void backOnATabPageLeavesAndKeepsThePage() {
        Screen screen;
        for (int id = 0; id <= 4; ++id) {
            screen.root->updateCurrentPage(id);
            recording::clear();
            const int before = debugLines().size();
            screen.back();
            QCOMPARE(acts(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)"}));
            QCOMPARE(screen.state(), stateOf(id, id));
            const QRegularExpression line(
                QStringLiteral("^\\[DBG\\] .*onBackClicked.* -- +\"?m_currentpageId: \"? +%1$").arg(id));
            QCOMPARE(debugLines().mid(before).filter(line).size(), 1);
            screen.root->onShowInitWidget();
            QCOMPARE(screen.state(), stateOf(id, id));
        }
    }

    void leavingIsPostedNotSent() {
        Screen screen;
        screen.root->onBackClicked();
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)"}));
        advance(0);
        QCOMPARE(recording::take(), QStringList());
    }

    void flatOnCrossoverAndTiming() {
        Screen screen;
        screen.root->updateCurrentPage(2);
        recording::clear();
        finger::tap(screen.topKey("Key_update"));
        QCOMPARE(acts(), QStringList({"doBeep(0)", "flatCrossover()", "signal_flatCrossover()"}));
        screen.root->updateCurrentPage(3);
        recording::clear();
        finger::tap(screen.topKey("Key_update"));
        QCOMPARE(acts(), QStringList({"doBeep(0)", "flatTimeDelay()", "signal_flatTimeDelay()"}));
    }

    void everyShowReadsTheStoreAgain() {
        Screen screen;
        CHILD(QLabel, level, screen.root, "txt_vol_level");
        screen.root->updateCurrentPage(1);
        recording::setStored("subwooferLevel", 7);
        screen.root->updateCurrentPage(0);
        QCOMPARE(level->text(), QStringLiteral("7"));
        recording::setStored("subwooferLevel", 8);
        screen.root->updateCurrentPage(0);  // also where it was shown already
        QCOMPARE(level->text(), QStringLiteral("8"));
    }

    void defeatReachesTheTabBarAtOnce() {
        Screen screen;
        finger::tap(screen.child<QPushButton>("key_defeat"));
        for (int id = 1; id <= 4; ++id) {
            QVERIFY(!screen.root->findChild<QPushButton *>(tabKeys[id])->isEnabled());
        }
        QVERIFY(screen.child<QPushButton>("key_general")->isEnabled());
        finger::tap(screen.child<QPushButton>("key_defeat"));
        for (int id = 1; id <= 4; ++id) {
            QVERIFY(screen.root->findChild<QPushButton *>(tabKeys[id])->isEnabled());
        }
    }

    void languageChangeKeepsThePage() {
        Screen screen;
        screen.root->updateCurrentPage(3);
        recording::state().texts.insert(1069, QStringLiteral("Laufzeit"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(screen.root, &event);
        QCOMPARE(screen.title(), QStringLiteral("Laufzeit"));
        QVERIFY(screen.topKey("Key_update")->isVisible());
        QCOMPARE(screen.shown(), pages.at(3).shown);
    }

    void signalsAndSlots() {
        QCOMPARE(methods(AudioRootPagtSettings::staticMetaObject),
                 QStringList({"slot onPageChanged(int)", "slot onAdvancedChanged()", "slot onShowAudioSettings()",
                              "slot onShowSourceGain()", "slot onShowResetAudiosettings()", "slot onBackClicked()",
                              "slot hideAudioResetSetting()", "slot onSettingsCacheSig(QString)"}));
    }
};

PAGE_TEST_MAIN(tst_AudioRootPagtSettings)
#include "tst_audiorootpagtsettings.moc"
