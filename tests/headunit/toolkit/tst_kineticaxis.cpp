// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/kineticaxis.h"

#include <QTest>

#include <cmath>

using headunit::KineticAxis;

/// One axis of a scroll, in pixels and ticks.
class TestKineticAxis : public QObject {
    Q_OBJECT

    /// Moves the finger by \a step pixels per tick, and lets go.
    static void flick(KineticAxis &axis, double from, double step, int ticks) {
        axis.grab(from);
        for (int i = 1; i <= ticks; ++i) {
            axis.drag(step * i);
            axis.tick();
        }
        axis.release();
    }

    static int ticksToRest(KineticAxis &axis) {
        int ticks = 0;
        while (axis.moving() && ticks < 10000) {
            axis.tick();
            ++ticks;
        }
        return ticks;
    }

private slots:
    void followsTheFinger() {
        KineticAxis axis;
        axis.setMax(1000);
        axis.grab(300);
        axis.drag(-50);
        QCOMPARE(axis.position(), 350.0);
        axis.drag(100);
        QCOMPARE(axis.position(), 200.0);
        QVERIFY(!axis.moving());
    }

    void runsOnAfterAFlickAndSlowsDown() {
        KineticAxis axis;
        axis.setMax(5000);
        flick(axis, 1000, -20, 10);
        QVERIFY(axis.moving());
        double last = axis.position();
        double lastStep = 1e9;
        for (int i = 0; i < 20; ++i) {
            axis.tick();
            const double step = axis.position() - last;
            QVERIFY(step > 0 && step < lastStep);
            lastStep = step;
            last = axis.position();
        }
        QVERIFY(ticksToRest(axis) < 200);
        // 20 px per tick with 5 % friction run about 20 / 0.05 = 400 px
        QVERIFY(axis.position() > 1200 + 350 && axis.position() < 1200 + 400);
    }

    void fingerThatRestsBeforeItLetsGoDoesNotFlick() {
        KineticAxis axis;
        axis.setMax(5000);
        axis.grab(1000);
        axis.drag(-200);
        for (int i = 0; i < 10; ++i) {
            axis.tick();
        }
        axis.release();
        QVERIFY(!axis.moving());
        QCOMPARE(axis.position(), 1200.0);
    }

    void withoutTicksThereIsNoSpeed() {
        KineticAxis axis;
        axis.setMax(5000);
        axis.grab(1000);
        axis.drag(-900);
        axis.release();
        QVERIFY(!axis.moving());
        QCOMPARE(axis.position(), 1900.0);
    }

    void speedIsLimited() {
        KineticAxis axis;
        axis.setMax(1e6);
        flick(axis, 1000, -2000, 5);
        const double before = axis.position();
        axis.tick();
        QCOMPARE(axis.position() - before, 60.0);
    }

    void endsGiveSoftlyUnderTheFinger() {
        KineticAxis axis;
        axis.setMax(1000);
        axis.grab(10);
        axis.drag(30);
        QCOMPARE(axis.position(), 0.0);
        QVERIFY(axis.overshoot() < 0 && axis.overshoot() > -20);
        axis.drag(5000);
        QCOMPARE(axis.overshoot(), -48.0);
        axis.drag(-5000);
        QCOMPARE(axis.position(), 1000.0);
        QCOMPARE(axis.overshoot(), 48.0);
    }

    void comesBackFromBeyondTheEnd() {
        KineticAxis axis;
        axis.setMax(1000);
        axis.grab(10);
        axis.drag(200);
        axis.release();
        QVERIFY(axis.moving());
        double last = axis.overshoot();
        QVERIFY(last < 0);
        while (axis.moving()) {
            axis.tick();
            QVERIFY(axis.overshoot() > last);
            last = axis.overshoot();
        }
        QCOMPARE(axis.overshoot(), 0.0);
        QCOMPARE(axis.position(), 0.0);
    }

    void fingerThatPullsBeyondTheEndDoesNotThrowFurther() {
        KineticAxis axis;
        axis.setMax(1000);
        flick(axis, 10, 20, 5);
        const double released = axis.overshoot();
        QVERIFY(released < -20);
        axis.tick();
        QVERIFY(axis.overshoot() > released);
    }

    void flickIntoTheEndRestsAtTheEnd_data() {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("end");
        QTest::newRow("last") << 700.0 << -20.0 << 1000.0;
        QTest::newRow("first") << 300.0 << 20.0 << 0.0;
    }

    void flickIntoTheEndRestsAtTheEnd() {
        QFETCH(double, from);
        QFETCH(double, step);
        QFETCH(double, end);
        KineticAxis axis;
        axis.setMax(1000);
        flick(axis, from, step, 10);
        double furthest = 0;
        for (int i = 0; i < 500 && axis.moving(); ++i) {
            axis.tick();
            furthest = std::max(furthest, std::abs(axis.overshoot()));
        }
        QVERIFY(!axis.moving());
        QCOMPARE(axis.position(), end);
        QCOMPARE(axis.overshoot(), 0.0);
        QVERIFY(furthest > 1 && furthest <= 48);
    }

    void grabStopsTheRun() {
        KineticAxis axis;
        axis.setMax(5000);
        flick(axis, 1000, -20, 10);
        axis.tick();
        axis.grab(axis.position());
        QVERIFY(!axis.moving());
        const double held = axis.position();
        axis.tick();
        QCOMPARE(axis.position(), held);
    }

    void stopStaysInsideTheEnds() {
        KineticAxis axis;
        axis.setMax(1000);
        axis.grab(0);
        axis.drag(400);
        axis.stop();
        QVERIFY(!axis.moving());
        QCOMPARE(axis.overshoot(), 0.0);
        axis.tick();
        QCOMPARE(axis.position(), 0.0);
    }
};

QTEST_APPLESS_MAIN(TestKineticAxis)
#include "tst_kineticaxis.moc"
