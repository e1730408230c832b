// SPDX-License-Identifier: Apache-2.0
#include "headunit/virtualtime/virtualtime.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <thread>

using headunit::VirtualTime;

namespace {

/// Runs a function when the posted event arrives.
class Receiver : public QObject {
public:
    std::function<void()> onEvent;
    bool event(QEvent *event) override {
        if (event->type() == QEvent::User) {
            onEvent();
            return true;
        }
        return QObject::event(event);
    }
};

class Touched : public QWidget {
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

}  // namespace

class tst_VirtualTime : public QObject {
    Q_OBJECT

    VirtualTime *const time = VirtualTime::instance();
    QStringList log;

    void add(QTimer &timer, const QString &name, int ms) {
        timer.start(ms);
        connect(&timer, &QTimer::timeout, this, [this, name, start = time->now()] {
            log << QStringLiteral("%1@%2").arg(name).arg(time->now() - start);
        });
    }

private slots:
    void init() { log.clear(); }

    void isTheApplicationsDispatcher() {
        QCOMPARE(QAbstractEventDispatcher::instance(), time);
        QCOMPARE(VirtualTime::instance(), time);
    }

    void standsStillUntilAdvanced() {
        const qint64 start = time->now();
        QTimer timer;
        add(timer, "a", 1);
        QElapsedTimer wall;
        wall.start();
        while (!wall.hasExpired(timer.interval())) {
        }
        QCoreApplication::processEvents();
        QCOMPARE(log, QStringList());
        QCOMPARE(timer.remainingTime(), 1);
        QCOMPARE(time->now(), start);
        time->advance(0);
        QCOMPARE(log, QStringList());
    }

    void runsInOrderOfTimeThenRegistration() {
        QTimer late, first, second, early;
        add(late, "late", 90);
        add(first, "first", 40);
        add(second, "second", 40);
        add(early, "early", 30);
        time->advance(89);
        QCOMPARE(log, QStringList({"early@30", "first@40", "second@40", "early@60", "first@80", "second@80"}));
        time->advance(1);
        QCOMPARE(log.mid(6), QStringList({"late@90", "early@90"}));
    }

    void everyTypeIsExact() {
        QTimer coarse, veryCoarse, precise;
        coarse.setTimerType(Qt::CoarseTimer);
        veryCoarse.setTimerType(Qt::VeryCoarseTimer);
        precise.setTimerType(Qt::PreciseTimer);
        add(veryCoarse, "v", 999);
        add(coarse, "c", 999);
        add(precise, "p", 999);
        time->advance(998);
        QCOMPARE(log, QStringList());
        time->advance(1);
        QCOMPARE(log, QStringList({"v@999", "c@999", "p@999"}));
    }

    void coarseTimersAreLateOnRequest() {
        time->setCoarseTimersLate(true);
        QTimer coarse, veryCoarse, precise;
        coarse.setTimerType(Qt::CoarseTimer);
        veryCoarse.setTimerType(Qt::VeryCoarseTimer);
        precise.setTimerType(Qt::PreciseTimer);
        add(veryCoarse, "v", 1000);
        add(coarse, "c", 100);
        add(precise, "p", 100);
        time->setCoarseTimersLate(false);
        time->advance(210);
        QCOMPARE(log, QStringList({"p@100", "c@105", "p@200", "c@210"}));
        coarse.stop();
        precise.stop();
        time->advance(2100 - 210);
        QCOMPARE(log.mid(4), QStringList({"v@1050", "v@2100"}));
    }

    void singleShotFiresOnce() {
        QTimer timer;
        timer.setSingleShot(true);
        add(timer, "s", 10);
        time->advance(100);
        QCOMPARE(log, QStringList("s@10"));
        QVERIFY(!timer.isActive());
    }

    void restartMovesTheDueTime() {
        QTimer timer;
        timer.setSingleShot(true);
        add(timer, "s", 10);
        time->advance(9);
        timer.start();
        QCOMPARE(timer.remainingTime(), 10);
        time->advance(9);
        QCOMPARE(log, QStringList());
        time->advance(1);
        QCOMPARE(log, QStringList("s@19"));
    }

    void remainingTimeCountsDown() {
        QTimer timer;
        timer.start(100);
        time->advance(30);
        QCOMPARE(timer.remainingTime(), 70);
        timer.stop();
        QCOMPARE(timer.remainingTime(), -1);
        QCOMPARE(time->remainingTime(123456), -1);
    }

    void timeoutStopsAnotherTimer() {
        QTimer killer, victim;
        add(killer, "k", 10);
        add(victim, "v", 10);
        connect(&killer, &QTimer::timeout, &victim, &QTimer::stop);
        time->advance(15);
        QCOMPARE(log, QStringList("k@10"));
    }

    void timeoutStartsAnotherTimer() {
        QTimer first, second;
        first.setSingleShot(true);
        second.setSingleShot(true);
        add(first, "a", 10);
        connect(&first, &QTimer::timeout, [&] { add(second, "b", 5); });
        time->advance(20);
        QCOMPARE(log, QStringList({"a@10", "b@5"}));
    }

    void timeoutDeletesItsTimer() {
        QTimer *timer = new QTimer;
        add(*timer, "a", 10);
        connect(timer, &QTimer::timeout, [timer] { delete timer; });
        time->advance(100);
        QCOMPARE(log, QStringList("a@10"));
    }

    void zeroTimerRunsOncePerPass() {
        QTimer zero;
        add(zero, "z", 0);
        time->advance(0);
        QCOMPARE(log.size(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(log.size(), 2);
    }

    void zeroTimerThatStartsItselfDoesNotStopTime() {
        int count = 0;
        QTimer timer;
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, [&] {
            ++count;
            timer.start(0);
        });
        timer.start(0);
        time->advance(5);
        QVERIFY(count > 1);
        timer.stop();
    }

    void postedEventsComeBetweenTimeouts() {
        Receiver receiver;
        receiver.onEvent = [this] { log << "posted"; };
        QTimer first, second;
        add(first, "a", 10);
        add(second, "b", 11);
        connect(&first, &QTimer::timeout, [&] { QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User)); });
        time->advance(11);
        QCOMPARE(log, QStringList({"a@10", "posted", "b@11"}));
    }

    void postedEventsThatPostAreAllDelivered() {
        Receiver receiver;
        int left = 5;
        receiver.onEvent = [&] {
            if (--left > 0) {
                QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
            }
        };
        QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
        QVERIFY(time->hasPendingEvents());
        time->advance(0);
        QCOMPARE(left, 0);
        QVERIFY(!time->hasPendingEvents());
    }

    void deferredDeletionTakesPlace() {
        QPointer<QObject> object = new QObject;
        object->deleteLater();
        time->advance(0);
        QVERIFY(object.isNull());
    }

    void windowSystemEventsAreDelivered() {
        Touched widget;
        widget.resize(100, 100);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QTest::mousePress(widget.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
        time->advance(0);
        QCOMPARE(widget.presses, 1);
        QTest::mouseRelease(widget.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    }

    void waitingLoopJumpsToTheNextTimer() {
        const qint64 start = time->now();
        QEventLoop loop;
        QTimer::singleShot(2500, &loop, &QEventLoop::quit);
        loop.exec();
        QCOMPARE(time->now() - start, 2500);
    }

    void loopInsideATimeout() {
        QTimer outer, ticking;
        outer.setSingleShot(true);
        add(ticking, "t", 40);
        add(outer, "o", 50);
        connect(&outer, &QTimer::timeout, [&] {
            QEventLoop loop;
            QTimer::singleShot(50, &loop, &QEventLoop::quit);
            loop.exec();
            log << "left";
        });
        time->advance(60);
        QCOMPARE(log, QStringList({"t@40", "o@50", "t@80", "left"}));
        time->advance(20);
        QCOMPARE(log.mid(4), QStringList("t@120"));
    }

    void timerDoesNotReenterItself() {
        QTimer timer;
        int depth = 0;
        int deepest = 0;
        connect(&timer, &QTimer::timeout, [&] {
            deepest = qMax(deepest, ++depth);
            QEventLoop loop;
            QTimer::singleShot(35, &loop, &QEventLoop::quit);
            loop.exec();
            --depth;
        });
        timer.start(10);
        time->advance(100);
        QCOMPARE(deepest, 1);
    }

    void anotherThreadWakesAWaitingLoop_data() {
        QTest::addColumn<bool>("posts");
        QTest::newRow("by an event") << true;
        QTest::newRow("by ending it") << false;
    }
    void anotherThreadWakesAWaitingLoop() {
        // The other thread comes at any moment once the loop runs, also when it is only about to wait.
        QFETCH(bool, posts);
        for (int i = 0; i < 2000; ++i) {
            QEventLoop loop;
            std::atomic<bool> runs{false};
            Receiver receiver;
            receiver.onEvent = [&] { runs = true; };
            QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
            std::thread other([&] {
                while (!runs) {
                    std::this_thread::yield();
                }
                if (posts) {
                    QMetaObject::invokeMethod(
                        &loop, [&loop, i] { loop.exit(i); }, Qt::QueuedConnection);
                } else {
                    loop.exit(i);
                }
            });
            const int code = loop.exec();  // nothing to do and no timer: sleeps until woken
            other.join();
            QCOMPARE(code, i);
        }
    }

    void otherThreadsKeepTheirOwnTime() {
        QThread thread;
        thread.start();
        QTimer timer;
        timer.setSingleShot(true);
        timer.moveToThread(&thread);
        std::atomic<bool> fired{false};
        connect(&timer, &QTimer::timeout, &timer, [&] {
            fired = true;
            thread.quit();
        });
        QMetaObject::invokeMethod(&timer, "start", Qt::QueuedConnection, Q_ARG(int, 1));
        QVERIFY(thread.wait());
        QVERIFY(fired);
    }

    void registeredTimersAreListed() {
        QObject object;
        const int id = object.startTimer(70, Qt::VeryCoarseTimer);
        const QList<QAbstractEventDispatcher::TimerInfo> timers = time->registeredTimers(&object);
        QCOMPARE(timers.size(), 1);
        QCOMPARE(timers.first().timerId, id);
        QCOMPARE(timers.first().interval, 70);
        QCOMPARE(timers.first().timerType, Qt::VeryCoarseTimer);
        QVERIFY(time->unregisterTimers(&object));
        QVERIFY(!time->unregisterTimers(&object));
        QVERIFY(time->registeredTimers(&object).isEmpty());
    }
};

int main(int argc, char **argv) {
    new VirtualTime;
    QApplication application(argc, argv);
    tst_VirtualTime test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_virtualtime.moc"
