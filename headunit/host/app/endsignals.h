// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <functional>
#include <thread>

#include <signal.h>

namespace headunit {

/// Makes an orderly end of what would end the process at once: a service manager's request (SIGTERM), Ctrl-C (SIGINT),
/// a terminal that goes (SIGHUP). The second one of a kind ends the process all the same, should the first not do.
/// A signal that is ignored at the start, as with nohup, stays ignored. One object at a time.
class EndSignals {
public:
    /// \a ended is called with the signal's number, on a thread of its own.
    explicit EndSignals(std::function<void(int)> ended);
    /// Back to how it was.
    ~EndSignals();
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;

private:
    static constexpr std::array<int, 3> numbers = {SIGTERM, SIGINT, SIGHUP};

    void run();

    const std::function<void(int)> m_ended;
    std::array<struct sigaction, numbers.size()> m_before{};
    std::thread m_thread;
};

/// The first such signal that came, or 0.
int receivedEndSignal();

}  // namespace headunit
