// SPDX-License-Identifier: Apache-2.0
#include "navigation/audiosettingstop.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

class tst_AudiosettingsTop : public PageTest {
    Q_OBJECT
private slots:
    void constructionTouchesNothing() {
        AudiosettingsTop top(nullptr);
        show(&top);
        QCOMPARE(recording::take(), QStringList());
    }

    void backAnnouncesWithoutABeep() {
        AudiosettingsTop top(nullptr);
        show(&top);
        QSignalSpy back(&top, SIGNAL(backClicked()));
        CHILD(QPushButton, key, &top, "key_return");
        finger::tap(key);
        advance(0);
        QCOMPARE(back.size(), 1);
        QCOMPARE(recording::take(), QStringList());
    }

    void closeAsksTheHostToClose() {
        AudiosettingsTop top(nullptr);
        show(&top);
        QSignalSpy back(&top, SIGNAL(backClicked()));
        CHILD(QPushButton, key, &top, "Key_close");
        finger::tap(key);
        advance(0);
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(1, -1, -1, 0)"}));
        QCOMPARE(back.size(), 0);
    }

    void closeIsPostedNotSent() {
        AudiosettingsTop top(nullptr);
        QVERIFY(QMetaObject::invokeMethod(&top, "on_Key_close_clicked"));
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(1, -1, -1, 0)"}));
        advance(0);
        QCOMPARE(recording::take(), QStringList());
    }

    void flatCallsWhatItsTypeSays_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("crossover") << 1 << QStringList({"doBeep(0)", "flatCrossover()", "signal_flatCrossover()"});
        QTest::newRow("time delay") << 2 << QStringList({"doBeep(0)", "flatTimeDelay()", "signal_flatTimeDelay()"});
        QTest::newRow("unknown") << 3 << QStringList("doBeep(0)");
        QTest::newRow("negative") << -1 << QStringList("doBeep(0)");
    }
    void flatCallsWhatItsTypeSays() {
        QFETCH(int, type);
        QFETCH(QStringList, calls);
        AudiosettingsTop top(nullptr);
        show(&top);
        top.setBtnResetType(type);
        CHILD(QPushButton, key, &top, "Key_update");
        CHILD(QLabel, caption, &top, "Txt_flat");
        QVERIFY(key->isVisible());
        QVERIFY(caption->isVisible());
        finger::tap(key);
        QCOMPARE(recording::take(), calls);
        finger::tap(caption);  // the touch goes through to the key
        QCOMPARE(recording::take(), calls);
    }

    void flatWithoutATypeOnlyBeeps() {
        AudiosettingsTop top(nullptr);
        QVERIFY(QMetaObject::invokeMethod(&top, "on_Key_update_clicked"));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
    }

    void captionOfFlatIsTransparentOverItsKey() {
        AudiosettingsTop top(nullptr);
        show(&top);
        top.setBtnResetType(1);
        CHILD(QPushButton, key, &top, "Key_update");
        CHILD(QLabel, caption, &top, "Txt_flat");
        QVERIFY(caption->testAttribute(Qt::WA_TransparentForMouseEvents));
        QCOMPARE(top.childAt(838, 68), key);
        // The caption's two pixels above the key belong to nobody.
        finger::tap(caption, QPoint(68, 0));
        QCOMPARE(recording::take(), QStringList());
    }

    void typeZeroHidesFlat() {
        AudiosettingsTop top(nullptr);
        show(&top);
        CHILD(QPushButton, key, &top, "Key_update");
        CHILD(QLabel, caption, &top, "Txt_flat");
        QVERIFY(!key->isVisible() && !caption->isVisible());
        top.setBtnResetType(2);
        QVERIFY(key->isVisible() && caption->isVisible());
        top.setBtnResetType(0);
        QVERIFY(!key->isVisible() && !caption->isVisible());
        QVERIFY(QMetaObject::invokeMethod(&top, "on_Key_update_clicked"));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
    }

    void titleHidesFlatAndForgetsItsType() {
        AudiosettingsTop top(nullptr);
        show(&top);
        CHILD(QLabel, title, &top, "Txt_title");
        CHILD(QPushButton, key, &top, "Key_update");
        CHILD(QLabel, caption, &top, "Txt_flat");
        top.setBtnResetType(1);
        top.onSetTxtTitle(QStringLiteral("Zeit & Laufzeit"));
        QCOMPARE(title->text(), QStringLiteral("Zeit & Laufzeit"));
        QVERIFY(!key->isVisible() && !caption->isVisible());
        QVERIFY(QMetaObject::invokeMethod(&top, "on_Key_update_clicked"));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
    }

    void languageChangeKeepsFlat() {
        AudiosettingsTop top(nullptr);
        show(&top);
        CHILD(QPushButton, key, &top, "Key_update");
        top.setBtnResetType(2);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&top, &event);
        QVERIFY(key->isVisible());
        finger::tap(key);
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "flatTimeDelay()", "signal_flatTimeDelay()"}));
    }

    void signalsAndSlots() {
        QCOMPARE(methods(AudiosettingsTop::staticMetaObject),
                 QStringList({"signal backClicked()", "slot on_key_return_clicked()", "slot on_Key_close_clicked()",
                              "slot on_Key_update_clicked()"}));
    }
};

PAGE_TEST_MAIN(tst_AudiosettingsTop)
#include "tst_audiosettingstop.moc"
