#include "limiter.h"

#include <algorithm>
#include <cmath>

namespace headunit::engine {

namespace {

constexpr int64_t releaseSamples = static_cast<int64_t>(0.1 * sampleRate);  ///< time constant

}  // namespace

Limiter::Gain Limiter::wantedGain(const double *frame) {
    double peak = 0;
    for (size_t output = 0; output < outputCount; ++output) {
        peak = std::max(peak, std::abs(frame[output]));
    }
    return peak > 1 ? static_cast<Gain>(static_cast<double>(unity) / peak) : unity;
}

void Limiter::holdLowest(Gain gain) {
    if (m_heldCount > 0 && m_held[m_heldFirst].frame + lookahead <= m_frame) {
        m_heldFirst = (m_heldFirst + 1) % lookahead;
        --m_heldCount;
    }
    while (m_heldCount > 0 && m_held[(m_heldFirst + m_heldCount - 1) % lookahead].gain >= gain) {
        --m_heldCount;
    }
    if (gain < unity) {
        m_held[(m_heldFirst + m_heldCount) % lookahead] = {m_frame, gain};
        ++m_heldCount;
    }
}

double Limiter::smoothedGain(Gain wanted) {
    holdLowest(wanted);
    const Gain lowest = m_heldCount > 0 ? m_held[m_heldFirst].gain : unity;
    const Gain missing = unity - m_released;
    m_released = std::min({lowest, unity, m_released + std::max<Gain>(1, missing / releaseSamples)});
    Gain &oldest = m_history[m_frame % lookahead];
    m_sum += m_released - oldest;
    oldest = m_released;
    m_lowestSum = std::min(m_lowestSum, m_sum);
    if (m_released < unity) {
        m_lastLimited = m_frame + lookahead;
    }
    return static_cast<double>(m_sum) / static_cast<double>(unity * Gain(lookahead));
}

void Limiter::process(const double *in, float *out, size_t frames) {
    for (size_t i = 0; i < frames; ++i, in += outputCount, out += outputCount, ++m_frame) {
        std::copy_n(in, outputCount, &m_samples[m_frame % lookahead * outputCount]);
        const double *const delayed = &m_samples[(m_frame + 1) % lookahead * outputCount];
        const Gain wanted = wantedGain(in);
        if (wanted == unity && m_frame > m_lastLimited) {
            std::copy_n(delayed, outputCount, out);
            continue;
        }
        const double gain = smoothedGain(wanted);
        for (size_t output = 0; output < outputCount; ++output) {
            out[output] = static_cast<float>(std::clamp(delayed[output] * gain, -1.0, 1.0));
        }
    }
}

double Limiter::takeLowestGain() {
    const double lowest = static_cast<double>(m_lowestSum) / static_cast<double>(unity * Gain(lookahead));
    m_lowestSum = m_sum;
    return lowest;
}

}  // namespace headunit::engine
