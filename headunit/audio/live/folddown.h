#pragma once

#include "headunit/audio/engine/kernel.h"

#include <cstddef>

namespace headunit {

/// Turns frames of six outputs, in place, into frames of left and right: front, rear and subwoofer in equal parts, so
/// that full scale everywhere is full scale.
inline void foldDown(float *samples, size_t frames) {
    constexpr float share = 1.0F / 3;
    for (size_t frame = 0; frame < frames; ++frame) {
        const float *const from = samples + frame * engine::outputCount;
        const float left = share * (from[engine::FrontLeft] + from[engine::RearLeft] + from[engine::SubLeft]);
        const float right = share * (from[engine::FrontRight] + from[engine::RearRight] + from[engine::SubRight]);
        samples[frame * engine::stereo] = left;
        samples[frame * engine::stereo + 1] = right;
    }
}

}  // namespace headunit
