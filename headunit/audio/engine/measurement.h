// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include "headunit/audio/service/soundstate.h"

#include <array>
#include <complex>
#include <vector>

namespace headunit::engine {

/// The level and phase of a tone that is alike on left and right of an input, once the engine's latency is taken off.
struct MeasuredPoint {
    double hz;
    std::array<std::complex<double>, outputCount> outputs;

    /// As if all loudspeakers stood in one place.
    std::complex<double> sum() const;
};

/// Measures the engine's samples under \a state at \a frequencies in Hz, below half the sample rate. Another \a input
/// than the main one takes its place.
std::vector<MeasuredPoint> measure(const SoundState &state, const std::vector<double> &frequencies,
                                   Input input = MainInput);

/// After how many samples each output begins to answer to the main input; -1 if it stays silent.
std::array<int, outputCount> measureArrival(const SoundState &state);

/// From 20 Hz to 20 kHz, 24 an octave, but close enough to follow the phase of the longest delay.
std::vector<double> audibleFrequencies();

}  // namespace headunit::engine
