// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "biquad.h"

#include "headunit/audio/service/soundtables.h"

#include <array>

namespace headunit::engine {

constexpr size_t bandCount = bandFrequencies.size();

using BandGains = std::array<double, bandCount>;  ///< in dB

/// The equaliser that has exactly \a wanted at the centres of its bands, -12 to 12 dB each: neighbours overlap, so each
/// section's own gain is solved for. All 0 dB is the identity.
std::array<Biquad, bandCount> designEqualiser(const BandGains &wanted);

}  // namespace headunit::engine
