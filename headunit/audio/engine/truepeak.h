// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kernel.h"

namespace headunit::engine {

/// Reads how high a signal goes between its samples: four times oversampled, and a parabola through the highest three.
/// Up to 20 kHz it reads 0.05 dB too little at most, and never too much. A signal so near half the sample rate that it
/// can't be read so is told beside it.
class TruePeak {
public:
    struct Reading {
        double peak = 0;    ///< the highest magnitude
        double unread = 0;  ///< how much higher it may be
    };

    static constexpr size_t frames = interpolatedFrames;  ///< that are read at once
    static constexpr size_t before = 12;                  ///< samples that must be known ahead of them
    static constexpr size_t behind = 12;                  ///< and behind them
    static constexpr size_t window = before + frames + behind;

    /// As long as no sample exceeds this, nothing between them exceeds 1.
    double harmlessSample() const { return m_harmlessSample; }

    explicit TruePeak(const Kernel &kernel);

    /// Of \a frames samples, and what lies between each and its next.
    Reading read(const std::array<float, window> &samples) const;

private:
    using Rows = std::array<std::array<float, frames>, interpolatorRows>;

    float highestParabola(const std::array<float, window> &samples, const Rows &rows, float least) const;

    const Kernel *m_kernel;
    Interpolator m_interpolator;
    double m_harmlessSample;
};

}  // namespace headunit::engine
