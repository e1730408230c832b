// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace headunit::engine {

/// Readings of the outputs over some time.
struct Meters {
    std::array<float, outputCount> peak{};                  ///< highest sample of each output, 0 to 1
    std::array<double, pairCount> limiterGain = {1, 1, 1};  ///< lowest gain of the limiter of each pair, 0 to 1

    void add(const float *out, size_t frames) {
        for (size_t frame = 0; frame < frames; ++frame) {
            for (size_t output = 0; output < outputCount; ++output) {
                peak[output] = std::max(peak[output], std::abs(out[frame * outputCount + output]));
            }
        }
    }

    /// Makes the time longer by that of \a other.
    void add(const Meters &other) {
        std::transform(peak.begin(), peak.end(), other.peak.begin(), peak.begin(),
                       [](float a, float b) { return std::max(a, b); });
        std::transform(limiterGain.begin(), limiterGain.end(), other.limiterGain.begin(), limiterGain.begin(),
                       [](double a, double b) { return std::min(a, b); });
    }
};

}  // namespace headunit::engine
