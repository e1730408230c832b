// SPDX-License-Identifier: Apache-2.0
#include "pulseoutput.h"

#include "desksinks.h"
#include "devicechoice.h"
#include "pulsestream.h"
#include "serverconnection.h"

#include "player.h"

#include <pulse/error.h>

#include <optional>
#include <utility>

namespace headunit {

namespace {

constexpr pa_usec_t longestRemoval = 500 * PA_USEC_PER_MSEC;
constexpr pa_usec_t stallCheck = PA_USEC_PER_SEC;

constexpr char noServer[] = "no sound server answers, so the unit is silent until one does";
constexpr char noDevice[] = "the sound server has no device, so the unit is silent until it has one";
constexpr char stalled[] = "the sound server asks for no sound, so the unit is silent until it does";

/// The mark that the connection of a unit with devices of its own carries.
class Properties {
public:
    explicit Properties(const std::string &mark) {
        if (!mark.empty()) {
            pa_proplist_sets(m_list, DeskSinks::markProperty, mark.c_str());
        }
    }
    ~Properties() { pa_proplist_free(m_list); }
    Properties(const Properties &) = delete;
    Properties &operator=(const Properties &) = delete;

    operator pa_proplist *() const { return m_list; }

private:
    pa_proplist *const m_list = pa_proplist_new();
};

}  // namespace

/// Everything here happens on the server's thread or under its lock, or before it starts and after it ended.
struct PulseOutput::Private final : ServerConnection::Listener, DeviceChoice::Listener, PulseStream::Listener {
    Private(Player &played, const Settings &wanted) : player(played), settings(wanted) {}

    Player &player;
    const Settings settings;
    const std::string mark = settings.desk ? DeskSinks::newMark() : std::string();
    ServerConnection server{Properties(mark), settings.retryAfter, *this};
    DeviceChoice choice{{settings.device, settings.map, settings.desk}, *this};
    std::unique_ptr<PulseStream> stream;
    std::optional<DevicePlan> plan;      ///< of the stream
    std::optional<DevicePlan> nextPlan;  ///< once the stream has ended
    std::optional<DeskSinks> desk;
    LoopTimer removal{[this] { dropDesk(); }};
    LoopTimer watch{[this] { watchStream(); }};
    std::atomic<unsigned> dropouts{0};
    bool askedForRealTime = false;
    bool paused = false;
    std::function<void()> silent;  ///< hears that nothing is heard any more
    bool saidStalled = false;
    std::string said;
    SoundFault saidFault = SoundFault::None;

    void say(const std::string &news, SoundFault fault) {
        if (fault != saidFault && settings.onFault) {
            settings.onFault(fault);
        }
        saidFault = fault;
        if (news != said && !news.empty()) {
            settings.say(news);
        }
        said = news;
    }

    void connected() override {
        beScheduled();
        if (!paused) {
            begin();
        }
    }

    void disconnected() override {
        say(noServer, SoundFault::NoServer);
        drop();
    }

    void changed(pa_subscription_event_type_t event, uint32_t index) override {
        const bool isServer = (event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK) == PA_SUBSCRIPTION_EVENT_SERVER;
        const int type = event & PA_SUBSCRIPTION_EVENT_TYPE_MASK;
        // The default device, a new one, or the rate or channels of the one that plays
        if (isServer || (type == PA_SUBSCRIPTION_EVENT_NEW && !stream) ||
            (type == PA_SUBSCRIPTION_EVENT_CHANGE && stream && stream->deviceIndex() == index)) {
            look();
        }
    }

    void tryAgain() override { look(); }

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
            DeskInputs inputs{};
            for (size_t input = 0; input < engine::inputCount; ++input) {
                inputs[input] = player.deskInput(static_cast<engine::Input>(input));
            }
            desk.emplace(server.context(), mark, inputs);
        }
        look();
    }

    void look() { choice.look(server.context(), stream ? plan->device : std::string()); }

    void deviceMissing() override {
        if (!stream) {
            say(settings.device.empty()
                    ? noDevice
                    : "there is no sound device \"" + settings.device + "\", so the unit is silent until there is",
                SoundFault::NoDevice);
            server.tryLater();
        }
    }

    void deviceFound(const DevicePlan &found) override {
        if (paused) {
            return;
        }
        if (!stream) {
            open(found);
        } else if (stream->isEnding() || !(found == *plan)) {
            nextPlan = found;
            stream->end();
        }
    }

    PulseStream::Manner manner() const {
        constexpr pa_usec_t ms = PA_USEC_PER_MSEC;
        return settings.desk ? PulseStream::Manner{24 * ms, 6 * ms} : PulseStream::Manner{60 * ms, 0};
    }

    void open(const DevicePlan &found) {
        plan = found;
        nextPlan.reset();
        stream =
            std::make_unique<PulseStream>(server.api(), server.context(), found, manner(), player, dropouts, *this);
        if (stream->isGood()) {
            watch.start(server.api(), server.context(), stallCheck);
        } else {
            streamRefused();
        }
    }

    void drop() {
        watch.stop();
        removal.stop();
        dropDesk();
        dropStream();
    }

    void dropDesk() {
        desk.reset();
        server.signal();
    }

    void dropStream() {
        stream.reset();
        server.signal();  // somebody may wait for its end
        if (const auto call = std::exchange(silent, nullptr)) {
            call();
        }
    }

    void streamBegun() override { say(plan->remark(), plan->isNone() ? SoundFault::NoDevice : SoundFault::None); }

    void streamEnded() override {
        const std::optional<DevicePlan> next = std::exchange(nextPlan, std::nullopt);
        dropStream();
        if (next && !paused) {
            open(*next);
        }
    }

    /// Its device may be gone, and another one be there.
    void streamLost() override {
        dropStream();
        look();
    }

    void streamRefused() override {
        const std::string reason = pa_strerror(pa_context_errno(server.context()));
        dropStream();
        say("the sound device " + plan->device + " cannot be played on: " + reason, SoundFault::NoDevice);
        server.tryLater();
    }

    /// A server that is stopped, or a device that sleeps
    void watchStream() {
        if (!stream) {
            return;
        }
        const bool isStalled = stream->isStalled();
        if (isStalled && !saidStalled) {
            settings.say(stalled);
        }
        saidStalled = isStalled;
        watch.start(server.api(), server.context(), stallCheck);
    }

    /// Under the lock, from another thread. The last sound is still on its way when this returns.
    void fallSilent() {
        paused = true;
        if (stream) {
            stream->end();
        }
    }

    /// Likewise: the programs find no devices any more.
    void removeDesk() {
        if (desk) {
            removal.start(server.api(), server.context(), longestRemoval);
            desk->remove([this] { removal.start(server.api(), server.context(), 0); });
        }
    }
};

PulseOutput::PulseOutput(Player &player, const Settings &settings) : d(new Private(player, settings)) {
    if (!d->server.start()) {
        d->say("no thread is to be had: nothing is heard", SoundFault::NoServer);
    }
}

PulseOutput::~PulseOutput() {
    {
        ServerConnection::Lock lock(d->server);
        d->fallSilent();
        while (d->stream) {
            lock.wait();
        }
        d->removeDesk();
        while (d->desk) {
            lock.wait();
        }
    }
    d->server.stop();
    d->drop();
}

void PulseOutput::pause(std::function<void()> silent) {
    const ServerConnection::Lock lock(d->server);
    d->fallSilent();
    if (d->stream) {
        d->silent = std::move(silent);
    } else {
        silent();
    }
}

void PulseOutput::resume() {
    const ServerConnection::Lock lock(d->server);
    d->paused = false;
    if (d->server.isReady()) {
        d->begin();
    }
}

unsigned PulseOutput::takeDropouts() {
    return d->dropouts.exchange(0);
}

}  // namespace headunit
