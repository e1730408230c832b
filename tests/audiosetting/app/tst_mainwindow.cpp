// SPDX-License-Identifier: Apache-2.0
#include "app/mainwindow.h"

#include "app/mainwidget.h"
#include "platform/keyevent.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPointer>
#include <QWidget>

using audiosetting::MainWindow;

class tst_MainWindow : public PageTest {
    Q_OBJECT

    /// A window whose main widget goes with it: nobody owns that one on a unit.
    struct Fixture {
        MainWindow window{nullptr};
        ~Fixture() { delete window.mainWidget(); }
    };

private slots:
    void buildsItsWidgetOnFirstCreate() {
        Fixture f;
        QVERIFY(!f.window.mainWidget());
        f.window.onCreate();
        QCOMPARE(recording::take(),
                 QStringList({"setMainWidget(audiosetting::MainWidget, 33)", "BaseWindow::onCreate()"}));
        QVERIFY(qobject_cast<audiosetting::MainWidget *>(f.window.mainWidget()));
        QVERIFY(!f.window.mainWidget()->parent());
        QVERIFY(!f.window.mainWidget()->isVisible());
    }

    void resumesOnLaterCreates() {
        Fixture f;
        f.window.onCreate();
        QWidget *const widget = f.window.mainWidget();
        show(widget);
        CHILD(QLabel, level, widget, "txt_vol_level");
        CHILD(QLabel, title, widget, "Txt_title");
        QCOMPARE(level->text(), QStringLiteral("3"));

        recording::setStored("subwooferLevel", 12);
        recording::clear();
        f.window.onCreate();
        QCOMPARE(recording::take(), QStringList("BaseWindow::onCreate()"));
        QCOMPARE(f.window.mainWidget(), widget);
        QCOMPARE(level->text(), QStringLiteral("12"));

        recording::setShared("SettingTouchPageType", 3);
        recording::clear();
        f.window.onCreate();
        QCOMPARE(recording::take().last(), QStringLiteral("BaseWindow::onCreate()"));
        QCOMPARE(title->text(), QStringLiteral("#1071"));
    }

    void buildsAnewAfterItsWidgetWasDeleted() {
        Fixture f;
        f.window.onCreate();
        const QPointer<QWidget> first = f.window.mainWidget();
        delete first;
        recording::clear();
        f.window.onCreate();
        QCOMPARE(recording::take(),
                 QStringList({"setMainWidget(audiosetting::MainWidget, 33)", "BaseWindow::onCreate()"}));
        QVERIFY(f.window.mainWidget());
        f.window.onCreate();
        QCOMPARE(recording::take(), QStringList("BaseWindow::onCreate()"));
    }

    void outlivesItsWidgetAndTheOtherWayRound() {
        auto window = new MainWindow(nullptr);
        window->onCreate();
        QWidget *const widget = window->mainWidget();
        delete window;
        delete widget;  // its destroyed() has nobody to call
    }

    void hidesTheStatusBarWhenShown() {
        Fixture f;
        f.window.onShow();
        QCOMPARE(recording::take(), QStringList({"sethide(true)", "BaseWindow::onShow()"}));
        f.window.onHide();
        f.window.onShow();
        QCOMPARE(recording::take(), QStringList({"BaseWindow::onHide()", "sethide(true)", "BaseWindow::onShow()"}));
    }

    void leavesTheRestToTheBase() {
        Fixture f;
        f.window.onEnter();
        f.window.onExit();
        f.window.onHide();
        f.window.onDestroy();
        QCOMPARE(recording::take(), QStringList({"BaseWindow::onEnter()", "BaseWindow::onExit()",
                                                 "BaseWindow::onHide()", "BaseWindow::onDestroy()"}));
    }

    void keepsItsWidgetWhenDestroyedByTheHost() {
        Fixture f;
        f.window.onCreate();
        QWidget *const widget = f.window.mainWidget();
        f.window.onDestroy();
        QCOMPARE(f.window.mainWidget(), widget);
        recording::clear();
        f.window.onCreate();
        QCOMPARE(recording::take(), QStringList("BaseWindow::onCreate()"));
    }

    void attributeIsTheSameForEveryDisplay_data() {
        QTest::addColumn<int>("display");
        for (const int display : {0, 1, 7, 100, -1}) {
            QTest::addRow("%d", display) << display;
        }
    }
    void attributeIsTheSameForEveryDisplay() {
        QFETCH(int, display);
        Fixture f;
        recording::state().display = display;
        recording::setLogged(recording::Reads);
        QCOMPARE(f.window.attribute(), 7);
        QCOMPARE(recording::take(), QStringList("currentDspl()"));
        QCOMPARE(debugLines().size(), 1);
        QVERIFY2(debugLines().first().endsWith(QStringLiteral(" %1").arg(display)), qPrintable(debugLines().first()));
    }

    void answersBackItself() {
        Fixture f;
        QCOMPARE(f.window.backEvent(), 1);
        QCOMPARE(recording::take(), QStringList());
    }

    void leavesKeysToTheBase_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("answer");
        QTest::newRow("volume up, unused") << int(KeyEvent::VolumeUp) << 0;
        QTest::newRow("home, used") << int(KeyEvent::Home) << 1;
        QTest::newRow("unknown") << 4711 << -5;
    }
    void leavesKeysToTheBase() {
        QFETCH(int, key);
        QFETCH(int, answer);
        Fixture f;
        recording::state().keyEventResult = answer;
        KeyEvent event(QEvent::KeyRelease, key);
        QCOMPARE(f.window.keyEvent(&event), answer);
        QCOMPARE(recording::take(), QStringList(QStringLiteral("BaseWindow::keyEvent(%1)").arg(key)));
        QCOMPARE(debugLines().size(), 1);
        const QString line = debugLines().first();
        QVERIFY2(line.contains(QStringLiteral("MainWindow::keyEvent")), qPrintable(line));
        QVERIFY2(line.contains(QStringLiteral(" %1 ").arg(key)), qPrintable(line));
        QVERIFY2(line.contains(QStringLiteral("KeyRelease")) || line.endsWith(QStringLiteral(" 7")), qPrintable(line));
    }

    void name() {
        Fixture f;
        QCOMPARE(f.window.name(), QStringLiteral("EQ"));
    }

    void hasOneSlotAndNoSignal() {
        const QMetaObject &meta = MainWindow::staticMetaObject;
        QCOMPARE(meta.superClass()->className(), "cm::BaseWindow");
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("onDestroyObj()"));
        QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
    }
};

PAGE_TEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
