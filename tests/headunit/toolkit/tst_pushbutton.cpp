// SPDX-License-Identifier: Apache-2.0
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

    /// Pixels of the bar that are filled; -1 without a bar.
    int filled() const {
        const QWidget *bar = button->findChild<QWidget *>();
        if (!bar || !bar->isVisible()) {
            return -1;
        }
        const QImage image = button->grab(bar->geometry()).toImage();
        int count = 0;
        for (int x = 0; x < image.width(); ++x) {
            count += qGray(image.pixel(x, image.height() / 2)) > 128;
        }
        // Its ends are a pixel inside the groove.
        return count == image.width() - 2 ? image.width() : count;
    }

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

    void holdShowsHowFarItIs() {
        QCOMPARE(filled(), -1);
        finger::press(button, QPoint(50, 50));
        advance(249);
        QCOMPARE(filled(), -1);
        int last = 0;
        for (int ms = 250; ms < 1500; ms += 50) {
            advance(ms == 250 ? 1 : 50);
            // Of the bar's 68 px.
            QVERIFY2(qAbs(filled() - ms * 68 / 1500) <= 3, qPrintable(QString("%1 after %2").arg(filled()).arg(ms)));
            QVERIFY(filled() > last);
            last = filled();
        }
        advance(50);
        QCOMPARE(log, QStringList("long"));
        QCOMPARE(filled(), 68);
        finger::release(button, QPoint(50, 50));
        advance(399);
        QCOMPARE(filled(), 68);
        advance(1);
        QCOMPARE(filled(), -1);
    }

    void fullBarGoesUnderTheFingerToo() {
        finger::press(button, QPoint(50, 50));
        advance(1500);
        QCOMPARE(filled(), 68);
        advance(400);
        QCOMPARE(filled(), -1);
        advance(5000);
        QCOMPARE(filled(), -1);
        finger::release(button, QPoint(50, 50));
    }

    void holdThatEndsEarlyShowsNothingMore() {
        finger::press(button, QPoint(50, 50));
        advance(1000);
        QVERIFY(filled() > 0);
        finger::release(button, QPoint(50, 50));
        QCOMPARE(filled(), -1);
        finger::press(button, QPoint(50, 50));
        advance(1000);
        button->setEnabled(false);
        QCOMPARE(filled(), -1);
        button->setEnabled(true);
        finger::release(button, QPoint(50, 50));
        finger::press(button, QPoint(50, 50));
        advance(1000);
        screen->hide();
        screen->show();
        QCOMPARE(filled(), -1);
        advance(5000);
        QCOMPARE(filled(), -1);
        QVERIFY(!log.contains("long"));
    }

    void keyThatRepeatsShowsNothing() {
        wrapper->setRepeatInterval(200);
        finger::press(button, QPoint(50, 50));
        for (int i = 0; i < 50; ++i) {
            advance(50);
            QCOMPARE(filled(), -1);
        }
        finger::release(button, QPoint(50, 50));
    }

    void keyWhoseHoldDoesNothingShowsNothing() {
        QPushButton other(screen);
        other.resize(100, 100);
        other.show();
        cm::PushButton unheard(&other, screen);
        finger::press(&other, QPoint(50, 50));
        advance(1000);
        QVERIFY(other.children().isEmpty());
        finger::release(&other, QPoint(50, 50));
    }

    void barTakesNoTouch() {
        finger::press(button, QPoint(50, 90));
        advance(1000);
        const QWidget *bar = button->findChild<QWidget *>();
        QVERIFY(bar->geometry().contains(50, 90));
        QCOMPARE(screen->childAt(button->mapTo(screen, QPoint(50, 90))), button);
        finger::release(button, QPoint(50, 90));
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
