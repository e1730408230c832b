// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/kernel.h"
#include "headunit/audio/engine/meters.h"
#include "headunit/audio/service/soundstate.h"

#include <string>

namespace headunit {

/// Plays a sound file under \a state into a six-channel one of the same length, from its first sample on. False, with a
/// reason in \a error, if one of the files cannot be used; then nothing stands under the name \a out that was not
/// there before. \a meters says how loud it became.
bool renderFile(const std::string &in, const std::string &out, const SoundState &state, engine::Meters *meters,
                std::string *error, const engine::Kernel &kernel = engine::bestKernel());

}  // namespace headunit
