// SPDX-License-Identifier: Apache-2.0
#include "controlthread.h"

#include <system_error>
#include <utility>

namespace headunit {

ControlThread::ControlThread(Taker take) : m_take(std::move(take)) {
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        // setState() then takes the states itself
    }
}

ControlThread::~ControlThread() {
    if (!m_thread.joinable()) {
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void ControlThread::setState(const SoundState &state) {
    if (!m_thread.joinable()) {
        m_take(state);
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_next = state;
    }
    m_wake.notify_one();
}

void ControlThread::run() {
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_ending || m_next; });
        if (m_ending) {
            return;
        }
        const SoundState state = *std::exchange(m_next, std::nullopt);
        lock.unlock();
        m_take(state);
        lock.lock();
    }
}

}  // namespace headunit
