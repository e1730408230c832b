#pragma once

#include "kernel.h"

#include <array>
#include <cstdint>

namespace headunit::engine {

/// The last frames of all outputs, each of which is read back with a delay of its own.
class DelayLine {
public:
    static constexpr size_t length = 512;  ///< in samples: more than the longest delay of 9.9 ms

    /// Takes \a frames of lanes samples; gives as many of outputCount, late by \a delays and times \a gains.
    void process(const double *spread, double *out, size_t frames, const std::array<int, outputCount> &delays,
                 const std::array<double, outputCount> &gains);

private:
    static_assert((length & (length - 1)) == 0, "positions wrap by a mask");

    std::array<std::array<double, length>, outputCount> m_samples{};
    size_t m_position = 0;
};

}  // namespace headunit::engine
