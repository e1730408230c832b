// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/settings/saveclock.h"

#include <QtGlobal>

#include <atomic>
#include <map>
#include <thread>

/// Time that stands still until it is advanced, for any number of threads.
class ManualClock : public headunit::SaveClock {
public:
    TimePoint now() const override {
        const std::lock_guard<std::mutex> own(m_mutex);
        return m_now;
    }

    void wait(std::condition_variable &wake, std::unique_lock<std::mutex> &lock, TimePoint due) override {
        quint64 number = 0;
        {
            const std::lock_guard<std::mutex> own(m_mutex);
            if (m_now >= due) {
                return;
            }
            number = ++m_waits;
            m_waiting[number] = {&wake, lock.mutex()};
            m_begun.notify_all();
        }
        wake.wait(lock);
        const std::lock_guard<std::mutex> own(m_mutex);
        m_waiting.erase(number);
    }

    void advance(int ms) {
        std::unique_lock<std::mutex> own(m_mutex);
        m_now += std::chrono::milliseconds(ms);
        m_waitsBefore = m_waits;
        // While a waiting one is in the list it holds its mutex or sleeps; it leaves the list under ours.
        for (quint64 last = 0;;) {
            const auto next = m_waiting.upper_bound(last);
            if (next == m_waiting.end() || next->first > m_waitsBefore) {
                return;
            }
            if (next->second.mutex->try_lock()) {
                next->second.wake->notify_all();
                next->second.mutex->unlock();
                last = next->first;
            } else {
                own.unlock();
                std::this_thread::yield();
                own.lock();
            }
        }
    }

    /// With a single waiting thread: returns once it has seen the time that was advanced to, and waits again.
    void settle() {
        std::unique_lock<std::mutex> own(m_mutex);
        m_begun.wait(own, [this] { return m_waits > m_waitsBefore; });
    }
    /// Whether that is so already.
    bool hasSettled() const {
        const std::lock_guard<std::mutex> own(m_mutex);
        return m_waits > m_waitsBefore;
    }

    /// Runs time, as fast as it can, until \a call returns.
    template <typename Call> void runDuring(const Call &call) {
        std::atomic<bool> ended{false};
        std::thread time([this, &ended] {
            while (!ended) {
                advance(1);
            }
        });
        call();
        ended = true;
        time.join();
    }

private:
    struct Waiting {
        std::condition_variable *wake;
        std::mutex *mutex;
    };

    mutable std::mutex m_mutex;
    std::condition_variable m_begun;
    TimePoint m_now{};
    std::map<quint64, Waiting> m_waiting;
    quint64 m_waits = 0;
    quint64 m_waitsBefore = 0;
};
