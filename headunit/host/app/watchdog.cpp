// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/watchdog.h"

#include <cstdio>
#include <system_error>
#include <utility>

namespace headunit {

namespace {

/// 5 s are "5", 50 ms "0.05".
std::string seconds(Watchdog::Milliseconds time) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", double(time.count()) / 1000);
    return text;
}

}  // namespace

Watchdog::Watchdog(Milliseconds limit, Say say, Clock clock)
    : m_limit(limit), m_say(std::move(say)), m_clock(std::move(clock)) {}

Watchdog::~Watchdog() {
    if (m_thread.joinable()) {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_end = true;
        }
        m_ended.notify_one();
        m_thread.join();
    }
}

Watchdog::Milliseconds Watchdog::steadyClock() {
    return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

bool Watchdog::start() {
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        return false;
    }
    return true;
}

void Watchdog::begin(const char *application, const char *what) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_application = application;
    m_what = what;
    m_since = m_clock();
    m_waits = false;
    m_said = false;
}

void Watchdog::end() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_application = nullptr;
}

void Watchdog::pause() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waits = true;
}

void Watchdog::goOn() {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waits = false;
    if (m_application) {
        m_since = m_clock();
    }
}

Watchdog::Milliseconds Watchdog::look() {
    std::string line;
    Milliseconds next = m_limit;  // a call that has not begun yet cannot be too long before
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_application && !m_waits && !m_said) {
            const Milliseconds left = m_since + m_limit - m_clock();
            if (left > Milliseconds(0)) {
                next = left;
            } else {
                m_said = true;
                line = std::string(m_application) + ": has blocked the unit for " + seconds(m_limit) + " s (" + m_what +
                       ")";
            }
        }
    }
    if (!line.empty()) {
        m_say(line);
    }
    return next;
}

void Watchdog::run() {
    for (;;) {
        const Milliseconds next = look();
        std::unique_lock<std::mutex> lock(m_mutex);
        if (m_ended.wait_for(lock, next, [this] { return m_end; })) {
            return;
        }
    }
}

}  // namespace headunit
