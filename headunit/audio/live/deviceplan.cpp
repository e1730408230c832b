// SPDX-License-Identifier: Apache-2.0
#include "deviceplan.h"

#include "outputnames.h"

#include <pulse/channelmap.h>

namespace headunit {

namespace {

/// The server's name for the device that it makes up where there is none.
constexpr char noDevice[] = "auto_null";

struct FormatRow {
    pa_sample_format_t device;
    pa_sample_format_t stream;  ///< the same in this machine's byte order
    SampleFormat samples;
};

constexpr FormatRow formatRows[] = {{PA_SAMPLE_S16LE, PA_SAMPLE_S16NE, SampleFormat::Int16},
                                    {PA_SAMPLE_S16BE, PA_SAMPLE_S16NE, SampleFormat::Int16},
                                    {PA_SAMPLE_S24LE, PA_SAMPLE_S24NE, SampleFormat::Int24},
                                    {PA_SAMPLE_S24BE, PA_SAMPLE_S24NE, SampleFormat::Int24},
                                    {PA_SAMPLE_S24_32LE, PA_SAMPLE_S24_32NE, SampleFormat::Int24In32},
                                    {PA_SAMPLE_S24_32BE, PA_SAMPLE_S24_32NE, SampleFormat::Int24In32},
                                    {PA_SAMPLE_S32LE, PA_SAMPLE_S32NE, SampleFormat::Int32},
                                    {PA_SAMPLE_S32BE, PA_SAMPLE_S32NE, SampleFormat::Int32}};

/// Devices of other formats get floats.
constexpr FormatRow floats = {PA_SAMPLE_FLOAT32NE, PA_SAMPLE_FLOAT32NE, SampleFormat::Float32};

const FormatRow &rowOf(pa_sample_format_t device) {
    for (const FormatRow &row : formatRows) {
        if (row.device == device) {
            return row;
        }
    }
    return floats;
}

/// Rates beyond are the server's to convert to.
bool isUsual(uint32_t rate) {
    constexpr uint32_t lowest = 8000;
    constexpr uint32_t highest = 384000;
    return rate >= lowest && rate <= highest;
}

}  // namespace

DevicePlan::DevicePlan(const pa_sink_info &info, const OutputMap &wanted)
    : device(info.name), spec(info.sample_spec), map(info.channel_map), routing(headunit::routing(map, wanted)) {
    spec.format = rowOf(spec.format).stream;
    if (!isUsual(spec.rate)) {
        spec.rate = static_cast<uint32_t>(engine::sampleRate);
    }
}

DeviceFormat DevicePlan::format() const {
    return {static_cast<double>(spec.rate), spec.channels, rowOf(spec.format).samples, routing.routes};
}

bool DevicePlan::isNone() const {
    return device == noDevice;
}

std::string DevicePlan::remark() const {
    if (isNone()) {
        return "the sound server has no device, so the unit is silent until it has one";
    }
    if (routing.folded) {
        return "the sound device has fewer than six channels; all six loudspeakers play on two of them";
    }
    std::string names;
    for (const size_t output : routing.lost) {
        names += (names.empty() ? "" : ", ") + std::string(outputNames[output]);
    }
    return names.empty() ? names : "the sound device lacks the channels that --map names for " + names;
}

}  // namespace headunit
