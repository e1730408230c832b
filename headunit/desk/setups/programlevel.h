// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

namespace headunit {

/// How loud music is under \a state, in dB: the power of all outputs together, of pink noise on the main input,
/// weighted as the ear hears it (A). Only differences of two such levels mean something.
double programLevel(const SoundState &state);

}  // namespace headunit
