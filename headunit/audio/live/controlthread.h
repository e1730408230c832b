// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace headunit {

/// Designs parameters from sound states on a thread of its own: that costs more than all else that happens while a
/// finger drags a slider.
class ControlThread {
public:
    using Taker = std::function<void(const SoundState &)>;

    /// \a take gets the states, on the thread.
    explicit ControlThread(Taker take);
    /// Waits until a state that is being taken has been; one that was not taken yet is dropped.
    ~ControlThread();

    /// Returns at once, unless no thread is to be had. Of states that come while one is being taken only the last one
    /// is taken.
    void setState(const SoundState &state);

private:
    void run();

    const Taker m_take;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<SoundState> m_next;
    bool m_ending = false;
    std::thread m_thread;
};

}  // namespace headunit
