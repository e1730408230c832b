// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/layout.h"
#include "headunit/audio/service/soundstate.h"

#include <string>
#include <vector>

/// A change of a control: the settings before and after, and the input on which it is heard.
struct ChangeOfControl {
    enum Size { Any, OneDecibel };

    std::string name;
    Size size;
    headunit::SoundState before;
    headunit::SoundState after;
    headunit::engine::Input input;
};

/// Of every control, small and large.
const std::vector<ChangeOfControl> &changesOfControls();

/// Prompts begin and end, for which what plays steps back, on a longer way than other changes.
const std::vector<ChangeOfControl> &changesOfPrompts();
