// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

#include <QJsonArray>

namespace headunit {

// The state of the sound as a row of numbers, for files; what plays just now (source, mute, prompts) is no part of it.

QJsonArray soundToJson(const SoundState &state);
/// Where the row is not one of soundToJson(), the rest is as a new state has it.
SoundState soundFromJson(const QJsonArray &numbers);

}  // namespace headunit
