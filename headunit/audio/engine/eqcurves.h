// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

#include <array>

namespace headunit::engine {

/// Gains in dB of the bands, from 63 Hz to 16 kHz.
using Curve = std::array<int, SoundState::bands>;

/// The curve that the equaliser is set to: a factory curve, or the live custom one. A type without a curve is flat.
Curve curveInForce(const SoundState &state);

}  // namespace headunit::engine
