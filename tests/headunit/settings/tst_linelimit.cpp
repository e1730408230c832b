// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/linelimit.h"

#include <QtTest>

using namespace headunit;

class tst_LineLimit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void oneASecondOfEachKind();
    void steadyClock();
};

void tst_LineLimit::oneASecondOfEachKind() {
    qint64 time = 5000;
    setLineClock([&time] { return time; });
    QVERIFY(lineMayPass("volume"));
    QVERIFY(!lineMayPass("volume"));
    QVERIFY(lineMayPass("balance"));
    time = 5999;
    QVERIFY(!lineMayPass("volume"));
    QVERIFY(!lineMayPass(QStringLiteral("balance")));
    time = 6000;
    QVERIFY(lineMayPass("volume"));
    time = 6999;
    QVERIFY(!lineMayPass("volume"));
    QVERIFY(lineMayPass("balance"));
    setLineClock([] { return qint64(0); });
    QVERIFY(lineMayPass("volume"));  // another clock has seen nothing yet
}

void tst_LineLimit::steadyClock() {
    setLineClock({});
    // Far more than there are seconds, however slow the machine is.
    constexpr int asked = 200000;
    QElapsedTimer timer;
    timer.start();
    int passed = 0;
    for (int i = 0; i < asked; ++i) {
        passed += lineMayPass("volume") ? 1 : 0;
    }
    QVERIFY(passed >= 1 && passed <= 2 + timer.elapsed() / 1000);
}

QTEST_APPLESS_MAIN(tst_LineLimit)
#include "tst_linelimit.moc"
