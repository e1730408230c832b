// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

namespace headunit {

/// The part of the sound that must be taken from the store again.
enum class SoundPart { Crossover, Delays, Defeat, All };

/// The sound side of the unit, as far as the store knows it.
using SoundListener = std::function<void(SoundPart)>;

/// Installs the one listener; an empty function removes it.
void setSoundListener(SoundListener listener);
void notifySound(SoundPart part);

}  // namespace headunit
