// SPDX-License-Identifier: Apache-2.0
#include "controlthread.h"

#include <utility>

namespace headunit {

ControlThread::ControlThread(Taker take) : m_take(std::move(take)), m_thread([this] { run(); }) {}

ControlThread::~ControlThread() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void ControlThread::setState(const SoundState &state) {
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
