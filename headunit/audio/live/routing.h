// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "outputmap.h"

#include <pulse/channelmap.h>

#include <string>
#include <tuple>
#include <vector>

namespace headunit {

/// An output that sounds from a channel of the device.
struct Route {
    size_t output;
    size_t channel;
    float gain;

    bool operator==(const Route &o) const {
        return std::tie(output, channel, gain) == std::tie(o.output, o.channel, o.gain);
    }
};

/// How the six outputs reach the channels of a device.
struct Routing {
    std::vector<Route> routes;
    bool folded = false;       ///< the device has too few channels: left and right of all three pairs share two of them
    std::vector<size_t> lost;  ///< outputs whose wanted channel the device does not have

    bool operator==(const Routing &o) const {
        return std::tie(routes, folded, lost) == std::tie(o.routes, o.folded, o.lost);
    }
};

/// The way to a device with such channels. Where \a wanted says nothing: each output from the channel of its own place,
/// the subwoofers from the sides. Rear outputs take the sides where there is nothing behind; outputs without a place
/// take the channels that are left, in their order, so that 5.1 and interfaces of numbered channels play all six.
/// Outputs that share a channel get less loud, so that full scale everywhere stays full scale.
Routing routing(const pa_channel_map &device, const OutputMap &wanted);

}  // namespace headunit
