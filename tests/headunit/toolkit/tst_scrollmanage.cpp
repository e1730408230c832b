// SPDX-License-Identifier: Apache-2.0
#include "horizontalslider.h"
#include "labelbutton.h"
#include "pushbutton.h"
#include "scrollmanage.h"
#include "unittest.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace {

const int areaHeight = 440;
const int contentHeight = 1065;
const int lastPosition = contentHeight - areaHeight;
const int tick = 16;  // ms

}  // namespace

/// Scrolling of a page of settings by finger.
class TestScrollManage : public QObject {
    Q_OBJECT

    QWidget *screen = nullptr;
    QScrollArea *area = nullptr;
    QWidget *content = nullptr;
    QLabel *caption = nullptr;
    QPushButton *key = nullptr;
    cm::LabelButton *labelKey = nullptr;
    HorizontalSlider *slider = nullptr;
    cm::ScrollManage *manage = nullptr;
    QStringList log;

    int position() const { return area->verticalScrollBar()->value(); }

    void press(const QPoint &at) { finger::press(screen, at); }
    void move(const QPoint &at) { finger::move(screen, at); }
    void release(const QPoint &at) { finger::release(screen, at); }

    /// Moves the finger in steps of a tick, and lets go at once.
    QPoint flick(QPoint at, const QPoint &step, int steps) {
        press(at);
        for (int i = 0; i < steps; ++i) {
            at += step;
            move(at);
            advance(tick);
        }
        release(at);
        return at;
    }

    bool atRest() {
        const int before = position();
        const int top = content->y();
        advance(1000);
        return position() == before && content->y() == top;
    }

private slots:
    void init() {
        screen = new QWidget;
        screen->resize(1024, 470);
        area = new QScrollArea(screen);
        area->setGeometry(0, 0, 1000, areaHeight);
        area->setFrameShape(QFrame::NoFrame);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        manage = new cm::ScrollManage(area, true, false);
        // A page fills its area after the scrolling was set up.
        content = new QWidget;
        content->resize(955, contentHeight);
        area->setWidget(content);
        caption = new QLabel("Caption", content);
        caption->setGeometry(80, 0, 864, 72);
        auto *group = new QWidget(content);
        group->setGeometry(0, 80, 955, 400);
        key = new QPushButton(group);
        key->setGeometry(80, 10, 72, 72);
        labelKey = new cm::LabelButton(group);
        labelKey->setGeometry(170, 10, 72, 72);
        slider = new HorizontalSlider(QRect(300, 10, 638, 72), group);
        slider->setFreqRange(0, 41);
        screen->show();
        log.clear();
        connect(key, &QPushButton::clicked, this, [this] { log << "key"; });
        connect(key, &QPushButton::pressed, this, [this] { log << "pressed"; });
        connect(key, &QPushButton::released, this, [this] { log << "released"; });
        connect(labelKey, QOverload<>::of(&cm::LabelButton::clicked), this, [this] { log << "labelKey"; });
        connect(slider, &HorizontalSlider::valueChanged, this, [this] { log << "slider"; });
    }

    void cleanup() { delete screen; }

    void contentFollowsTheFinger() {
        press(QPoint(20, 400));
        move(QPoint(20, 388));  // what tells a scroll from a tap moves nothing yet
        QCOMPARE(position(), 0);
        move(QPoint(20, 287));
        QCOMPARE(position(), 101);
        move(QPoint(20, 337));
        QCOMPARE(position(), 51);
        QCOMPARE(content->y(), -51);
        advance(500);
        release(QPoint(20, 337));
        QVERIFY(atRest());
        QCOMPARE(position(), 51);
    }

    void slipOfATapDoesNotScroll() {
        press(QPoint(20, 400));
        move(QPoint(20, 389));
        move(QPoint(31, 411));
        release(QPoint(31, 411));
        QCOMPARE(position(), 0);
        QVERIFY(atRest());
    }

    void tapOnAKeyIsATap() {
        finger::tap(key);
        finger::tap(labelKey);
        QCOMPARE(log, (QStringList{"pressed", "released", "key", "labelKey"}));
        const QPoint middle = key->mapTo(screen, key->rect().center());
        press(middle);
        move(middle + QPoint(3, -11));
        release(middle + QPoint(3, -11));
        QCOMPARE(log.count("key"), 2);
        QCOMPARE(position(), 0);
    }

    void scrollThatBeginsOnAKeyIsNoClick() {
        const QPoint middle = key->mapTo(screen, key->rect().center());
        press(middle);
        QVERIFY(key->isDown());
        move(middle - QPoint(0, 12));
        QVERIFY(!key->isDown());
        QCOMPARE(log, (QStringList{"pressed", "released"}));
        move(middle - QPoint(0, 42));
        QCOMPARE(position(), 30);
        move(middle);  // the finger is back on the key, which moved along
        release(middle);
        QVERIFY(!key->isDown());
        QCOMPARE(log, (QStringList{"pressed", "released"}));
        advance(1000);
        finger::tap(key);
        QCOMPARE(log.count("key"), 1);
    }

    void scrollThatBeginsOnALabelButtonIsNoClick() {
        const QPoint middle = labelKey->mapTo(screen, labelKey->rect().center());
        press(middle);
        move(middle - QPoint(0, 30));
        move(middle);
        release(middle);
        QCOMPARE(log, QStringList());
        advance(1000);
        finger::tap(labelKey);
        QCOMPARE(log, QStringList("labelKey"));
    }

    void scrollEndsALongPress() {
        cm::PushButton wrapper(key, nullptr);
        int longPresses = 0;
        connect(&wrapper, &cm::PushButton::longPressed, this, [&] { ++longPresses; });
        const QPoint middle = key->mapTo(screen, key->rect().center());
        press(middle);
        advance(1000);
        move(middle - QPoint(0, 20));
        advance(5000);
        release(middle - QPoint(0, 20));
        QCOMPARE(longPresses, 0);
    }

    void fingerOnASliderMovesItAndNeverScrolls() {
        const QPoint middle = slider->mapTo(screen, slider->rect().center());
        press(middle);
        QCOMPARE(log.size(), 1);
        QVERIFY(slider->getMoveState());
        move(middle + QPoint(200, -150));
        QCOMPARE(log.size(), 2);
        QVERIFY(slider->getMoveState());
        move(middle + QPoint(0, -200));
        advance(100);
        release(middle + QPoint(0, -200));
        QVERIFY(!slider->getMoveState());
        QCOMPARE(log.size(), 3);
        QCOMPARE(position(), 0);
        QVERIFY(atRest());
    }

    void runsOnWithMomentum() {
        flick(QPoint(20, 400), QPoint(0, -20), 8);
        const int released = position();
        QCOMPARE(released, 8 * 20 - 20);
        advance(tick);
        const int first = position() - released;
        QVERIFY(first > 10);
        advance(5 * tick);
        const int before = position();
        advance(tick);
        const int later = position() - before;
        QVERIFY(later > 0 && later < first);
        advance(5000);
        QVERIFY(position() > released + 200);
        QVERIFY(position() < lastPosition);
        QVERIFY(atRest());
    }

    void momentumMovesOncePerTick() {
        flick(QPoint(20, 400), QPoint(0, -20), 8);
        advance(tick);
        for (int i = 0; i < 10; ++i) {
            const int before = position();
            advance(tick - 1);
            QCOMPARE(position(), before);
            advance(1);
            QVERIFY(position() > before);
        }
    }

    void softEnd_data() {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("end");
        QTest::newRow("bottom") << lastPosition - 100 << -30 << lastPosition;
        QTest::newRow("top") << 100 << 30 << 0;
    }

    void softEnd() {
        QFETCH(int, from);
        QFETCH(int, step);
        QFETCH(int, end);
        area->verticalScrollBar()->setValue(from);
        flick(QPoint(20, 220), QPoint(0, step), 6);
        int furthest = 0;
        for (int i = 0; i < 100; ++i) {
            advance(tick);
            furthest = qMax(furthest, qAbs(content->y() + position()));
        }
        QVERIFY(furthest > 5);    // it gives ...
        QVERIFY(furthest <= 48);  // ... a little
        QCOMPARE(position(), end);
        QCOMPARE(content->y(), -end);
        QVERIFY(atRest());
    }

    void fingerBeyondTheEndIsFollowedLess() {
        press(QPoint(20, 100));
        move(QPoint(20, 112));
        move(QPoint(20, 212));
        QCOMPARE(position(), 0);
        QCOMPARE(content->y(), 35);
        release(QPoint(20, 212));
        advance(2000);
        QCOMPARE(content->y(), 0);
    }

    void touchCatchesTheMovingContent() {
        flick(QPoint(20, 400), QPoint(0, -20), 8);
        advance(3 * tick);
        press(QPoint(20, 300));
        const int caught = position();
        QVERIFY(atRest());
        move(QPoint(20, 288));
        move(QPoint(20, 258));
        QCOMPARE(position(), caught + 30);
        release(QPoint(20, 258));
    }

    void catchingTouchIsNoTapOnWhatLiesThere() {
        // Content that moves under the finger: whatever comes to lie there was not meant.
        for (QWidget *below : QList<QWidget *>{key, labelKey, slider}) {
            area->verticalScrollBar()->setValue(0);
            flick(QPoint(20, 100), QPoint(0, -10), 4);
            const QPoint at = below->mapTo(screen, below->rect().center());
            press(at);
            release(at);
            QVERIFY(atRest());
            QCOMPARE(log, QStringList());
        }
        finger::tap(key);
        QCOMPARE(log.count("key"), 1);
    }

    void catchingTouchOnASliderNeitherMovesItNorScrolls() {
        flick(QPoint(20, 100), QPoint(0, -10), 4);
        const QPoint at = slider->mapTo(screen, slider->rect().center());
        press(at);
        const int caught = position();
        move(at + QPoint(100, -30));
        move(at + QPoint(100, -60));
        release(at + QPoint(100, -60));
        QVERIFY(atRest());
        QCOMPARE(position(), caught);
        QCOMPARE(log, QStringList());
        finger::tap(slider, QPoint(600, 30));
        QCOMPARE(log, QStringList("slider"));
    }

    void axisThatIsOffDoesNotScroll() {
        delete manage;
        manage = new cm::ScrollManage(area, false, true);
        content->resize(2000, contentHeight);
        advance(0);
        flick(QPoint(500, 300), QPoint(-20, -20), 8);
        advance(5000);
        QCOMPARE(position(), 0);
        QVERIFY(area->horizontalScrollBar()->value() > 140);
    }

    void contentThatFitsDoesNotScroll() {
        content->resize(955, areaHeight - 10);
        advance(0);
        finger::press(key, QPoint(30, 30));
        finger::move(key, QPoint(30, 5));
        QVERIFY(key->isDown());
        finger::release(key, QPoint(30, 5));
        QCOMPARE(log.last(), QString("key"));
        QCOMPARE(content->y(), 0);
    }

    void hidingEndsTheRun() {
        flick(QPoint(20, 400), QPoint(0, -20), 8);
        advance(tick);
        screen->hide();
        const int hidden = position();
        advance(1000);
        QCOMPARE(position(), hidden);
        screen->show();
        QVERIFY(atRest());
        finger::tap(key, QPoint(30, 30));
    }

    void hidingUnderTheFingerForgetsIt() {
        area->verticalScrollBar()->setValue(0);
        press(QPoint(20, 100));
        move(QPoint(20, 130));
        move(QPoint(20, 180));
        QVERIFY(content->y() > 0);
        screen->hide();
        QCOMPARE(content->y(), 0);
        screen->show();
        release(QPoint(20, 180));
        finger::tap(key);
        QCOMPARE(log.count("key"), 1);
    }

    void touchedWidgetMayBeDeleted() {
        const QPoint middle = key->mapTo(screen, key->rect().center());
        press(middle);
        delete key;
        move(middle - QPoint(0, 30));
        move(middle - QPoint(0, 60));
        release(middle - QPoint(0, 60));
        advance(1000);
        finger::tap(labelKey);
        QVERIFY(log.contains("labelKey"));
    }

    void goesWithItsArea() {
        const QPointer<cm::ScrollManage> alive(manage);
        flick(QPoint(20, 400), QPoint(0, -20), 8);
        delete area;
        QVERIFY(!alive);
        advance(1000);
    }

    void timersRestWhileNothingMoves() {
        struct Watcher : public QObject {
            int timeouts = 0;
            bool eventFilter(QObject *, QEvent *event) override {
                timeouts += event->type() == QEvent::Timer;
                return false;
            }
        } watcher;
        qApp->installEventFilter(&watcher);
        advance(1000);
        QCOMPARE(watcher.timeouts, 0);
        flick(QPoint(20, 400), QPoint(0, -20), 8);
        QVERIFY(watcher.timeouts >= 6);
        advance(10000);
        watcher.timeouts = 0;
        advance(1000);
        QCOMPARE(watcher.timeouts, 0);
        press(QPoint(20, 200));
        move(QPoint(20, 100));
        advance(500);
        release(QPoint(20, 100));
        watcher.timeouts = 0;
        advance(1000);
        QCOMPARE(watcher.timeouts, 0);
        qApp->removeEventFilter(&watcher);
    }

    void touchedWidgetSeesAWholePress() {
        // A widget of any kind: the finger comes, leaves, and is lifted when it really is.
        struct Probe : public QWidget {
            explicit Probe(QWidget *parent) : QWidget(parent) {}
            QStringList seen;
            void note(const char *what, const QMouseEvent *event) {
                seen << QString("%1 %2").arg(what, rect().contains(event->pos()) ? "inside" : "outside");
            }
            void mousePressEvent(QMouseEvent *event) override { note("press", event); }
            void mouseMoveEvent(QMouseEvent *event) override { note("move", event); }
            void mouseReleaseEvent(QMouseEvent *event) override { note("release", event); }
        };
        Probe probe(content);
        probe.setGeometry(0, 500, 100, 100);
        probe.show();
        area->verticalScrollBar()->setValue(300);
        const QPoint at = probe.mapTo(screen, QPoint(50, 50));
        press(at);
        move(at - QPoint(0, 20));
        move(at - QPoint(0, 25));
        move(at);
        QCOMPARE(probe.seen, (QStringList{"press inside", "move outside"}));
        release(at);
        QCOMPARE(probe.seen, (QStringList{"press inside", "move outside", "release outside"}));
        advance(1000);
        probe.seen.clear();
        press(at);
        move(at + QPoint(5, 5));
        release(at + QPoint(5, 5));
        QCOMPARE(probe.seen, (QStringList{"press inside", "move inside", "release inside"}));
    }

    void nothingToScrollIsHarmless() {
        cm::ScrollManage none(nullptr, true, true);
        advance(100);
    }
};

UNIT_TEST_MAIN(TestScrollManage)
#include "tst_scrollmanage.moc"
