// SPDX-License-Identifier: Apache-2.0
#include "limitergain.h"

#include <algorithm>

namespace headunit::engine {

namespace {

constexpr int64_t releaseGroups = static_cast<int64_t>(0.1 * sampleRate) / LimiterGain::groupFrames;  ///< time constant

}  // namespace

std::array<LimiterGain::Box, LimiterGain::boxes> LimiterGain::filledBoxes() {
    std::array<Box, boxes> filled;
    Gain gain = unity;
    for (Box &box : filled) {
        box.gains.fill(gain);
        gain *= boxFrames;
        box.sum = gain;
    }
    return filled;
}

LimiterGain::Gain LimiterGain::lowestHeld(Gain gain) {
    const auto at = [this](size_t i) -> Held & { return m_held[(m_heldFirst + i) % windowGroups]; };
    if (m_heldCount > 0 && at(0).group + windowGroups <= m_group) {
        m_heldFirst = (m_heldFirst + 1) % windowGroups;
        --m_heldCount;
    }
    while (m_heldCount > 0 && at(m_heldCount - 1).gain >= gain) {
        --m_heldCount;
    }
    if (gain < unity) {
        at(m_heldCount++) = {m_group, gain};
    }
    ++m_group;
    return m_heldCount > 0 ? at(0).gain : unity;
}

void LimiterGain::want(double gain) {
    const Gain lowest = lowestHeld(std::min(unity, static_cast<Gain>(static_cast<double>(unity) * gain)));
    const Gain missing = unity - m_released;
    m_released = std::min({lowest, unity, m_released + std::max<Gain>(1, missing / releaseGroups)});
    if (m_released < unity) {
        m_unityFrames = 0;
    }
}

double LimiterGain::next() {
    Gain gain = m_released;
    for (Box &box : m_boxes) {
        Gain &oldest = box.gains[m_place];
        box.sum += gain - oldest;
        oldest = gain;
        gain = box.sum;
    }
    m_place = (m_place + 1) % boxFrames;
    m_unityFrames = m_released < unity ? 0 : m_unityFrames + 1;
    const double mean = static_cast<double>(gain) / meanOfUnity;
    m_lowest = std::min(m_lowest, mean);
    return mean;
}

double LimiterGain::takeLowest() {
    const double lowest = m_lowest;
    m_lowest = static_cast<double>(m_boxes.back().sum) / meanOfUnity;
    return lowest;
}

}  // namespace headunit::engine
