// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deskinput.h"

#include <pulse/context.h>
#include <pulse/introspect.h>
#include <pulse/stream.h>

#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace headunit {

/// By input; null for one that no program plays on.
using DeskInputs = std::array<DeskInput *, engine::inputCount>;

/// Devices of the sound server that programs of the desk play on, one for each of the unit's channels: "headunit",
/// "headunit_phone", … and, for a second unit at the same time, "headunit2", "headunit2_phone", … Everything happens on
/// the server's thread.
///
/// The server keeps such devices when a unit is killed. Each carries the mark of its unit, which the unit's connection
/// carries, too: devices without a connection of the same mark are removed when the next unit starts.
class DeskSinks {
public:
    /// The property with the mark.
    static constexpr char markProperty[] = "headunit.unit";
    /// A new mark, like no other.
    static std::string newMark();
    /// Whether a device is a unit's own.
    static bool isUnits(const pa_sink_info &device) { return pa_proplist_contains(device.proplist, markProperty); }

    /// Offers the devices on a connection that carries \a mark.
    DeskSinks(pa_context *context, const std::string &mark, const DeskInputs &inputs);
    /// Hears nothing more; the devices stay, as when the connection has ended.
    ~DeskSinks();
    DeskSinks(const DeskSinks &) = delete;
    DeskSinks &operator=(const DeskSinks &) = delete;

    /// Takes the devices away; \a done is called once that is so.
    void remove(std::function<void()> done);

private:
    /// A null sink of a unit, this or another one.
    struct Module {
        uint32_t index;
        std::string mark;
        int number;  ///< of the unit
    };
    /// One of the devices.
    struct Channel {
        DeskSinks *sinks;
        engine::Input input;
        uint32_t module = PA_INVALID_INDEX;
        pa_stream *stream = nullptr;
        bool saidInvalid = false;
    };

    void modulesFound(const pa_module_info *module);
    void clientFound(const pa_client_info *client);
    void offer();
    void load(Channel *channel, int number);
    void record(Channel *channel, const pa_sink_info &device);
    void hear(Channel *channel);
    void sayInvalid(Channel *channel);

    pa_context *const m_context;
    const std::string m_mark;
    const DeskInputs m_inputs;
    std::vector<Module> m_modules;
    std::set<std::string> m_marks;  ///< of units that run
    std::array<Channel, engine::inputCount> m_channels{};
    std::function<void()> m_removed;
    size_t m_toRemove = 0;
};

}  // namespace headunit
