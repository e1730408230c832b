// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace headunit {

/// The time by which settings are saved and given up on: the steady clock, unless something else stands in for it.
class SaveClock {
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    static constexpr TimePoint never = TimePoint::max();

    SaveClock() = default;
    virtual ~SaveClock() = default;
    SaveClock(const SaveClock &) = delete;
    SaveClock &operator=(const SaveClock &) = delete;

    virtual TimePoint now() const { return std::chrono::steady_clock::now(); }
    /// Returns once \a wake is notified or it is \a due, and now and then without a reason.
    virtual void wait(std::condition_variable &wake, std::unique_lock<std::mutex> &lock, TimePoint due) {
        if (due == never) {
            wake.wait(lock);
        } else {
            wake.wait_until(lock, due);
        }
    }
};

}  // namespace headunit
