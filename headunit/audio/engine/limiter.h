// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "limitergain.h"
#include "truepeak.h"

#include <utility>

namespace headunit::engine {

/// Keeps the outputs within full scale, between the samples, too: each pair has a gain of its own, which is lowered
/// ahead of a peak. A pair that needs no limiting passes unchanged, bit for bit.
class Limiter {
    static constexpr size_t group = LimiterGain::groupFrames;

public:
    /// Of what comes out, in samples: whole groups, for the way down from when a peak is known.
    static constexpr size_t latency = (LimiterGain::attackFrames + 2 * group + group - 1) / group * group;

    explicit Limiter(const Kernel &kernel) : m_truePeak(kernel) {}

    /// Takes \a frames of outputCount samples, gives as many, delayed.
    void process(const double *in, float *out, size_t frames);

    /// The lowest gain of each pair since the last call, 0 to 1.
    std::array<double, pairCount> takeLowestGains();
    /// How often each output has gone beyond full scale since the last call, before it was limited.
    std::array<unsigned, outputCount> takeOvers() { return std::exchange(m_overs, {}); }

private:
    static constexpr size_t length = 512;  ///< of the samples kept, in frames
    static_assert(length % group == 0 && length >= latency + group, "a chunk lies in one piece");
    static_assert(group == TruePeak::frames && TruePeak::behind <= group, "a group is read when the next one is there");

    void analyse();
    double wantedGain(size_t pair);
    void limit(const double *delayed, float *out, size_t frames);

    TruePeak m_truePeak;
    std::array<double, length * outputCount> m_samples{};
    uint64_t m_frame = 0;
    /// Of the last three groups: the one that is read, and those beside it.
    std::array<std::array<double, pairCount>, 3> m_highest{};
    std::array<LimiterGain, pairCount> m_gains;
    std::array<bool, outputCount> m_isOver{};  ///< in the group that was read last
    std::array<unsigned, outputCount> m_overs{};
};

}  // namespace headunit::engine
