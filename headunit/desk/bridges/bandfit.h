// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/eqcurves.h"

#include <functional>

namespace headunit {

/// The bands that come nearest to a curve, and what is left.
struct BandFit {
    engine::Curve gains{};  ///< dB
    double rms = 0;         ///< of the error, dB, each octave counted alike
    double most = 0;        ///< the largest error, dB, ...
    double mostHz = 0;      ///< ... and where
};

/// Where curves are compared: from half an octave below the lowest band up.
constexpr double lowestFitHz = 45;
constexpr double highestFitHz = 20000;

/// The least squares of \a wanted (dB at a frequency) among all that the equaliser can be set to, as it sounds: its
/// bands overlap, have steps of 1 dB, and go from -12 to 12 dB.
BandFit fitBands(const std::function<double(double hz)> &wanted);

/// What the equaliser gives under these bands, in dB.
double equaliserDecibels(const engine::Curve &gains, double hz);

}  // namespace headunit
