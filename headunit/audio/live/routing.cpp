// SPDX-License-Identifier: Apache-2.0
#include "routing.h"

#include <algorithm>
#include <array>
#include <optional>

namespace headunit {

using namespace engine;

namespace {

using Channels = std::array<std::optional<size_t>, outputCount>;

std::optional<size_t> channelAt(const pa_channel_map &device, pa_channel_position_t position) {
    const pa_channel_position_t *const end = device.map + device.channels;
    const pa_channel_position_t *const found = std::find(device.map, end, position);
    return found == end ? std::nullopt : std::optional<size_t>(found - device.map);
}

Channels namedChannels(const pa_channel_map &device, const OutputMap &wanted) {
    Channels channels;
    for (size_t output = 0; output < outputCount; ++output) {
        if (!wanted[output].empty()) {
            channels[output] = channelAt(device, pa_channel_position_from_string(wanted[output].c_str()));
        }
    }
    return channels;
}

/// For a device with a channel for each output.
Channels usualChannels(const pa_channel_map &device) {
    Channels channels = {
        channelAt(device, PA_CHANNEL_POSITION_FRONT_LEFT), channelAt(device, PA_CHANNEL_POSITION_FRONT_RIGHT),
        channelAt(device, PA_CHANNEL_POSITION_REAR_LEFT),  channelAt(device, PA_CHANNEL_POSITION_REAR_RIGHT),
        channelAt(device, PA_CHANNEL_POSITION_SIDE_LEFT),  channelAt(device, PA_CHANNEL_POSITION_SIDE_RIGHT)};
    if (!channels[RearLeft] && !channels[RearRight]) {
        std::swap(channels[RearLeft], channels[SubLeft]);
        std::swap(channels[RearRight], channels[SubRight]);
    }
    std::vector<bool> taken(device.channels);
    for (const auto &channel : channels) {
        if (channel) {
            taken[*channel] = true;
        }
    }
    for (auto &channel : channels) {
        if (!channel) {
            channel = static_cast<size_t>(std::find(taken.begin(), taken.end(), false) - taken.begin());
            taken[*channel] = true;
        }
    }
    return channels;
}

/// For a device with fewer channels.
Channels foldedChannels(const pa_channel_map &device) {
    const size_t second = device.channels > 1 ? 1 : 0;
    const size_t left = channelAt(device, PA_CHANNEL_POSITION_FRONT_LEFT).value_or(0);
    const size_t right = channelAt(device, PA_CHANNEL_POSITION_FRONT_RIGHT).value_or(second);
    return {left, right, left, right, left, right};
}

}  // namespace

Routing routing(const pa_channel_map &device, const OutputMap &wanted) {
    Routing result;
    const bool named = wanted != OutputMap();
    result.folded = !named && device.channels < outputCount;
    const Channels channels = named           ? namedChannels(device, wanted)
                              : result.folded ? foldedChannels(device)
                                              : usualChannels(device);
    for (size_t output = 0; output < outputCount; ++output) {
        if (channels[output]) {
            const auto sharing = std::count(channels.begin(), channels.end(), channels[output]);
            result.routes.push_back({output, *channels[output], 1 / static_cast<float>(sharing)});
        } else if (!wanted[output].empty()) {
            result.lost.push_back(output);
        }
    }
    return result;
}

}  // namespace headunit
