// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/systembus.h"

#include "fakelogind.h"
#include "testbus.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <memory>

using namespace headunit;

namespace {

constexpr int patience = 60000;  // ms

}  // namespace

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)

class TestDeskSleep : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { TestBus::setAddress(m_folder); }
    void init();
    void theDeskWaitsForSilence();
    void aSleepThatIsCalledOffIsOver();
    void logindComesLater();
    void nobodyAnswers();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<TestBus> m_bus;
};

void TestDeskSleep::init() {
    m_bus.reset();
    m_bus = std::make_unique<TestBus>(m_folder);
}

void TestDeskSleep::theDeskWaitsForSilence() {
    FakeLogind logind;
    SystemBus unit;
    QSignalSpy sleeps(&unit, &SystemBus::aboutToSleep);
    QSignalSpy wakes(&unit, &SystemBus::woke);
    for (int night = 1; night <= 3; ++night) {
        WAIT_FOR(logind.isDelayed());
        Q_EMIT logind.PrepareForSleep(true);
        WAIT_FOR(sleeps.count() == night);
        QVERIFY(logind.isDelayed());
        Q_EMIT unit.silent();
        WAIT_FOR(!logind.isDelayed());
        QCOMPARE(wakes.count(), night - 1);
        Q_EMIT logind.PrepareForSleep(false);
        WAIT_FOR(wakes.count() == night);
    }
    WAIT_FOR(logind.requests() == QStringList({"sleep delay", "sleep delay", "sleep delay", "sleep delay"}));
    QCOMPARE(sleeps.count(), 3);
}

/// Silence that comes late is none of the next sleep's.
void TestDeskSleep::aSleepThatIsCalledOffIsOver() {
    FakeLogind logind;
    SystemBus unit;
    QSignalSpy wakes(&unit, &SystemBus::woke);
    WAIT_FOR(logind.isDelayed());
    Q_EMIT logind.PrepareForSleep(true);
    Q_EMIT logind.PrepareForSleep(false);
    WAIT_FOR(wakes.count() == 1 && logind.requests().count() == 2);
    Q_EMIT unit.silent();
    Q_EMIT logind.PrepareForSleep(true);
    Q_EMIT logind.PrepareForSleep(false);
    WAIT_FOR(wakes.count() == 2 && logind.requests().count() == 3);
    WAIT_FOR(logind.isDelayed());
}

void TestDeskSleep::logindComesLater() {
    SystemBus unit;
    auto logind = std::make_unique<FakeLogind>();
    WAIT_FOR(logind->isDelayed());
    logind.reset();
    logind = std::make_unique<FakeLogind>();
    WAIT_FOR(logind->isDelayed());
    QSignalSpy sleeps(&unit, &SystemBus::aboutToSleep);
    Q_EMIT logind->PrepareForSleep(true);
    WAIT_FOR(sleeps.count() == 1);
}

void TestDeskSleep::nobodyAnswers() {
    static std::atomic<int> messages{0};
    messages = 0;
    const auto usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
    {
        SystemBus unit;
        Q_EMIT unit.silent();
    }
    m_bus.reset();
    SystemBus unit;
    const bool hasNothingToDo = unit.wait(patience);
    qInstallMessageHandler(usual);
    QVERIFY(hasNothingToDo);
    QCOMPARE(messages, 0);
}

QTEST_GUILESS_MAIN(TestDeskSleep)
#include "tst_desksleep.moc"
