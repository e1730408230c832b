// SPDX-License-Identifier: Apache-2.0
#include "ducking.h"

#include <algorithm>
#include <cmath>

namespace headunit::engine {

void Ducking::jumpTo(double gain) {
    m_target = m_line = static_cast<Gain>(std::lround(gain * static_cast<double>(unity)));
    m_settled = downSamples;
    m_sums.fill(m_target * Gain(meanSamples));
    for (auto &history : m_history) {
        history.fill(static_cast<int32_t>(m_target));
    }
}

void Ducking::goTo(double gain) {
    const Gain target = static_cast<Gain>(std::lround(gain * static_cast<double>(unity)));
    if (target == m_target) {
        return;
    }
    // The time of the means comes on top of the line.
    constexpr Gain lineSamples = static_cast<Gain>(upSamples - downSamples);
    m_target = target;
    m_rise = std::max<Gain>(0, target - m_line + lineSamples - 1) / lineSamples;
    m_settled = 0;
}

Ducking::Gain Ducking::next() {
    m_line = std::min(m_target, m_line + m_rise);
    m_settled = m_line == m_target ? m_settled + 1 : 0;
    Gain gain = m_line;
    for (size_t mean = 0; mean < means; ++mean) {
        int32_t &oldest = m_history[mean][m_position];
        m_sums[mean] += gain - oldest;
        oldest = static_cast<int32_t>(gain);
        gain = m_sums[mean] / Gain(meanSamples);
    }
    m_position = (m_position + 1) % meanSamples;
    return gain;
}

void Ducking::advance(double *gains, size_t frames) {
    size_t frame = 0;
    for (; frame < frames && isMoving(); ++frame) {
        gains[frame] = toDouble(next());
    }
    std::fill(gains + frame, gains + frames, gain());
}

}  // namespace headunit::engine
