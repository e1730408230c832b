// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace headunit::engine {

constexpr double sampleRate = 48000;  ///< in Hz, everywhere in the engine
constexpr double pi = 3.14159265358979323846;

/// The order of a frame's samples, as in SoundState::delay.
enum Output : size_t { FrontLeft, FrontRight, RearLeft, RearRight, SubLeft, SubRight };
constexpr size_t outputCount = 6;
constexpr size_t pairCount = 3;  ///< front, rear and subwoofer: left and right of one place in the car

/// The inputs of the mixer. The source that plays is the main one; the others are prompts, in the order of
/// headunit::Prompt.
enum Input : size_t { MainInput, RingtoneInput, PhoneInput, NavigationInput, VoiceInput, AnnouncementInput, BeepInput };
constexpr size_t inputCount = 7;

}  // namespace headunit::engine
