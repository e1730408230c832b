// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractEventDispatcher>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <vector>

namespace headunit {

/// The event dispatcher of a GUI thread whose timers run in virtual time: nothing waits for the clock on the wall.
///
/// Construct it before the application object, which then uses it; Qt owns it from then on. Time stands still
/// until advance() moves it, or an event loop has nothing else to do: a loop that waits (QDialog::exec()) jumps
/// to the next timer. Without a timer it sleeps until another thread posts an event.
///
/// All timers are exact, whatever their Qt::TimerType, unless setCoarseTimersLate(). Socket notifiers are not served.
class VirtualTime : public QAbstractEventDispatcher {
    Q_OBJECT
public:
    VirtualTime();
    ~VirtualTime() override;

    /// The dispatcher of this process, or null.
    static VirtualTime *instance();

    /// Virtual milliseconds since the start.
    qint64 now() const { return m_now; }
    /// Timers that start from now on without Qt::PreciseTimer are late by the 5 % that Qt allows them: a product that
    /// owes a time must not use them.
    void setCoarseTimersLate(bool late) { m_coarseLate = late; }
    /// Moves time by \a ms: runs what is due in the order of time, then of registration, and delivers posted and
    /// window-system events before, between and after. Deferred deletions take place when no loop runs.
    void advance(int ms);

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
    bool hasPendingEvents() override;
    void registerSocketNotifier(QSocketNotifier *notifier) override;
    void unregisterSocketNotifier(QSocketNotifier *notifier) override;
    void registerTimer(int timerId, int interval, Qt::TimerType timerType, QObject *object) override;
    bool unregisterTimer(int timerId) override;
    bool unregisterTimers(QObject *object) override;
    QList<TimerInfo> registeredTimers(QObject *object) const override;
    int remainingTime(int timerId) override;
    void wakeUp() override;
    void interrupt() override;
    void flush() override {}

private:
    struct Timer {
        int id;
        int interval;
        Qt::TimerType type;
        int lateness;  ///< ms added to each interval
        QObject *object;
        qint64 due;
        quint64 serial;  ///< order of registration, and the identity of a timer whose id is used again
        quint64 pass;    ///< the last pass that ran it, so that a zero timer runs once in each
        bool running;    ///< its event is being delivered
    };

    Timer *find(quint64 serial);
    const Timer *next() const;
    void fire(quint64 serial);
    bool runDue(quint64 pass);
    bool deliver(QEventLoop::ProcessEventsFlags flags);
    void settle();
    bool woken();
    bool takeWoken();

    std::vector<Timer> m_timers;
    bool m_coarseLate = false;
    qint64 m_now = 0;
    quint64 m_serial = 0;
    quint64 m_pass = 0;

    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_woken = false;
    std::atomic<bool> m_interrupted{false};
};

}  // namespace headunit
