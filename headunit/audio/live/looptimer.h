// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <pulse/context.h>
#include <pulse/mainloop-api.h>
#include <pulse/rtclock.h>
#include <pulse/timeval.h>

#include <functional>
#include <utility>

namespace headunit {

/// Calls once, after a time, on the thread of the server's loop.
class LoopTimer {
public:
    explicit LoopTimer(std::function<void()> call) : m_call(std::move(call)) {}
    ~LoopTimer() { stop(); }
    LoopTimer(const LoopTimer &) = delete;
    LoopTimer &operator=(const LoopTimer &) = delete;

    bool isRunning() const { return m_event != nullptr; }
    /// \a api is that of the loop which \a context lives in.
    void start(pa_mainloop_api *api, pa_context *context, pa_usec_t after) {
        stop();
        m_api = api;
        m_event = pa_context_rttime_new(context, pa_rtclock_now() + after, fire, this);
    }
    void stop() {
        if (m_event) {
            m_api->time_free(m_event);
            m_event = nullptr;
        }
    }

private:
    static void fire(pa_mainloop_api *, pa_time_event *, const timeval *, void *data) {
        LoopTimer &timer = *static_cast<LoopTimer *>(data);
        timer.stop();
        const auto call = timer.m_call;  // which may be the end of the timer
        call();
    }

    const std::function<void()> m_call;
    pa_mainloop_api *m_api = nullptr;
    pa_time_event *m_event = nullptr;
};

}  // namespace headunit
