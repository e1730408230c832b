// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/remote/commandwatch.h"

#include <chrono>
#include <utility>

#include <pthread.h>

namespace headunit {

namespace {

constexpr std::chrono::milliseconds period(100);

}  // namespace

CommandWatch::CommandWatch(int milliseconds, std::function<void()> tooLong)
    : m_most(milliseconds), m_tooLong(std::move(tooLong)) {
    pthread_getcpuclockid(pthread_self(), &m_clock);
    m_beat.setInterval(period);
    connect(&m_beat, &QTimer::timeout, this, [this] { m_since = now(); });
    m_thread = std::thread([this] { run(); });
}

CommandWatch::~CommandWatch() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void CommandWatch::begin() {
    m_since = now();
    m_beat.start();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_watching = true;
        m_tooLongSaid = false;
    }
    m_wake.notify_one();
}

bool CommandWatch::end() {
    m_beat.stop();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_watching = false;
    return !m_tooLongSaid;
}

void CommandWatch::run() {
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ending) {
        if (!m_watching || m_tooLongSaid) {
            m_wake.wait(lock);
            continue;
        }
        m_wake.wait_for(lock, period);
        if (m_watching && !m_ending && now() - m_since > m_most) {
            m_tooLongSaid = true;
            m_tooLong();  // under the lock: after end() it is too late
        }
    }
}

/// Processor time of the GUI thread in ms.
qint64 CommandWatch::now() const {
    timespec time{};
    clock_gettime(m_clock, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

}  // namespace headunit
