// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicesound.h"

#include <pulse/introspect.h>

#include <string>

namespace headunit {

/// How to play on one of the server's devices, so that nothing is left for the server to convert.
struct DevicePlan {
    std::string device;
    pa_sample_spec spec;
    pa_channel_map map;
    Routing routing;

    DevicePlan(const pa_sink_info &device, const OutputMap &wanted);

    bool operator==(const DevicePlan &o) const {
        return device == o.device && pa_sample_spec_equal(&spec, &o.spec) && pa_channel_map_equal(&map, &o.map) &&
               routing == o.routing;
    }

    DeviceFormat format() const;
    /// A line with what the person at the desk should know of it, or an empty text.
    std::string remark() const;
    /// Whether it is what the server makes up where there is no device.
    bool isNone() const;
};

}  // namespace headunit
