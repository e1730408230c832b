// SPDX-License-Identifier: Apache-2.0
#include "desksinks.h"

#include <pulse/operation.h>
#include <pulse/proplist.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <random>

namespace headunit {

using namespace engine;

namespace {

/// The suffixes to the unit's name, in the device's name and for people. Key clicks are the unit's own.
struct NameRow {
    Input input;
    const char *name;
    const char *title;
};
constexpr NameRow nameRows[] = {{MainInput, "", ""},
                                {RingtoneInput, "_ringtone", " ringtone"},
                                {PhoneInput, "_phone", " phone"},
                                {NavigationInput, "_navigation", " navigation"},
                                {VoiceInput, "_voice", " voice"},
                                {AnnouncementInput, "_announcement", " announcement"}};

const NameRow &rowOf(Input input) {
    return *std::find_if(std::begin(nameRows), std::end(nameRows),
                         [input](const NameRow &row) { return row.input == input; });
}

constexpr char markArgument[] = "headunit.unit=";
constexpr char numberArgument[] = "headunit.number=";

/// Pieces in which the server hands over what it hears. In frames.
constexpr size_t pieceFrames = 240;

void release(pa_operation *operation) {
    if (operation) {
        pa_operation_unref(operation);
    }
}

/// The word behind a name in the arguments of a module.
std::string wordBehind(const std::string &text, const char *name) {
    const size_t place = text.find(name);
    if (place == std::string::npos) {
        return std::string();
    }
    const size_t start = place + std::strlen(name);
    return text.substr(start, text.find_first_not_of("0123456789abcdef", start) - start);
}

std::string numbered(const std::string &name, const char *separator, int number) {
    return number == 1 ? name : name + separator + std::to_string(number);
}

}  // namespace

std::string DeskSinks::newMark() {
    constexpr char digits[] = "0123456789abcdef";
    std::random_device random;
    std::string mark;
    for (int digit = 0; digit < 16; ++digit) {
        mark += digits[random() % 16];
    }
    return mark;
}

DeskSinks::DeskSinks(pa_context *context, const std::string &mark, const DeskInputs &inputs)
    : m_context(context), m_mark(mark), m_inputs(inputs) {
    // First the modules: a unit's connection is there before its modules, so whoever has none has gone.
    release(pa_context_get_module_info_list(
        context,
        [](pa_context *, const pa_module_info *module, int end, void *data) {
            static_cast<DeskSinks *>(data)->modulesFound(end == 0 ? module : nullptr);
        },
        this));
}

DeskSinks::~DeskSinks() {
    for (Channel &channel : m_channels) {
        if (channel.stream) {
            pa_stream_set_state_callback(channel.stream, nullptr, nullptr);
            pa_stream_set_read_callback(channel.stream, nullptr, nullptr);
            pa_stream_disconnect(channel.stream);
            pa_stream_unref(channel.stream);
            m_inputs[channel.input]->stop();
        }
    }
}

void DeskSinks::modulesFound(const pa_module_info *module) {
    if (module) {
        const std::string arguments = module->argument ? module->argument : "";
        const std::string mark = wordBehind(arguments, markArgument);
        if (!mark.empty()) {
            m_modules.push_back({module->index, mark, std::atoi(wordBehind(arguments, numberArgument).c_str())});
        }
        return;
    }
    release(pa_context_get_client_info_list(
        m_context,
        [](pa_context *, const pa_client_info *client, int end, void *data) {
            static_cast<DeskSinks *>(data)->clientFound(end == 0 ? client : nullptr);
        },
        this));
}

void DeskSinks::clientFound(const pa_client_info *client) {
    if (client) {
        if (const char *const mark = pa_proplist_gets(client->proplist, markProperty)) {
            m_marks.insert(mark);
        }
        return;
    }
    offer();
}

void DeskSinks::offer() {
    std::set<int> taken;
    for (const Module &module : m_modules) {
        if (m_marks.count(module.mark) == 0) {
            release(pa_context_unload_module(m_context, module.index, nullptr, nullptr));
        } else {
            taken.insert(module.number);
        }
    }
    int number = 1;
    while (taken.count(number) != 0) {
        ++number;
    }
    for (const NameRow &row : nameRows) {
        Channel &channel = m_channels[row.input];
        channel.sinks = this;
        channel.input = row.input;
        load(&channel, number);
    }
}

void DeskSinks::load(Channel *channel, int number) {
    const NameRow &row = rowOf(channel->input);
    const std::string properties = "device.description='" + numbered("Head unit", " ", number) + row.title + "' " +
                                   markArgument + m_mark + ' ' + numberArgument + std::to_string(number) +
                                   " device.icon_name=com.norvale.headunit";
    const std::string arguments = "sink_name=" + numbered("headunit", "", number) + row.name +
                                  " channels=2 channel_map=front-left,front-right rate=48000 format=float32le"
                                  " sink_properties=\"" +
                                  properties + '"';
    release(pa_context_load_module(
        m_context, "module-null-sink", arguments.c_str(),
        [](pa_context *context, uint32_t index, void *data) {
            Channel *const loaded = static_cast<Channel *>(data);
            loaded->module = index;
            release(pa_context_get_sink_info_list(
                context,
                [](pa_context *, const pa_sink_info *device, int end, void *given) {
                    Channel *const waiting = static_cast<Channel *>(given);
                    if (end == 0 && device->owner_module == waiting->module && !waiting->stream) {
                        waiting->sinks->record(waiting, *device);
                    }
                },
                loaded));
        },
        channel));
}

void DeskSinks::record(Channel *channel, const pa_sink_info &device) {
    pa_sample_spec spec;
    spec.format = PA_SAMPLE_FLOAT32NE;
    spec.rate = static_cast<uint32_t>(sampleRate);
    spec.channels = stereo;
    pa_channel_map map;
    pa_channel_map_init_stereo(&map);
    channel->stream = pa_stream_new(m_context, device.description, &spec, &map);
    if (!channel->stream) {
        return;
    }
    pa_stream_set_read_callback(
        channel->stream,
        [](pa_stream *, size_t, void *data) {
            Channel *const heard = static_cast<Channel *>(data);
            heard->sinks->hear(heard);
        },
        channel);
    pa_buffer_attr buffer;
    buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.tlength = static_cast<uint32_t>(-1);
    buffer.fragsize = static_cast<uint32_t>(pieceFrames * pa_frame_size(&spec));
    pa_stream_connect_record(channel->stream, device.monitor_source_name, &buffer,
                             static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE));
}

void DeskSinks::hear(Channel *channel) {
    const void *samples = nullptr;
    size_t bytes = 0;
    while (pa_stream_readable_size(channel->stream) > 0 && pa_stream_peek(channel->stream, &samples, &bytes) == 0 &&
           bytes > 0) {
        if (samples) {  // else a hole
            m_inputs[channel->input]->push(static_cast<const float *>(samples), bytes / (stereo * sizeof(float)));
        }
        pa_stream_drop(channel->stream);
    }
    sayInvalid(channel);
}

/// Once, as a program that sends such samples sends many.
void DeskSinks::sayInvalid(Channel *channel) {
    if (!channel->saidInvalid && m_inputs[channel->input]->hasHadInvalid()) {
        channel->saidInvalid = true;
        std::fprintf(stderr, "headunit: a program plays samples that are no numbers on \"%s\"; they are silence\n",
                     ("Head unit" + std::string(rowOf(channel->input).title)).c_str());
    }
}

void DeskSinks::remove(std::function<void()> done) {
    m_removed = std::move(done);
    for (const Channel &channel : m_channels) {
        if (channel.module == PA_INVALID_INDEX) {
            continue;
        }
        ++m_toRemove;
        release(pa_context_unload_module(
            m_context, channel.module,
            [](pa_context *, int, void *data) {
                DeskSinks &sinks = *static_cast<DeskSinks *>(data);
                if (--sinks.m_toRemove == 0) {
                    const auto removed = sinks.m_removed;
                    removed();
                }
            },
            this));
    }
    if (m_toRemove == 0) {
        const auto removed = m_removed;
        removed();
    }
}

}  // namespace headunit
