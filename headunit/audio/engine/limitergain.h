// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include <array>
#include <cstdint>

namespace headunit::engine {

/// The gain of a pair of outputs in the limiter. It goes down along a smooth curve of attackFrames, stays down as long
/// as half a period of the deepest bass takes, and comes back slowly, to exactly 1.
///
/// Gains are whole numbers, so that their mean is exact.
class LimiterGain {
public:
    static constexpr size_t groupFrames = 16;  ///< a gain is asked for so often
    static constexpr size_t boxFrames = 48;
    static constexpr size_t boxes = 4;  ///< moving averages in a row, which together make the smooth curve
    static constexpr size_t attackFrames = boxes * (boxFrames - 1) + 1;
    /// From the crest of a tone to its trough: no ripple down to 17 Hz.
    static constexpr size_t holdFrames = static_cast<size_t>(0.03 * sampleRate);

    /// The gain, 0 to 1, that nothing of the last group asked about may exceed. It is reached attackFrames from now on
    /// at the latest.
    void want(double gain);

    /// Whether the next gains are 1 without exception, so that next() need not be asked.
    bool isUnity() const { return m_unityFrames >= attackFrames; }
    /// The gain for the next frame.
    double next();

    /// The lowest gain since the last call.
    double takeLowest();

private:
    using Gain = int64_t;
    static constexpr Gain unity = Gain(1) << 28;
    static constexpr double meanOfUnity = double(unity) * boxFrames * boxFrames * boxFrames * boxFrames;
    static_assert(boxes == 4 && meanOfUnity <= double(uint64_t(1) << 53), "a sum of gains is a whole double");
    static constexpr size_t windowGroups = (attackFrames + holdFrames) / groupFrames + 3;

    struct Held {
        uint64_t group;
        Gain gain;
    };
    struct Box {
        std::array<Gain, boxFrames> gains;
        Gain sum;
    };

    Gain lowestHeld(Gain gain);
    static std::array<Box, boxes> filledBoxes();

    uint64_t m_group = 0;
    std::array<Held, windowGroups> m_held{};  ///< rising gains of the groups in the window: the first is the lowest
    size_t m_heldFirst = 0;
    size_t m_heldCount = 0;
    Gain m_released = unity;
    std::array<Box, boxes> m_boxes = filledBoxes();
    size_t m_place = 0;                   ///< of the oldest gain in each box
    size_t m_unityFrames = attackFrames;  ///< since the last lower gain
    double m_lowest = 1;
};

}  // namespace headunit::engine
