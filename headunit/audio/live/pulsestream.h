// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deviceplan.h"
#include "looptimer.h"

#include <pulse/stream.h>

#include <atomic>

namespace headunit {

/// The unit's sound on one device of the server, from silence to silence. Everything happens on the server's thread.
class PulseStream {
public:
    class Listener {
    public:
        /// From now on it is heard.
        virtual void streamBegun() = 0;
        /// The end has been heard. The stream may be deleted.
        virtual void streamEnded() = 0;
        /// The server ended it. The stream may be deleted.
        virtual void streamLost() = 0;
        /// The server would not begin it; the context tells why. The stream may be deleted.
        virtual void streamRefused() = 0;

    protected:
        ~Listener() = default;
    };

    /// Requests to the server beyond the plan.
    struct Manner {
        pa_usec_t bufferedTime;
        pa_usec_t requestTime;  ///< how much the server asks for at a time; 0: as it likes
    };

    /// Begins to play. \a dropouts counts the times when the server had nothing left to play.
    PulseStream(pa_mainloop_api *api, pa_context *context, const DevicePlan &plan, const Manner &manner, Player &player,
                std::atomic<unsigned> &dropouts, Listener &listener);
    /// Cuts off what still plays.
    ~PulseStream();
    PulseStream(const PulseStream &) = delete;
    PulseStream &operator=(const PulseStream &) = delete;

    /// Whether the server has not refused it.
    bool isGood() const { return m_stream && PA_STREAM_IS_GOOD(pa_stream_get_state(m_stream)); }
    /// The device, as the server counts them.
    uint32_t deviceIndex() const { return pa_stream_get_device_index(m_stream); }

    /// Lets the sound fall to silence, and tells the listener once that has been heard, or nobody can hear it.
    void end();
    bool isEnding() const { return m_ending; }
    /// Whether the server has asked for nothing for so long that nobody hears anything any more.
    bool isStalled() const;

private:
    void connect(const DevicePlan &plan, const Manner &manner);
    void stateChanged();
    void write(size_t bytes);
    void drain();

    pa_mainloop_api *const m_api;
    pa_context *const m_context;
    Player &m_player;
    DeviceSound m_sound;
    std::atomic<unsigned> &m_dropouts;
    Listener &m_listener;
    LoopTimer m_endLimit;
    pa_stream *m_stream = nullptr;
    pa_operation *m_drain = nullptr;
    pa_usec_t m_lastWrite;
    bool m_begun = false;
    bool m_ending = false;
};

}  // namespace headunit
