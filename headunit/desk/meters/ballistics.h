// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/meters.h"

#include <array>

namespace headunit {

/// The needles of the meters, fed with what was played. Time is counted in frames of sound.
///
/// Peaks are those of samples: at once up, and down by 20 dB in 1.7 s, as IEC 60268-18 has it; the highest one is held
/// for 1.5 s before it falls. RMS is the mean of 300 ms, referred to a sine as in AES17: one of full scale reads 0 dB.
class Ballistics {
public:
    static constexpr double fallPerSecond = 20 / 1.7;  ///< dB
    static constexpr double holdSeconds = 1.5;
    static constexpr double meanSeconds = 0.3;
    static constexpr double lowest = -100;  ///< dB; whatever is below, and silence

    struct Output {
        double peak = lowest;     ///< dB of full scale, as are the next three
        double held = lowest;     ///< the mark above it
        double highest = lowest;  ///< since the reset
        double rms = lowest;
        unsigned overs = 0;  ///< since the reset
    };
    struct Pair {
        double reduction = 0;  ///< dB that the limiter takes away, 0 or less
        double held = 0;
        double most = 0;  ///< since the reset
    };

    void feed(const engine::Meters &reading);
    /// Nothing plays: the needles fall to their ends; highest and counts stay.
    void rest();
    /// Forgets highest and counts.
    void reset();

    const Output &output(size_t output) const { return m_outputs[output]; }
    const Pair &pair(size_t pair) const { return m_pairs[pair]; }

private:
    std::array<Output, engine::outputCount> m_outputs;
    std::array<Pair, engine::pairCount> m_pairs;
    std::array<double, engine::outputCount> m_power{};
    std::array<double, engine::outputCount> m_sinceHeld{};  ///< seconds
    std::array<double, engine::pairCount> m_sinceMost{};
};

}  // namespace headunit
