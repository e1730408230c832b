// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "biquad.h"

#include <array>

namespace headunit::engine {

/// Up to third order: a second-order section and a first-order one, either of which may be the identity.
using CrossoverSections = std::array<Biquad, 2>;

/// Butterworth filters of \a order 1 to 3, -3.01 dB at \a hz.
CrossoverSections butterworthHighPass(int order, double hz);
CrossoverSections butterworthLowPass(int order, double hz);

/// Distance of \a hz from a section's \a centre (both in Hz) on the axis on which a section's magnitude is
/// (x^2 + gain^2 width^2) / (x^2 + width^2).
double warpedDistance(double hz, double centre);

/// A peak of \a gain (linear) at \a centre Hz. \a width is on the axis of warpedDistance().
Biquad peaking(double centre, double gain, double width);
/// First-order shelves of \a gain (linear) below or above; half the decibels at \a hz.
Biquad lowShelf(double hz, double gain);
Biquad highShelf(double hz, double gain);

double fromDecibels(double db);
/// -infinity for 0.
double toDecibels(double gain);

}  // namespace headunit::engine
