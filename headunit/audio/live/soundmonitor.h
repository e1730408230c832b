// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/meters.h"

namespace headunit {

/// What windows may know of the sound while it plays. GUI thread.
class SoundMonitor {
public:
    virtual ~SoundMonitor() = default;

    /// Gives the readings since the last call; false if nothing was played.
    virtual bool takeReading(engine::Meters *reading) = 0;
};

}  // namespace headunit
