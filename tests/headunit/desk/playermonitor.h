// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/live/player.h"
#include "headunit/audio/live/soundmonitor.h"
#include "headunit/audio/service/soundmodel.h"

#include <vector>

/// The unit's sound without a device: what a window watches, and what the loudspeakers would have got.
class PlayerMonitor : public headunit::SoundMonitor {
public:
    explicit PlayerMonitor(const char *what) {
        std::string error;
        if (!player.choose(what, &error)) {
            qFatal("%s", error.c_str());
        }
    }

    bool takeReading(headunit::engine::Meters *reading) override {
        const headunit::engine::Meters *const taken = player.takeMeters();
        if (taken) {
            *reading = *taken;
        }
        return taken;
    }

    /// Plays that long under the present settings; six samples a frame.
    std::vector<float> play(int ms) {
        player.setState(headunit::SoundModel::instance().state());
        const size_t frames = static_cast<size_t>(ms) * 48;
        std::vector<float> samples(frames * headunit::engine::outputCount);
        player.fill(samples.data(), frames);
        return samples;
    }

    headunit::Player player;
};
