// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "biquad.h"

#include <array>
#include <cstddef>

namespace headunit::engine {

constexpr size_t loudnessSections = 6;

/// How much more, in dB, a tone must be turned up than one of 1 kHz to sound as loud beside it at \a attenuation dB
/// (0 to 60) below the reference level as it did there. \a point counts the standard's frequencies, 20 Hz to 12.5 kHz.
double equalLoudnessBoost(size_t point, double attenuation);
constexpr size_t loudnessPoints = 29;
/// The standard's frequencies in Hz.
extern const std::array<double, loudnessPoints> loudnessFrequencies;

/// The filters that follow equalLoudnessBoost(). Beyond an attenuation of 19.5 dB they stay as they are, so that the
/// bass is never raised by more than 12 dB.
std::array<Biquad, loudnessSections> designLoudness(double attenuation);

}  // namespace headunit::engine
