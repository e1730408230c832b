// SPDX-License-Identifier: Apache-2.0
#include "pulseoutput.h"

#include "desksinks.h"
#include "pulsestream.h"

#include "player.h"

#include <pulse/pulseaudio.h>

#include <cstdio>
#include <cstring>
#include <optional>
#include <utility>

namespace headunit {

namespace {

constexpr pa_usec_t longestRemoval = 500 * PA_USEC_PER_MSEC;
constexpr pa_usec_t stallCheck = PA_USEC_PER_SEC;

constexpr char noServer[] = "no sound server answers, so the unit is silent until one does";
constexpr char noDevice[] = "the sound server has no device, so the unit is silent until it has one";
constexpr char stalled[] = "the sound server asks for no sound, so the unit is silent until it does";

void release(pa_operation *operation) {
    if (operation) {
        pa_operation_unref(operation);
    }
}

}  // namespace

/// Everything here happens on the server's thread or under its lock, or before it starts and after it ended.
struct PulseOutput::Private final : PulseStream::Listener {
    Private(Player &played, const Settings &wanted) : player(played), settings(wanted) {}

    Player &player;
    const Settings settings;
    pa_threaded_mainloop *loop = nullptr;
    pa_context *context = nullptr;
    std::atomic<unsigned> dropouts{0};
    bool askedForRealTime = false;
    std::string defaultDevice;
    std::string another;                 ///< device than the default one
    std::optional<DevicePlan> plan;      ///< of the stream
    std::optional<DevicePlan> nextPlan;  ///< once the stream has ended
    std::unique_ptr<PulseStream> stream;
    bool moved = false;  ///< somebody took the stream to a device that is not the default one
    bool paused = false;
    std::function<void()> silent;  ///< hears that nothing is heard any more
    bool saidStalled = false;
    std::string said;
    SoundFault saidFault = SoundFault::None;
    LoopTimer retry{[this] { context &&isReady() ? look() : connect(); }};
    const std::string mark = settings.desk ? DeskSinks::newMark() : std::string();
    std::optional<DeskSinks> desk;
    LoopTimer removal{[this] { dropDesk(); }};
    LoopTimer watch{[this] { watchStream(); }};

    static Private &self(void *data) { return *static_cast<Private *>(data); }
    pa_mainloop_api *api() { return pa_threaded_mainloop_get_api(loop); }
    bool isReady() const { return pa_context_get_state(context) == PA_CONTEXT_READY; }

    void say(const std::string &news, SoundFault fault) {
        if (fault != saidFault && settings.onFault) {
            settings.onFault(fault);
        }
        saidFault = fault;
        if (news != said && !news.empty()) {
            std::fprintf(stderr, "headunit: %s\n", news.c_str());
        }
        said = news;
    }

    void connect() {
        disconnect();
        pa_proplist *const properties = pa_proplist_new();
        pa_proplist_sets(properties, PA_PROP_APPLICATION_NAME, "Head unit");
        pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, "com.norvale.headunit");
        pa_proplist_sets(properties, PA_PROP_APPLICATION_ICON_NAME, "com.norvale.headunit");
        if (settings.desk) {
            pa_proplist_sets(properties, DeskSinks::markProperty, mark.c_str());
        }
        context = pa_context_new_with_proplist(api(), nullptr, properties);
        pa_proplist_free(properties);
        pa_context_set_state_callback(
            context, [](pa_context *, void *data) { self(data).contextChanged(); }, this);
        pa_context_set_subscribe_callback(
            context,
            [](pa_context *, pa_subscription_event_type_t event, uint32_t index, void *data) {
                self(data).serverChanged(event, index);
            },
            this);
        if (pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
            serverMissing();
        }
    }

    void disconnect() {
        retry.stop();
        watch.stop();
        removal.stop();
        desk.reset();
        stream.reset();
        nextPlan.reset();
        if (context) {
            pa_context_set_state_callback(context, nullptr, nullptr);
            pa_context_set_subscribe_callback(context, nullptr, nullptr);
            pa_context_disconnect(context);
            pa_context_unref(context);
            context = nullptr;
        }
    }

    void tryLater() {
        if (!retry.isRunning()) {
            retry.start(api(), context, static_cast<pa_usec_t>(settings.retryAfter.count()) * PA_USEC_PER_MSEC);
        }
    }

    void serverMissing() {
        say(noServer, SoundFault::NoServer);
        dropDesk();
        dropStream();
        tryLater();
    }

    void contextChanged() {
        if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(context))) {
            serverMissing();
        } else if (isReady()) {
            beScheduled();
            const int events = PA_SUBSCRIPTION_MASK_SERVER | PA_SUBSCRIPTION_MASK_SINK;
            release(pa_context_subscribe(context, static_cast<pa_subscription_mask_t>(events), nullptr, nullptr));
            if (!paused) {
                begin();
            }
        }
    }

    void beScheduled() {
        if (!askedForRealTime) {
            askedForRealTime = true;
            const Scheduling got = askForRealTime();
            if (settings.onScheduled) {
                settings.onScheduled(got);
            }
        }
    }

    void begin() {
        if (settings.desk && !desk) {
            offerDesk();
        }
        look();
    }

    void offerDesk() {
        DeskInputs inputs{};
        for (size_t input = 0; input < engine::inputCount; ++input) {
            inputs[input] = player.deskInput(static_cast<engine::Input>(input));
        }
        desk.emplace(context, mark, inputs);
    }

    void serverChanged(pa_subscription_event_type_t event, uint32_t index) {
        const int facility = event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
        const int type = event & PA_SUBSCRIPTION_EVENT_TYPE_MASK;
        if (facility == PA_SUBSCRIPTION_EVENT_SERVER) {
            look();
        } else if (type == PA_SUBSCRIPTION_EVENT_NEW && !stream) {
            look();
        } else if (type == PA_SUBSCRIPTION_EVENT_CHANGE && stream && stream->deviceIndex() == index) {
            lookAt(plan->device);  // its rate or channels may be others now
        }
    }

    /// Finds the device that the stream belongs on.
    void look() {
        if (!settings.device.empty()) {
            lookAt(settings.device);
            return;
        }
        release(pa_context_get_server_info(
            context,
            [](pa_context *, const pa_server_info *info, void *data) {
                if (info) {
                    self(data).defaultFound(info->default_sink_name ? info->default_sink_name : "");
                }
            },
            this));
    }

    void defaultFound(const std::string &device) {
        const bool changed = device != defaultDevice;
        defaultDevice = device;
        if (stream && (nextPlan ? nextPlan : plan)->device == device) {
            moved = false;
        } else if (device.empty()) {
            deviceMissing();
        } else if (!stream || (changed && !moved)) {
            lookAt(device);
        }
    }

    void lookAt(const std::string &device) {
        release(pa_context_get_sink_info_by_name(
            context, device.c_str(),
            [](pa_context *, const pa_sink_info *found, int end, void *data) {
                if (end == 0) {
                    self(data).deviceFound(*found);
                } else if (end < 0) {
                    self(data).deviceMissing();
                }
            },
            this));
    }

    void deviceMissing() {
        if (!stream) {
            say(settings.device.empty()
                    ? noDevice
                    : "there is no sound device \"" + settings.device + "\", so the unit is silent until there is",
                SoundFault::NoDevice);
            tryLater();
        }
    }

    /// The default device may be one that a unit offers, so that all programs are heard through it; the unit itself
    /// plays on another one.
    void lookForAnother() {
        another.clear();
        release(pa_context_get_sink_info_list(
            context,
            [](pa_context *, const pa_sink_info *device, int end, void *data) {
                std::string &name = self(data).another;
                if (end == 0) {
                    if (name.empty() && !DeskSinks::isUnits(*device)) {
                        name = device->name;
                    }
                } else if (!name.empty()) {
                    self(data).lookAt(name);
                } else {
                    self(data).deviceMissing();
                }
            },
            this));
    }

    void deviceFound(const pa_sink_info &device) {
        if (paused) {
            return;
        }
        if (settings.desk && DeskSinks::isUnits(device)) {
            if (!stream) {
                lookForAnother();
            }
            return;
        }
        const DevicePlan found(device, settings.map);
        if (!stream) {
            open(found);
        } else if (stream->isEnding() || !(found == *plan)) {
            nextPlan = found;
            stream->end();
        }
    }

    /// With programs of the desk the stream is never taken anywhere by the server: it could be to a device of the
    /// unit's own, where the unit would hear itself.
    PulseStream::Manner manner() const {
        constexpr pa_usec_t ms = PA_USEC_PER_MSEC;
        return settings.desk ? PulseStream::Manner{24 * ms, 6 * ms, true}
                             : PulseStream::Manner{60 * ms, 0, !settings.device.empty()};
    }

    void open(const DevicePlan &found) {
        say(found.remark(), found.isNone() ? SoundFault::NoDevice : SoundFault::None);
        plan = found;
        moved = moved && found.device != defaultDevice;
        stream = std::make_unique<PulseStream>(api(), context, found, manner(), player, dropouts, *this);
        if (stream->isGood()) {
            watch.start(api(), context, stallCheck);
        } else {
            streamLost();
        }
    }

    void streamPlaced(const char *device) override {
        if (plan->device != device) {
            plan->device = device;
            moved = plan->device != defaultDevice;
            lookAt(plan->device);
        }
    }

    void dropDesk() {
        desk.reset();
        pa_threaded_mainloop_signal(loop, 0);
    }

    void dropStream() {
        stream.reset();
        pa_threaded_mainloop_signal(loop, 0);  // somebody may wait for its end
        if (const auto call = std::exchange(silent, nullptr)) {
            call();
        }
    }

    void streamEnded() override {
        dropStream();
        if (nextPlan && !paused) {
            const DevicePlan next = *nextPlan;
            nextPlan.reset();
            open(next);
        }
    }

    void streamLost() override {
        dropStream();
        tryLater();
    }

    /// A server that is stopped, or a device that sleeps
    void watchStream() {
        if (!stream) {
            return;
        }
        const bool isStalled = stream->isStalled();
        if (isStalled && !saidStalled) {
            std::fprintf(stderr, "headunit: %s\n", stalled);
        }
        saidStalled = isStalled;
        watch.start(api(), context, stallCheck);
    }

    /// Under the lock, from another thread. The last sound is still on its way when this returns.
    void fallSilent() {
        paused = true;
        if (stream) {
            stream->end();
        }
    }

    /// Likewise: returns when nothing is heard any more.
    void waitForSilence() {
        while (stream) {
            pa_threaded_mainloop_wait(loop);
        }
    }

    /// Likewise: the programs find no devices any more.
    void removeDesk() {
        if (desk) {
            removal.start(api(), context, longestRemoval);
            desk->remove([this] { removal.start(api(), context, 0); });
        }
        while (desk) {
            pa_threaded_mainloop_wait(loop);
        }
    }
};

PulseOutput::PulseOutput(Player &player, const Settings &settings) : d(new Private(player, settings)) {
    d->loop = pa_threaded_mainloop_new();
    d->connect();
    pa_threaded_mainloop_start(d->loop);
}

PulseOutput::~PulseOutput() {
    pa_threaded_mainloop_lock(d->loop);
    d->fallSilent();
    d->waitForSilence();
    d->removeDesk();
    pa_threaded_mainloop_unlock(d->loop);
    pa_threaded_mainloop_stop(d->loop);
    d->disconnect();
    pa_threaded_mainloop_free(d->loop);
}

void PulseOutput::pause(std::function<void()> silent) {
    pa_threaded_mainloop_lock(d->loop);
    d->fallSilent();
    if (d->stream) {
        d->silent = std::move(silent);
    } else {
        silent();
    }
    pa_threaded_mainloop_unlock(d->loop);
}

void PulseOutput::resume() {
    pa_threaded_mainloop_lock(d->loop);
    d->paused = false;
    if (d->context && d->isReady()) {
        d->begin();
    }
    pa_threaded_mainloop_unlock(d->loop);
}

unsigned PulseOutput::takeDropouts() {
    return d->dropouts.exchange(0);
}

}  // namespace headunit
