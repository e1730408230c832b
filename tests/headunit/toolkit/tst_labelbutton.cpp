// SPDX-License-Identifier: Apache-2.0
#include "labelbutton.h"
#include "unittest.h"

#include <QMouseEvent>
#include <QPointer>

/// A key that is drawn from pictures.
class TestLabelButton : public QObject {
    Q_OBJECT

    QWidget *screen = nullptr;
    cm::LabelButton *button = nullptr;
    QStringList log;

    QColor shown() { return button->grab().toImage().pixelColor(20, 20); }

private slots:
    void init() {
        screen = new QWidget;
        screen->resize(200, 200);
        button = new cm::LabelButton(screen);
        button->setGeometry(50, 50, 40, 40);
        button->setBgPathNormalOff(QUrl("qrc:/test/red.xpm"));
        button->setBgPathNormalOn(QUrl("qrc:/test/green.xpm"));
        button->setBgPathDisable(QUrl("qrc:/test/blue.xpm"));
        screen->show();
        log.clear();
        connect(button, QOverload<>::of(&cm::LabelButton::clicked), this, [this] { log << "clicked"; });
        connect(button, QOverload<int>::of(&cm::LabelButton::clicked), this,
                [this](int id) { log << QString("clicked(%1)").arg(id); });
    }

    void cleanup() { delete screen; }

    void click() {
        finger::tap(button);
        QCOMPARE(log, (QStringList{"clicked", "clicked(0)"}));
        log.clear();
        button->setGroupId(12);
        finger::tap(button, QPoint(0, 39));
        QCOMPARE(log, (QStringList{"clicked", "clicked(12)"}));
    }

    void quickTapsAllCount() {
        for (int i = 0; i < 4; ++i) {
            finger::tap(button);
        }
        QCOMPARE(log.count("clicked"), 4);
        // A second press that the window system counts as a double click is a press.
        QTest::mouseEvent(QTest::MouseDClick, button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        QCOMPARE(log.count("clicked"), 5);
    }

    void showsItsState() {
        QCOMPARE(shown(), QColor(Qt::red));
        finger::press(button, QPoint(20, 20));
        QCOMPARE(shown(), QColor(Qt::green));
        finger::release(button, QPoint(20, 20));
        QCOMPARE(shown(), QColor(Qt::red));
        button->setEnabled(false);
        QCOMPARE(shown(), QColor(Qt::blue));
        button->setEnabled(true);
        QCOMPARE(shown(), QColor(Qt::red));
    }

    void pictureIsCentredAtItsOwnSize() {
        const QImage image = button->grab().toImage();
        QCOMPARE(image.pixelColor(16, 16), QColor(Qt::red));
        QCOMPARE(image.pixelColor(23, 23), QColor(Qt::red));
        QVERIFY(image.pixelColor(15, 20) != QColor(Qt::red));
        QVERIFY(image.pixelColor(20, 24) != QColor(Qt::red));
    }

    void stateWithoutPictureShowsNormalOff() {
        button->setBgPathNormalOn(QUrl());
        button->setBgPathDisable(QUrl("qrc:/test/missing.xpm"));
        finger::press(button, QPoint(20, 20));
        QCOMPARE(shown(), QColor(Qt::red));
        finger::release(button, QPoint(20, 20));
        button->setEnabled(false);
        QCOMPARE(shown(), QColor(Qt::red));
    }

    void newPictureIsShownAtOnce() {
        QCOMPARE(shown(), QColor(Qt::red));
        button->setIcon(cm::LabelButton::NormalOff, QUrl(":/test/blue.xpm"));
        QCOMPARE(shown(), QColor(Qt::blue));
    }

    void pathsAreProperties() {
        cm::LabelButton other;
        other.setProperty("bgPathNormalOff", QUrl("qrc:/test/red.xpm"));
        other.setProperty("bgPathNormalOn", QString("qrc:/test/green.xpm"));
        other.setProperty("bgPathDisable", QUrl("qrc:/test/blue.xpm"));
        QVERIFY(other.dynamicPropertyNames().isEmpty());
        QCOMPARE(other.icon(cm::LabelButton::NormalOff), QUrl("qrc:/test/red.xpm"));
        QCOMPARE(other.icon(cm::LabelButton::NormalOn), QUrl("qrc:/test/green.xpm"));
        QCOMPARE(other.icon(cm::LabelButton::Disabled), QUrl("qrc:/test/blue.xpm"));
        QCOMPARE(other.bgPathDisable(), QUrl("qrc:/test/blue.xpm"));
    }

    void unknownStateIsIgnored() {
        for (int number : {4, 5, 7, 1000, -1}) {  // 4 is the first one behind the table
            const auto unknown = static_cast<cm::LabelButton::IconStateID>(number);
            button->setIcon(unknown, QUrl("qrc:/test/red.xpm"));
            QCOMPARE(button->icon(unknown), QUrl());
        }
    }

    void pressThatLeavesIsNoClick() {
        finger::press(button, QPoint(20, 20));
        finger::move(button, QPoint(60, 20));
        QCOMPARE(shown(), QColor(Qt::red));
        finger::release(button, QPoint(60, 20));
        QCOMPARE(log, QStringList());
        finger::press(button, QPoint(20, 20));
        finger::move(button, QPoint(40, 20));  // one pixel out ...
        finger::move(button, QPoint(20, 20));  // ... and back
        QCOMPARE(shown(), QColor(Qt::red));
        finger::release(button, QPoint(20, 20));
        QCOMPARE(log, QStringList());
    }

    void releaseOutsideWithoutMoveIsNoClick() {
        QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(20, 90));
        QCOMPARE(log, QStringList());
    }

    void pressThatMovesInsideIsAClick() {
        finger::press(button, QPoint(0, 0));
        finger::move(button, QPoint(39, 39));
        finger::release(button, QPoint(39, 39));
        QCOMPARE(log, (QStringList{"clicked", "clicked(0)"}));
    }

    void disabledKeyTakesNoPress() {
        button->setEnabled(false);
        finger::tap(button);
        QCOMPARE(log, QStringList());
    }

    void disabledWhileHeld() {
        finger::press(button, QPoint(20, 20));
        button->setEnabled(false);
        button->setEnabled(true);
        QCOMPARE(shown(), QColor(Qt::red));
        finger::release(button, QPoint(20, 20));
        QCOMPARE(log, QStringList());
    }

    void hiddenWhileHeld() {
        finger::press(button, QPoint(20, 20));
        button->hide();
        button->show();
        QCOMPARE(shown(), QColor(Qt::red));
        finger::release(button, QPoint(20, 20));
        QCOMPARE(log, QStringList());
    }

    void otherMouseButtonsAreIgnored() {
        QTest::mouseClick(button, Qt::RightButton);
        QCOMPARE(log, QStringList());
    }

    void deletedByItsOwnClick() {
        const QPointer<cm::LabelButton> alive(button);
        connect(button, QOverload<>::of(&cm::LabelButton::clicked), this, [this] { delete button; });
        finger::tap(button);
        QVERIFY(!alive);
        QCOMPARE(log, QStringList("clicked"));
    }

    void pressStaysWithTheKey() {
        struct Watcher : public QObject {
            int presses = 0;
            bool eventFilter(QObject *, QEvent *event) override {
                presses += event->type() == QEvent::MouseButtonPress;
                return false;
            }
        } watcher;
        screen->installEventFilter(&watcher);
        finger::tap(button);
        QCOMPARE(watcher.presses, 0);
        finger::tap(screen, QPoint(10, 10));
        QCOMPARE(watcher.presses, 1);
    }
};

UNIT_TEST_MAIN(TestLabelButton)
#include "tst_labelbutton.moc"
