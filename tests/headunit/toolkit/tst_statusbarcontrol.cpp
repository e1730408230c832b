// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/trace.h"
#include "headunit/toolkit/statusbar.h"
#include "statusbarcontrol.h"
#include "unittest.h"

/// The status bar, as applications hide and show it and the host follows.
class TestStatusBarControl : public QObject {
    Q_OBJECT

private slots:
    void oneObject() { QCOMPARE(cm::StatusBarControl::instance(), cm::StatusBarControl::instance()); }

    void observerIsToldEachChange() {
        QList<bool> seen;
        QVERIFY(!headunit::statusBarHidden());
        headunit::setStatusBarObserver([&](bool hidden) { seen << hidden << headunit::statusBarHidden(); });
        auto *control = cm::StatusBarControl::instance();
        control->sethide(false);
        QCOMPARE(seen, QList<bool>());
        control->sethide(true);
        control->sethide(true);
        control->sethide(false);
        QCOMPARE(seen, (QList<bool>{true, true, false, false}));
        headunit::setStatusBarObserver({});
        control->sethide(true);
        QCOMPARE(seen.size(), 4);
        QVERIFY(headunit::statusBarHidden());
        control->sethide(false);
    }

    void eachCallIsTraced() {
        QStringList calls;
        const headunit::TraceListener listener(
            [&](const headunit::TraceEntry &entry) { calls << entry.call + ": " + entry.meaning; });
        cm::StatusBarControl::instance()->sethide(true);
        cm::StatusBarControl::instance()->sethide(true);
        cm::StatusBarControl::instance()->sethide(false);
        QCOMPARE(calls, (QStringList{"sethide(true): hide the status bar", "sethide(true): hide the status bar",
                                     "sethide(false): show the status bar"}));
    }
};

UNIT_TEST_MAIN(TestStatusBarControl)
#include "tst_statusbarcontrol.moc"
