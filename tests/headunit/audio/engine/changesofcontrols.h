#pragma once

#include "headunit/audio/engine/format.h"
#include "headunit/audio/service/soundstate.h"

#include <QMetaType>

Q_DECLARE_METATYPE(headunit::SoundState)
Q_DECLARE_METATYPE(headunit::engine::Input)

/// Columns and rows for a test of a change of every control: the settings before and after, the highest residual above
/// 2 kHz in dB that it may leave, and the input on which it is heard.
void addChangesOfControls();

/// Rows of the same kind: prompts begin and end, for which what plays steps back, on a longer way than other changes.
void addPrompts();
