// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace headunit::engine {

/// Readings of the outputs over some time.
struct Meters {
    uint64_t frames = 0;                        ///< how long it was
    std::array<float, outputCount> peak{};      ///< highest sample of each output, 0 to 1
    std::array<double, outputCount> squares{};  ///< sum of the squares of its samples
    std::array<unsigned, outputCount> overs{};  ///< how often it went beyond full scale ahead of its limiter
    std::array<double, pairCount> limiterGain = {1, 1, 1};  ///< lowest gain of the limiter of each pair, 0 to 1

    void add(const float *out, size_t count) {
        // As whole vectors: a frame by itself is no multiple of them.
        constexpr size_t lanes = 2 * outputCount;
        std::array<float, lanes> highest{};
        std::array<float, lanes> sums{};
        const size_t samples = count * outputCount;
        for (size_t first = 0; first < samples; first += blockSamples) {
            const size_t end = std::min(samples, first + blockSamples);
            size_t i = first;
            for (; i + lanes <= end; i += lanes) {
                for (size_t lane = 0; lane < lanes; ++lane) {
                    const float sample = out[i + lane];
                    highest[lane] = std::max(highest[lane], std::abs(sample));
                    sums[lane] += sample * sample;
                }
            }
            for (size_t lane = 0; i + lane < end; ++lane) {
                const float sample = out[i + lane];
                highest[lane] = std::max(highest[lane], std::abs(sample));
                sums[lane] += sample * sample;
            }
            for (size_t lane = 0; lane < lanes; ++lane) {
                squares[lane % outputCount] += static_cast<double>(sums[lane]);
                sums[lane] = 0;
            }
        }
        for (size_t lane = 0; lane < lanes; ++lane) {
            peak[lane % outputCount] = std::max(peak[lane % outputCount], highest[lane]);
        }
        frames += count;
    }

    /// Makes the time longer by that of \a other.
    void add(const Meters &other) {
        frames += other.frames;
        for (size_t output = 0; output < outputCount; ++output) {
            peak[output] = std::max(peak[output], other.peak[output]);
            squares[output] += other.squares[output];
            overs[output] += other.overs[output];
        }
        for (size_t pair = 0; pair < pairCount; ++pair) {
            limiterGain[pair] = std::min(limiterGain[pair], other.limiterGain[pair]);
        }
    }

private:
    static constexpr size_t blockSamples = 256 * outputCount;  ///< that single precision may sum up
};

}  // namespace headunit::engine
