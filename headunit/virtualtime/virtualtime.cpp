// SPDX-License-Identifier: Apache-2.0
#include "headunit/virtualtime/virtualtime.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimerEvent>

#include <qpa/qwindowsysteminterface.h>

#include <algorithm>
#include <utility>

extern uint qGlobalPostedEventsCount();

namespace headunit {

namespace {

/// Rounds of events that lead to further events at one moment. More is a loop that never ends: time moves on.
constexpr int maxRounds = 1000;

VirtualTime *s_instance = nullptr;

}  // namespace

VirtualTime::VirtualTime() {
    s_instance = this;
    QCoreApplication::setEventDispatcher(this);
}

VirtualTime::~VirtualTime() {
    s_instance = nullptr;
}

VirtualTime *VirtualTime::instance() {
    return s_instance;
}

void VirtualTime::advance(int ms) {
    const qint64 target = m_now + ms;
    settle();
    for (const Timer *timer = next(); timer && timer->due <= target; timer = next()) {
        m_now = std::max(m_now, timer->due);
        fire(timer->serial);
        settle();
    }
    m_now = std::max(m_now, target);  // a loop inside a timeout may already have jumped further
}

/// Delivers everything that can be delivered without moving time.
void VirtualTime::settle() {
    const quint64 pass = ++m_pass;
    for (int round = 0; round < maxRounds; ++round) {
        const bool didEvents = deliver(QEventLoop::AllEvents);
        if (QThread::currentThread()->loopLevel() == 0) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const bool didTimers = runDue(pass);
        if (!didEvents && !didTimers) {
            return;
        }
    }
}

bool VirtualTime::deliver(QEventLoop::ProcessEventsFlags flags) {
    const bool posted = takeWoken();
    QCoreApplication::sendPostedEvents();
    return QWindowSystemInterface::sendWindowSystemEvents(flags) || posted;
}

/// Runs each zero timer that this pass has not yet run, and each overdue one. Timers that start meanwhile wait for the
/// next call.
bool VirtualTime::runDue(quint64 pass) {
    bool any = false;
    const quint64 last = m_serial;
    for (;;) {
        const Timer *first = nullptr;
        for (const Timer &timer : m_timers) {
            const bool due = timer.interval == 0 ? timer.pass < pass : timer.due <= m_now;
            if (due && !timer.running && timer.serial <= last && (!first || timer.due < first->due)) {
                first = &timer;
            }
        }
        if (!first) {
            return any;
        }
        find(first->serial)->pass = pass;
        fire(first->serial);
        any = true;
    }
}

bool VirtualTime::processEvents(QEventLoop::ProcessEventsFlags flags) {
    m_interrupted = false;
    emit awake();
    bool any = deliver(flags);
    if (!flags.testFlag(QEventLoop::X11ExcludeTimers)) {
        any = runDue(++m_pass) || any;
    }
    if (any || woken() || !flags.testFlag(QEventLoop::WaitForMoreEvents) || m_interrupted) {
        return any;
    }

    const Timer *timer = flags.testFlag(QEventLoop::X11ExcludeTimers) ? nullptr : next();
    if (timer) {
        m_now = std::max(m_now, timer->due);
        fire(timer->serial);
        return true;
    }
    emit aboutToBlock();
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_condition.wait(lock, [this] { return m_woken || m_interrupted; });
    }
    emit awake();
    return deliver(flags);
}

bool VirtualTime::hasPendingEvents() {
    return qGlobalPostedEventsCount() || QWindowSystemInterface::windowSystemEventsQueued();
}

const VirtualTime::Timer *VirtualTime::next() const {
    const Timer *first = nullptr;
    for (const Timer &timer : m_timers) {
        if (!timer.running && timer.interval > 0 && (!first || timer.due < first->due)) {
            first = &timer;
        }
    }
    return first;
}

VirtualTime::Timer *VirtualTime::find(quint64 serial) {
    const auto it = std::find_if(m_timers.begin(), m_timers.end(), [=](const Timer &t) { return t.serial == serial; });
    return it == m_timers.end() ? nullptr : &*it;
}

/// Delivers one timeout. The receiver may start and stop timers, run a loop, or be gone afterwards.
void VirtualTime::fire(quint64 serial) {
    Timer *timer = find(serial);
    timer->due += timer->interval + timer->lateness;
    timer->running = true;
    QTimerEvent event(timer->id);
    QCoreApplication::sendEvent(timer->object, &event);
    timer = find(serial);
    if (timer) {
        timer->running = false;
        // A timeout that came due while the timer's own timeout ran a loop is lost, as on a real unit.
        while (timer->interval > 0 && timer->due <= m_now) {
            timer->due += timer->interval + timer->lateness;
        }
    }
}

void VirtualTime::registerSocketNotifier(QSocketNotifier *) {
    qWarning("Virtual time serves no socket notifiers");
}

void VirtualTime::unregisterSocketNotifier(QSocketNotifier *) {}

void VirtualTime::registerTimer(int timerId, int interval, Qt::TimerType timerType, QObject *object) {
    const int lateness = m_coarseLate && timerType != Qt::PreciseTimer ? interval / 20 : 0;
    m_timers.push_back(
        {timerId, interval, timerType, lateness, object, m_now + interval + lateness, ++m_serial, 0, false});
}

bool VirtualTime::unregisterTimer(int timerId) {
    const auto it = std::find_if(m_timers.begin(), m_timers.end(), [=](const Timer &t) { return t.id == timerId; });
    if (it == m_timers.end()) {
        return false;
    }
    m_timers.erase(it);
    return true;
}

bool VirtualTime::unregisterTimers(QObject *object) {
    const auto end =
        std::remove_if(m_timers.begin(), m_timers.end(), [=](const Timer &t) { return t.object == object; });
    const bool any = end != m_timers.end();
    m_timers.erase(end, m_timers.end());
    return any;
}

QList<QAbstractEventDispatcher::TimerInfo> VirtualTime::registeredTimers(QObject *object) const {
    QList<TimerInfo> list;
    for (const Timer &timer : m_timers) {
        if (timer.object == object) {
            list << TimerInfo(timer.id, timer.interval, timer.type);
        }
    }
    return list;
}

int VirtualTime::remainingTime(int timerId) {
    const auto it = std::find_if(m_timers.begin(), m_timers.end(), [=](const Timer &t) { return t.id == timerId; });
    return it == m_timers.end() ? -1 : static_cast<int>(std::max<qint64>(0, it->due - m_now));
}

bool VirtualTime::woken() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_woken;
}

bool VirtualTime::takeWoken() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_woken, false);
}

void VirtualTime::wakeUp() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_woken = true;
    }
    m_condition.notify_all();
}

void VirtualTime::interrupt() {
    m_interrupted = true;
    wakeUp();  // also for a loop that is only about to wait
}

}  // namespace headunit
