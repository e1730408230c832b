// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/watchdog.h"

#include <QTest>

using headunit::Watchdog;
using Milliseconds = Watchdog::Milliseconds;

class TestWatchdog : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void namesWhatDoesNotReturn();
    void saysItOnceForEachCall();
    void isSilentAboutWhatReturns();
    void timeInAnEventLoopDoesNotCount();
    void looksFromItsThread();

private:
    Milliseconds look() { return m_dog->look(); }

    Milliseconds m_now{};
    std::vector<std::string> m_lines;
    std::unique_ptr<Watchdog> m_dog;
};

void TestWatchdog::init() {
    m_now = Milliseconds(1000000);
    m_lines.clear();
    m_dog = std::make_unique<Watchdog>(
        Milliseconds(5000), [this](const std::string &line) { m_lines.push_back(line); }, [this] { return m_now; });
}

void TestWatchdog::namesWhatDoesNotReturn() {
    QCOMPARE(look(), Milliseconds(5000));
    m_dog->begin("a.so", "onShow");
    m_now += Milliseconds(4999);
    QCOMPARE(look(), Milliseconds(1));
    QCOMPARE(int(m_lines.size()), 0);
    m_now += Milliseconds(1);
    look();
    QCOMPARE(int(m_lines.size()), 1);
    QCOMPARE(m_lines[0], std::string("a.so: has blocked the unit for 5 s (onShow)"));
}

void TestWatchdog::saysItOnceForEachCall() {
    for (const char *what : {"onShow", "onEnter"}) {
        m_dog->begin("a.so", what);
        m_now += Milliseconds(5000);
        look();
        m_now += Milliseconds(60000);
        look();
        m_dog->end();
    }
    QCOMPARE(int(m_lines.size()), 2);
    QCOMPARE(m_lines[1], std::string("a.so: has blocked the unit for 5 s (onEnter)"));
}

void TestWatchdog::isSilentAboutWhatReturns() {
    for (int i = 0; i < 10; ++i) {
        m_dog->begin("a.so", "onShow");
        m_now += Milliseconds(4000);
        look();
        m_dog->end();
        look();
    }
    m_now += Milliseconds(60000);
    look();
    QCOMPARE(int(m_lines.size()), 0);
}

void TestWatchdog::timeInAnEventLoopDoesNotCount() {
    m_dog->begin("a.so", "onShow");
    m_now += Milliseconds(4000);
    m_dog->pause();
    m_now += Milliseconds(60000);
    look();
    m_dog->goOn();
    m_now += Milliseconds(4000);
    look();
    QCOMPARE(int(m_lines.size()), 0);
    m_now += Milliseconds(1000);
    look();
    QCOMPARE(int(m_lines.size()), 1);
}

void TestWatchdog::looksFromItsThread() {
    std::mutex mutex;
    std::condition_variable said;
    std::string line;
    Watchdog dog(Milliseconds(1), [&](const std::string &text) {
        const std::lock_guard<std::mutex> lock(mutex);
        line = text;
        said.notify_one();
    });
    QVERIFY(dog.start());
    dog.begin("a.so", "onShow");
    std::unique_lock<std::mutex> lock(mutex);
    said.wait(lock, [&] { return !line.empty(); });
    QCOMPARE(line, std::string("a.so: has blocked the unit for 0.001 s (onShow)"));
    lock.unlock();
    dog.end();
}

QTEST_APPLESS_MAIN(TestWatchdog)
#include "tst_watchdog.moc"
