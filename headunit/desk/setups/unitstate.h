// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"
#include "headunit/settings/settingsmap.h"

#include <functional>

namespace headunit {

/// Everything that a set-up is: what is stored, and what sounds. The two may differ, as after a reset, which sends
/// other values than it stores.
struct UnitState {
    SettingsMap keys;
    SoundState sound;
};

UnitState currentState();

/// Puts settings in force as the unit would at power-up: the keys, the sound, the page in front, the announcement.
/// \a keys are the ones to change; an invalid value removes one. \a sound is what is to sound, or null for what the
/// keys say; the source that plays stays, as does the mute. \a refreshFront has the page in front read its settings
/// anew; it may be empty.
void putInForce(const SettingsMap &keys, const SoundState *sound, const std::function<void()> &refreshFront);

}  // namespace headunit
