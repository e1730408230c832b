// SPDX-License-Identifier: Apache-2.0
#pragma once

class QJSEngine;
class QJSValue;

namespace headunit {

/// The unit's sound state as an object of a script, with the names of SoundState.
QJSValue soundObject(QJSEngine &engine);

/// The level at each loudspeaker of a tone of \a hz on an \a input (engine::Input), measured on the engine's samples:
/// decibels and degrees of the six outputs, as { db: [...], deg: [...] }. Decibels are -Infinity for silence.
QJSValue heardObject(QJSEngine &scripts, double hz, int input);

/// After how many samples each output begins to answer; -1 for one that is silent.
QJSValue arrivalArray(QJSEngine &scripts);

}  // namespace headunit
