// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTimer>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <time.h>

namespace headunit {

/// Watches that a command does not keep the GUI thread from the unit's own work. What counts is the thread's processor
/// time since it last came to its event loop, so that a busy machine is no fault of the command.
class CommandWatch : public QObject {
public:
    /// \a tooLong is called on a thread of the watch, once a command.
    CommandWatch(int milliseconds, std::function<void()> tooLong);
    ~CommandWatch() override;

    void begin();
    /// Whether the command was within its time.
    bool end();

private:
    void run();
    qint64 now() const;

    const qint64 m_most;
    const std::function<void()> m_tooLong;
    clockid_t m_clock{};
    QTimer m_beat;
    std::atomic<qint64> m_since{0};
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_watching = false;
    bool m_tooLongSaid = false;
    bool m_ending = false;
    std::thread m_thread;
};

}  // namespace headunit
