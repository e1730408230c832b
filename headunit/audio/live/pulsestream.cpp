// SPDX-License-Identifier: Apache-2.0
#include "pulsestream.h"

#include "player.h"

#include <pulse/operation.h>
#include <pulse/proplist.h>

#include <algorithm>
#include <utility>

namespace headunit {

namespace {

constexpr pa_usec_t longestEnd = 500 * PA_USEC_PER_MSEC;
constexpr pa_usec_t longestPause = 2 * PA_USEC_PER_SEC;

PulseStream &self(void *data) {
    return *static_cast<PulseStream *>(data);
}

}  // namespace

PulseStream::PulseStream(pa_mainloop_api *api, pa_context *context, const DevicePlan &plan, const Manner &manner,
                         Player &player, std::atomic<unsigned> &dropouts, Listener &listener)
    : m_api(api),
      m_context(context),
      m_player(player),
      m_sound(player, plan.format()),
      m_dropouts(dropouts),
      m_listener(listener),
      m_endLimit([this] { m_listener.streamEnded(); }),
      m_lastWrite(pa_rtclock_now()) {
    m_player.fadeIn();
    pa_proplist *const properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_MEDIA_ROLE, "music");
    m_stream = pa_stream_new_with_proplist(m_context, "Loudspeakers", &plan.spec, &plan.map, properties);
    pa_proplist_free(properties);
    if (m_stream) {
        connect(plan, manner);
    }
}

PulseStream::~PulseStream() {
    if (m_drain) {
        pa_operation_cancel(m_drain);
        pa_operation_unref(m_drain);
    }
    if (m_stream) {
        pa_stream_set_state_callback(m_stream, nullptr, nullptr);
        pa_stream_set_write_callback(m_stream, nullptr, nullptr);
        pa_stream_set_underflow_callback(m_stream, nullptr, nullptr);
        pa_stream_disconnect(m_stream);
        pa_stream_unref(m_stream);
    }
}

void PulseStream::connect(const DevicePlan &plan, const Manner &manner) {
    pa_stream_set_state_callback(
        m_stream, [](pa_stream *, void *data) { self(data).stateChanged(); }, this);
    pa_stream_set_write_callback(
        m_stream, [](pa_stream *, size_t bytes, void *data) { self(data).write(bytes); }, this);
    pa_stream_set_underflow_callback(
        m_stream, [](pa_stream *, void *data) { self(data).m_dropouts += !self(data).m_ending; }, this);
    pa_buffer_attr buffer;
    buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.fragsize = static_cast<uint32_t>(-1);
    buffer.tlength = static_cast<uint32_t>(pa_usec_to_bytes(manner.bufferedTime, &plan.spec));
    if (manner.requestTime > 0) {
        buffer.minreq = static_cast<uint32_t>(pa_usec_to_bytes(manner.requestTime, &plan.spec));
    }
    // Each loudspeaker is to sound from its own channel, and none from another one that the device may have. The server
    // would take the stream to another device, as when the default one changes, by a cut, before the unit hears of it.
    const int flags = PA_STREAM_ADJUST_LATENCY | PA_STREAM_NO_REMIX_CHANNELS | PA_STREAM_DONT_MOVE;
    pa_stream_connect_playback(m_stream, plan.device.c_str(), &buffer, static_cast<pa_stream_flags_t>(flags), nullptr,
                               nullptr);
}

/// A stream that the server ended, as when its device is unplugged, is told a second time, within the first, that its
/// context ends too: by then it has been deleted.
void PulseStream::stateChanged() {
    const pa_stream_state_t state = pa_stream_get_state(m_stream);
    if (state == PA_STREAM_READY) {
        m_begun = true;
        m_listener.streamBegun();
    } else if (!PA_STREAM_IS_GOOD(state)) {
        m_begun ? m_listener.streamLost() : m_listener.streamRefused();
    }
}

bool PulseStream::isStalled() const {
    return pa_rtclock_now() > m_lastWrite + longestPause;
}

void PulseStream::end() {
    if (m_ending) {
        return;
    }
    m_ending = true;
    m_sound.end();
    const bool isHeard = pa_stream_get_state(m_stream) == PA_STREAM_READY && !isStalled();
    m_endLimit.start(m_api, m_context, isHeard ? longestEnd : 0);
}

void PulseStream::write(size_t bytes) {
    if (isStalled() && !m_ending) {
        m_player.fadeIn();
    }
    m_lastWrite = pa_rtclock_now();
    while (bytes >= m_sound.frameBytes()) {
        void *room = nullptr;
        size_t size = bytes;
        if (pa_stream_begin_write(m_stream, &room, &size) < 0) {
            return;
        }
        size = std::min(size, bytes) / m_sound.frameBytes() * m_sound.frameBytes();
        m_sound.fill(room, size / m_sound.frameBytes());
        if (pa_stream_write(m_stream, room, size, nullptr, 0, PA_SEEK_RELATIVE) < 0) {
            return;
        }
        bytes -= size;
    }
    if (m_sound.hasEnded()) {
        drain();
    }
}

void PulseStream::drain() {
    pa_stream_set_write_callback(m_stream, nullptr, nullptr);
    m_drain = pa_stream_drain(
        m_stream,
        [](pa_stream *, int, void *data) {
            pa_operation_unref(std::exchange(self(data).m_drain, nullptr));
            self(data).m_listener.streamEnded();
        },
        this);
}

}  // namespace headunit
