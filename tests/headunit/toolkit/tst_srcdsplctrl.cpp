// SPDX-License-Identifier: Apache-2.0
#include "eventhandler.h"
#include "headunit/toolkit/sourcedisplay.h"
#include "srcdsplctrl.h"
#include "unittest.h"

/// The source display, as an application asks for it and the host sets it.
class TestSrcDsplCtrl : public QObject {
    Q_OBJECT

private slots:
    void oneController() {
        QCOMPARE(EventHandler::instance(), EventHandler::instance());
        QVERIFY(EventHandler::instance()->control());
        QCOMPARE(EventHandler::instance()->control(), EventHandler::instance()->control());
    }

    void answersWhatTheHostSet() {
        SrcDsplCtrl *control = EventHandler::instance()->control();
        QCOMPARE(control->currentDspl(), 0);
        headunit::setCurrentSourceDisplay(5);
        QCOMPARE(control->currentDspl(), 5);
        headunit::setCurrentSourceDisplay(0);
        QCOMPARE(control->currentDspl(), 0);
    }
};

UNIT_TEST_MAIN(TestSrcDsplCtrl)
#include "tst_srcdsplctrl.moc"
