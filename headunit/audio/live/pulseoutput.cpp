#include "pulseoutput.h"

#include "folddown.h"
#include "player.h"

#include <pulse/pulseaudio.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace headunit {

using engine::outputCount;
using engine::stereo;

namespace {

constexpr pa_usec_t bufferedTime = 60 * PA_USEC_PER_MSEC;
constexpr size_t chunkFrames = 512;

/// What the server calls the device that it makes up where there is none.
constexpr char noDevice[] = "auto_null";

pa_channel_map channelMap(bool folded) {
    pa_channel_map map;
    if (folded) {
        return *pa_channel_map_init_stereo(&map);
    }
    pa_channel_map_init(&map);
    map.channels = outputCount;
    const pa_channel_position_t positions[outputCount] = {
        PA_CHANNEL_POSITION_FRONT_LEFT, PA_CHANNEL_POSITION_FRONT_RIGHT, PA_CHANNEL_POSITION_REAR_LEFT,
        PA_CHANNEL_POSITION_REAR_RIGHT, PA_CHANNEL_POSITION_SIDE_LEFT,   PA_CHANNEL_POSITION_SIDE_RIGHT};
    std::copy(std::begin(positions), std::end(positions), map.map);
    return map;
}

bool mustFold(const pa_sink_info &device) {
    const pa_channel_map six = channelMap(false);
    return !pa_channel_map_superset(&device.channel_map, &six);
}

/// What the person at the desk may want to know.
enum class News { None, NoServer, NoDevice, Folded };

const char *text(News news) {
    switch (news) {
        case News::NoServer:
            return "no sound server answers, so the unit is silent until one does";
        case News::NoDevice:
            return "the sound server has no device, so the unit is silent until it has one";
        case News::Folded:
            return "the sound device lacks front, rear or side channels; all six loudspeakers play on two channels";
        case News::None:
            break;
    }
    return "";
}

}  // namespace

/// Everything here happens on the server's thread, or before it starts and after it ended.
struct PulseOutput::Private {
    Private(Player &played, std::chrono::milliseconds time)
        : player(played), retryAfter(static_cast<pa_usec_t>(time.count()) * PA_USEC_PER_MSEC) {}

    Player &player;
    const pa_usec_t retryAfter;
    pa_threaded_mainloop *loop = nullptr;
    pa_context *context = nullptr;
    pa_stream *stream = nullptr;
    bool folded = true;    ///< the stream has two channels, else six
    bool waiting = false;  ///< to connect again
    News said = News::None;
    std::array<float, chunkFrames * outputCount> chunk{};

    static Private &self(void *data) { return *static_cast<Private *>(data); }

    void say(News news) {
        if (news != said && news != News::None) {
            std::fprintf(stderr, "headunit: %s\n", text(news));
        }
        said = news;
    }

    void connect() {
        waiting = false;
        context = pa_context_new(pa_threaded_mainloop_get_api(loop), "Head unit");
        pa_context_set_state_callback(
            context, [](pa_context *, void *data) { self(data).contextChanged(); }, this);
        if (pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
            say(News::NoServer);
            connectLater();
        }
    }

    void closeStream() {
        if (stream) {
            pa_stream_set_state_callback(stream, nullptr, nullptr);
            pa_stream_set_write_callback(stream, nullptr, nullptr);
            pa_stream_set_moved_callback(stream, nullptr, nullptr);
            pa_stream_disconnect(stream);
            pa_stream_unref(stream);
            stream = nullptr;
        }
    }

    void disconnect() {
        closeStream();
        if (context) {
            pa_context_set_state_callback(context, nullptr, nullptr);
            pa_context_disconnect(context);
            pa_context_unref(context);
            context = nullptr;
        }
    }

    void connectLater() {
        if (waiting) {
            return;
        }
        waiting = true;
        disconnect();
        pa_mainloop_api *const api = pa_threaded_mainloop_get_api(loop);
        timeval when;
        pa_timeval_add(pa_gettimeofday(&when), retryAfter);
        api->time_new(
            api, &when,
            [](pa_mainloop_api *caller, pa_time_event *event, const timeval *, void *data) {
                caller->time_free(event);
                self(data).connect();
            },
            this);
    }

    void contextChanged() {
        const pa_context_state_t state = pa_context_get_state(context);
        if (!PA_CONTEXT_IS_GOOD(state)) {
            say(News::NoServer);
            connectLater();
        } else if (state == PA_CONTEXT_READY) {
            lookAt("@DEFAULT_SINK@");
        }
    }

    /// Plays as the device of that name wants it.
    void lookAt(const char *device) {
        pa_operation *const question = pa_context_get_sink_info_by_name(
            context, device,
            [](pa_context *, const pa_sink_info *found, int end, void *data) {
                if (end == 0) {
                    self(data).deviceFound(*found);
                } else if (end < 0) {
                    self(data).say(News::NoDevice);
                    self(data).connectLater();
                }
            },
            this);
        if (question) {
            pa_operation_unref(question);
        } else {
            connectLater();
        }
    }

    void deviceFound(const pa_sink_info &device) {
        const bool fold = mustFold(device);
        say(std::strcmp(device.name, noDevice) == 0 ? News::NoDevice : fold ? News::Folded : News::None);
        if (!stream || fold != folded) {
            closeStream();
            openStream(fold);
        }
    }

    void openStream(bool fold) {
        folded = fold;
        player.fadeIn();
        const pa_channel_map map = channelMap(folded);
        const pa_sample_spec spec = {PA_SAMPLE_FLOAT32NE, static_cast<uint32_t>(engine::sampleRate), map.channels};
        stream = pa_stream_new(context, "Loudspeakers", &spec, &map);
        if (!stream) {
            connectLater();
            return;
        }
        pa_stream_set_state_callback(
            stream, [](pa_stream *changed, void *data) { self(data).streamChanged(changed); }, this);
        pa_stream_set_moved_callback(
            stream, [](pa_stream *moved, void *data) { self(data).streamMoved(moved); }, this);
        pa_stream_set_write_callback(
            stream, [](pa_stream *, size_t bytes, void *data) { self(data).write(bytes); }, this);
        pa_buffer_attr buffer;
        buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.fragsize = static_cast<uint32_t>(-1);
        buffer.tlength = static_cast<uint32_t>(pa_usec_to_bytes(bufferedTime, &spec));
        // Each of six loudspeakers is to sound from its own channel, and none from a centre that the device may have.
        const int flags = PA_STREAM_ADJUST_LATENCY | (folded ? 0 : PA_STREAM_NO_REMIX_CHANNELS);
        if (pa_stream_connect_playback(stream, nullptr, &buffer, static_cast<pa_stream_flags_t>(flags), nullptr,
                                       nullptr) < 0) {
            connectLater();
        }
    }

    /// A stream that the server ended, as when its device is unplugged, is told a second time, within the first, that
    /// its context ends too: by then it is no longer ours.
    void streamChanged(pa_stream *changed) {
        if (changed != stream) {
            return;
        }
        const pa_stream_state_t state = pa_stream_get_state(stream);
        if (!PA_STREAM_IS_GOOD(state)) {
            connectLater();
        } else if (state == PA_STREAM_READY) {
            streamMoved(stream);  // where the server put it may not be where it was meant for
        }
    }

    void streamMoved(pa_stream *moved) {
        if (moved == stream) {
            lookAt(pa_stream_get_device_name(stream));
        }
    }

    void write(size_t bytes) {
        const size_t channels = folded ? stereo : outputCount;
        size_t frames = bytes / (channels * sizeof(float));
        while (frames > 0) {
            const size_t count = std::min(frames, chunkFrames);
            player.fill(chunk.data(), count);
            if (folded) {
                foldDown(chunk.data(), count);
            }
            if (pa_stream_write(stream, chunk.data(), count * channels * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE) <
                0) {
                return;
            }
            frames -= count;
        }
    }
};

PulseOutput::PulseOutput(Player &player, std::chrono::milliseconds retryAfter) : d(new Private(player, retryAfter)) {
    d->loop = pa_threaded_mainloop_new();
    d->connect();
    pa_threaded_mainloop_start(d->loop);
}

PulseOutput::~PulseOutput() {
    pa_threaded_mainloop_stop(d->loop);
    d->disconnect();
    pa_threaded_mainloop_free(d->loop);
}

}  // namespace headunit
