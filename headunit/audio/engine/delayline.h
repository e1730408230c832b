// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kernel.h"

#include <array>

namespace headunit::engine {

/// The last frames of all outputs, each of which is read back with a delay of its own.
class DelayLine {
public:
    static constexpr size_t length = 1024;  ///< in samples: the longest delay of 9.9 ms, and the largest write

    /// Takes \a frames of outputCount samples.
    void write(const double *spread, size_t frames);
    /// The last \a frames written, outputCount samples each: late by \a delays, and times \a gains.
    void read(double *out, size_t frames, const std::array<int, outputCount> &delays,
              const std::array<double, outputCount> &gains) const;

private:
    static_assert((length & (length - 1)) == 0, "positions wrap with their type");

    std::array<double, length * outputCount> m_samples{};  ///< frame by frame
    size_t m_position = 0;                                 ///< of the next write
};

}  // namespace headunit::engine
