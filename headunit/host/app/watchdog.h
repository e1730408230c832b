// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace headunit {

/// Names an application that does not return from a call, and so blocks the unit: a line once for each such call, while
/// it blocks.
class Watchdog {
public:
    using Milliseconds = std::chrono::milliseconds;
    using Clock = std::function<Milliseconds()>;
    using Say = std::function<void(const std::string &)>;

    /// \a say gets the line, on the thread that looks. \a clock need not be the clock on the wall; it only moves on.
    Watchdog(Milliseconds limit, Say say, Clock clock = steadyClock);
    ~Watchdog();
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    /// Looks from a thread of its own from now on. False where there is no thread to be had.
    bool start();

    /// An application is called; \a what it is called for. The texts must outlive the call.
    void begin(const char *application, const char *what);
    /// It returned.
    void end();
    /// An event loop inside the call waits for something to do, and has something to do again.
    void pause();
    void goOn();

    /// Says what there is to say. How long it may take until the next look.
    Milliseconds look();

private:
    static Milliseconds steadyClock();
    void run();

    const Milliseconds m_limit;
    const Say m_say;
    const Clock m_clock;

    std::mutex m_mutex;
    const char *m_application = nullptr;  ///< null: none is called
    const char *m_what = nullptr;
    Milliseconds m_since{};
    bool m_waits = false;
    bool m_said = false;

    std::condition_variable m_ended;
    bool m_end = false;
    std::thread m_thread;
};

}  // namespace headunit
