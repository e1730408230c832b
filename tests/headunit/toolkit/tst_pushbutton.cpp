#include "pushbutton.h"
#include "unittest.h"

#include <QPushButton>

/// Long press and repeat of a button that a finger holds.
class TestPushButton : public QObject {
    Q_OBJECT

    QWidget *screen = nullptr;
    QPushButton *button = nullptr;
    cm::PushButton *wrapper = nullptr;
    QStringList log;

private slots:
    void init() {
        screen = new QWidget;
        screen->resize(300, 200);
        button = new QPushButton(screen);
        button->setGeometry(100, 50, 100, 100);
        wrapper = new cm::PushButton(button, screen);
        screen->show();
        log.clear();
        connect(wrapper, &cm::PushButton::longPressed, this, [this] { log << "long"; });
        connect(wrapper, &cm::PushButton::longPressedRepeat, this, [this] { log << "repeat"; });
        connect(button, &QPushButton::clicked, this, [this] { log << "clicked"; });
    }

    void cleanup() { delete screen; }

    void longPressAfterDefaultInterval() {
        finger::press(button, QPoint(50, 50));
        advance(1499);
        QCOMPARE(log, QStringList());
        advance(1);
        QCOMPARE(log, QStringList("long"));
        advance(10000);
        QCOMPARE(log, QStringList("long"));
        finger::release(button, QPoint(50, 50));
        QCOMPARE(log, (QStringList{"long", "clicked"}));
    }

    void tapIsNoLongPress() {
        finger::tap(button);
        advance(5000);
        QCOMPARE(log, QStringList("clicked"));
    }

    void eachPressCountsAnew() {
        wrapper->setLongPressedInterval(1000);
        for (int i = 0; i < 2; ++i) {
            finger::press(button, QPoint(50, 50));
            advance(999);
            finger::release(button, QPoint(50, 50));
        }
        QCOMPARE(log, (QStringList{"clicked", "clicked"}));
        log.clear();
        finger::hold(button, 1000);
        finger::hold(button, 1000);
        QCOMPARE(log, (QStringList{"long", "clicked", "long", "clicked"}));
    }

    void repeatsBeginWithTheLongPress() {
        wrapper->setLongPressedInterval(1000);
        wrapper->setRepeatInterval(200);
        finger::press(button, QPoint(50, 50));
        advance(1000);
        QCOMPARE(log, (QStringList{"long", "repeat"}));
        advance(199);
        QCOMPARE(log.size(), 2);
        advance(1);
        QCOMPARE(log.size(), 3);
        advance(1000);
        QCOMPARE(log.count("repeat"), 7);
        QCOMPARE(log.count("long"), 1);
        finger::release(button, QPoint(50, 50));
        advance(5000);
        QCOMPARE(log.count("repeat"), 7);
        QCOMPARE(log.last(), QString("clicked"));
    }

    void fingerThatLeavesEndsThePress() {
        wrapper->setRepeatInterval(200);
        finger::press(button, QPoint(50, 50));
        advance(1400);
        finger::move(button, QPoint(150, 50));
        advance(5000);
        QCOMPARE(log, QStringList());
        finger::release(button, QPoint(150, 50));
        QCOMPARE(log, QStringList());
    }

    void disabledWhileHeld() {
        wrapper->setRepeatInterval(100);
        finger::press(button, QPoint(50, 50));
        advance(1600);
        QCOMPARE(log.count("repeat"), 2);
        button->setEnabled(false);
        advance(5000);
        QCOMPARE(log.count("repeat"), 2);
        finger::release(button, QPoint(50, 50));
        button->setEnabled(true);
        advance(5000);
        QCOMPARE(log, (QStringList{"long", "repeat", "repeat"}));
    }

    void disabledByItsOwnLongPress() {
        wrapper->setRepeatInterval(100);
        connect(wrapper, &cm::PushButton::longPressed, this, [this] { button->setEnabled(false); });
        finger::hold(button, 5000);
        QCOMPARE(log, QStringList("long"));
    }

    void disabledByARepeat() {
        wrapper->setRepeatInterval(100);
        connect(wrapper, &cm::PushButton::longPressedRepeat, this, [this] { button->setEnabled(false); });
        finger::hold(button, 5000);
        QCOMPARE(log, (QStringList{"long", "repeat"}));
    }

    void hiddenWhileHeld() {
        finger::press(button, QPoint(50, 50));
        advance(1000);
        button->hide();
        advance(5000);
        QCOMPARE(log, QStringList());
        button->show();
        QVERIFY(!button->isDown());
        advance(5000);
        QCOMPARE(log, QStringList());
        finger::release(screen, QPoint(10, 10));
        finger::hold(button, 1500);
        QCOMPARE(log, (QStringList{"long", "clicked"}));
    }

    void pageHiddenWhileHeld() {
        finger::press(button, QPoint(50, 50));
        advance(1000);
        screen->hide();
        advance(5000);
        QCOMPARE(log, QStringList());
        QVERIFY(!button->isDown());
    }

    void deletedWhileHeld() {
        finger::press(button, QPoint(50, 50));
        advance(1000);
        delete button;
        advance(5000);
        QCOMPARE(log, QStringList());
    }

    void deletedByItsOwnLongPress_data() {
        QTest::addColumn<bool>("wrapperToo");
        QTest::newRow("button") << false;
        QTest::newRow("wrapper") << true;
    }

    void deletedByItsOwnLongPress() {
        QFETCH(bool, wrapperToo);
        wrapper->setRepeatInterval(100);
        connect(wrapper, &cm::PushButton::longPressed, this, [=] {
            if (wrapperToo) {
                delete wrapper;
            } else {
                delete button;
            }
        });
        finger::press(button, QPoint(50, 50));
        advance(5000);
        QCOMPARE(log, QStringList("long"));
    }

    void pressTakenAwaySilently() {
        finger::press(button, QPoint(50, 50));
        advance(1000);
        button->setDown(false);
        advance(5000);
        QCOMPARE(log, QStringList());
    }

    void worksWithoutAButton() {
        cm::PushButton none(nullptr, nullptr);
        none.setLongPressedInterval(1);
        advance(100);
        QCOMPARE(log, QStringList());
    }
};

UNIT_TEST_MAIN(TestPushButton)
#include "tst_pushbutton.moc"
