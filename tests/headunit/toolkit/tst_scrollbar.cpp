// SPDX-License-Identifier: Apache-2.0
#include "scrollbar.h"
#include "unittest.h"

#include <QScrollArea>

namespace {

const QRect place(56, 0, 24, 432);

}  // namespace

/// The vertical scroll bar beside a page.
class TestScrollBar : public QObject {
    Q_OBJECT

    QWidget *screen = nullptr;
    cm::ScrollBar *bar = nullptr;

    QColor shown(int y) { return bar->grab().toImage().pixelColor(12, y); }

private slots:
    void init() {
        screen = new QWidget;
        screen->resize(1024, 470);
        bar = new cm::ScrollBar(screen, place, 0);
        bar->setRange(0, 432);
        bar->setPageStep(432);  // the handle is half as long as the bar: 216
        screen->show();
    }

    void cleanup() { delete screen; }

    void isVerticalWhereItWasPut() {
        QCOMPARE(bar->orientation(), Qt::Vertical);
        QCOMPARE(bar->geometry(), place);
    }

    void keepsItsPlaceAsBarOfAnArea() {
        QScrollArea area(screen);
        area.setGeometry(40, 0, 980, 440);
        auto *content = new QWidget;
        content->resize(955, 885);
        area.setWidget(content);
        area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        area.show();
        bar->setVisible(true);
        area.setVerticalScrollBar(bar);
        bar->setParent(screen);
        bar->setVisible(true);
        advance(0);
        QCOMPARE(bar->geometry(), place);
        QCOMPARE(area.verticalScrollBar(), bar);
        bar->setValue(100);
        QCOMPARE(content->y(), -100);
        QCOMPARE(area.viewport()->width(), 980 - 2 * area.frameWidth() - 24);
        area.takeWidget()->deleteLater();
        bar = nullptr;
    }

    void showsWhereTheContentStands() {
        const QColor handle = shown(100);
        const QColor groove = shown(300);
        QVERIFY(handle != groove);
        QCOMPARE(shown(210), handle);
        QCOMPARE(shown(217), groove);
        bar->setValue(432);
        QCOMPARE(shown(100), groove);
        QCOMPARE(shown(300), handle);
        bar->setValue(216);
        QCOMPARE(shown(100), groove);
        QCOMPARE(shown(216), handle);
        QCOMPARE(shown(330), groove);
    }

    void handleStaysLongEnoughToSee() {
        bar->setRange(0, 100000);
        const QColor handle = shown(24);
        QCOMPARE(shown(45), handle);
        QVERIFY(shown(60) != handle);
    }

    void withNothingToScrollThereIsNoHandle() {
        const QColor handle = shown(100);
        bar->setRange(0, 0);
        QVERIFY(shown(100) != handle);
    }

    void handleFollowsTheFinger() {
        finger::press(bar, QPoint(12, 50));
        QVERIFY(bar->isSliderDown());
        QCOMPARE(bar->value(), 0);
        finger::move(bar, QPoint(12, 158));  // 108 of 216 pixels
        QCOMPARE(bar->value(), 216);
        finger::move(bar, QPoint(300, 1000));
        QCOMPARE(bar->value(), 432);
        finger::move(bar, QPoint(-300, -1000));
        QCOMPARE(bar->value(), 0);
        finger::release(bar, QPoint(-300, -1000));
        QVERIFY(!bar->isSliderDown());
        finger::move(bar, QPoint(12, 158));
        QCOMPARE(bar->value(), 0);
    }

    void handleComesToTheFinger() {
        finger::tap(bar, QPoint(12, 324));  // its middle stands 108 below its top
        QCOMPARE(bar->value(), 432);
        finger::tap(bar, QPoint(12, 0));
        QCOMPARE(bar->value(), 0);
    }

    void lightsUpWhileHeld() {
        const QColor rest = shown(50);
        finger::press(bar, QPoint(12, 50));
        QCOMPARE(shown(50), headunit::colour::accent);
        finger::release(bar, QPoint(12, 50));
        QCOMPARE(shown(50), rest);
    }

    void hidingEndsTheDrag() {
        finger::press(bar, QPoint(12, 50));
        bar->hide();
        QVERIFY(!bar->isSliderDown());
    }
};

UNIT_TEST_MAIN(TestScrollBar)
#include "tst_scrollbar.moc"
