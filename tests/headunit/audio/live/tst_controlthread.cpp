// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/controlthread.h"

#include <QTest>

#include <future>
#include <vector>

using headunit::ControlThread;
using headunit::SoundState;

namespace {

SoundState balanced(int balance) {
    SoundState state;
    state.balance = balance;
    return state;
}

}  // namespace

class TestControlThread : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void takesOnAThreadOfItsOwn();
    void takesTheLastOfMany();
    void waitsForWhatIsBeingTaken();
};

void TestControlThread::takesOnAThreadOfItsOwn() {
    std::promise<std::pair<int, std::thread::id>> taken;
    ControlThread control([&taken](const SoundState &state) {
        taken.set_value({state.balance, std::this_thread::get_id()});
    });
    control.setState(balanced(3));
    const auto [balance, thread] = taken.get_future().get();
    QCOMPARE(balance, 3);
    QVERIFY(thread != std::this_thread::get_id());
}

void TestControlThread::takesTheLastOfMany() {
    std::vector<int> taken;
    std::promise<void> begun;
    std::promise<void> mayGoOn;
    std::promise<void> ended;
    ControlThread control([&](const SoundState &state) {
        taken.push_back(state.balance);
        if (state.balance == 1) {
            begun.set_value();
            mayGoOn.get_future().wait();
        } else if (state.balance == 15) {
            ended.set_value();
        }
    });
    control.setState(balanced(1));
    begun.get_future().wait();
    for (int balance = 2; balance <= 15; ++balance) {
        control.setState(balanced(balance));
    }
    mayGoOn.set_value();
    ended.get_future().wait();
    QCOMPARE(taken, (std::vector<int>{1, 15}));
}

void TestControlThread::waitsForWhatIsBeingTaken() {
    std::promise<void> begun;
    bool ended = false;
    {
        ControlThread control([&](const SoundState &) {
            begun.set_value();
            std::this_thread::yield();
            ended = true;
        });
        control.setState(balanced(1));
        begun.get_future().wait();
    }
    QVERIFY(ended);
    const ControlThread idle([](const SoundState &) {});
}

QTEST_APPLESS_MAIN(TestControlThread)
#include "tst_controlthread.moc"
