// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/systembus.h"

#include "fakerealtimekit.h"
#include "headunit/audio/live/realtime.h"
#include "testbus.h"

#include <QSignalSpy>
#include <QTest>

#include <csignal>

#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace headunit;

namespace {

constexpr int patience = 60000;  // ms

}  // namespace

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)

class TestRealtimeKit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void givesRealTime_data();
    void givesRealTime();
    void refuses();
    void asksForTooLittle();
    void isNotThere();
    void whoWorksForTooLongLosesIt();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<TestBus> m_bus;
};

void TestRealtimeKit::initTestCase() {
    TestBus::setAddress(m_folder);
    m_bus = std::make_unique<TestBus>(m_folder);
}

void TestRealtimeKit::givesRealTime_data() {
    QTest::addColumn<int>("highest");
    QTest::addColumn<uint>("priority");
    QTest::newRow("usual") << 20 << 4U;
    QTest::newRow("low") << 2 << 2U;
}

void TestRealtimeKit::givesRealTime() {
    QFETCH(int, highest);
    QFETCH(uint, priority);
    FakeRealtimeKit kit;
    kit.highest = highest;
    SystemBus unit;
    QSignalSpy answers(&unit, &SystemBus::answeredRealTime);
    unit.askForRealTime(gettid());
    WAIT_FOR(answers.count() == 1);
    QCOMPARE(answers[0][0].toBool(), true);
    QCOMPARE(answers[0][1].toString(), QStringLiteral("real time by RealtimeKit, priority %1").arg(priority));
    QCOMPARE(kit.requests.count(), 1);
    QCOMPARE(kit.requests[0].thread, static_cast<qulonglong>(gettid()));
    QCOMPARE(kit.requests[0].priority, priority);
    QVERIFY(kit.requests[0].isLimited);
}

void TestRealtimeKit::refuses() {
    FakeRealtimeKit kit;
    kit.refusal = "too many threads";
    SystemBus unit;
    QSignalSpy answers(&unit, &SystemBus::answeredRealTime);
    unit.askForRealTime(gettid());
    WAIT_FOR(answers.count() == 1);
    QCOMPARE(answers[0][0].toBool(), false);
    QCOMPARE(answers[0][1].toString(), QString("RealtimeKit: too many threads"));
}

/// Words that the machine must not take for a limit of no time at all.
void TestRealtimeKit::asksForTooLittle() {
    rlimit before{};
    getrlimit(RLIMIT_RTTIME, &before);
    QVERIFY(!limitRealTime(gettid(), 0));
    QVERIFY(!limitRealTime(gettid(), -1));
    rlimit after{};
    getrlimit(RLIMIT_RTTIME, &after);
    QCOMPARE(after.rlim_max, before.rlim_max);
    QCOMPARE(after.rlim_cur, before.rlim_cur);
}

void TestRealtimeKit::isNotThere() {
    SystemBus unit;
    QSignalSpy answers(&unit, &SystemBus::answeredRealTime);
    unit.askForRealTime(gettid());
    FakeRealtimeKit kit;  // comes too late, but a second request finds it
    unit.askForRealTime(gettid());
    WAIT_FOR(answers.count() >= 1);
    QVERIFY(answers[0][0].toBool());
}

void TestRealtimeKit::whoWorksForTooLongLosesIt() {
    QVERIFY(limitRealTime(gettid(), 200000));
    rlimit limit{};
    getrlimit(RLIMIT_RTTIME, &limit);
    QVERIFY(limit.rlim_cur <= limit.rlim_max / 2);
    QVERIFY(!hasLostRealTime());
    raise(SIGXCPU);  // as the kernel does
    QVERIFY(hasLostRealTime());
    QCOMPARE(sched_getscheduler(0) & ~SCHED_RESET_ON_FORK, SCHED_OTHER);
}

QTEST_GUILESS_MAIN(TestRealtimeKit)
#include "tst_realtimekit.moc"
