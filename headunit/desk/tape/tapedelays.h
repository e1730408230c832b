// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

#include <array>

namespace headunit {

/// From the listener's head to each loudspeaker, in cm, in the order of SoundState::delay.
using TapeDistances = std::array<double, SoundState::outputs>;

/// The delay of one output that has all sounds arrive together.
struct TapeDelay {
    double exact = 0;  ///< ms
    int steps = 0;     ///< as the unit counts: 0.1 ms, within its range

    double rounding() const { return steps * 0.1 - exact; }  ///< ms
};

/// In m/s, of dry air at \a celsius.
double speedOfSound(double celsius);

/// The farthest loudspeaker has no delay, a nearer one as much as its sound would come earlier.
std::array<TapeDelay, SoundState::outputs> tapeDelays(const TapeDistances &distances, double celsius);

}  // namespace headunit
