#pragma once

#include "format.h"

#include <array>
#include <cstdint>

namespace headunit::engine {

/// Keeps all outputs within full scale: one gain for all of them, lowered ahead of a peak and slowly given back. What
/// needs no limiting passes unchanged, bit for bit.
///
/// Gains are whole numbers, so that their mean over the lookahead is exact and returns to exactly 1.
class Limiter {
public:
    static constexpr size_t lookahead = 64;           ///< in samples
    static constexpr size_t latency = lookahead - 1;  ///< of what comes out, in samples

    /// Takes \a frames of outputCount samples, gives as many, delayed.
    void process(const double *in, float *out, size_t frames);

    /// The lowest gain since the last call, 0 to 1.
    double takeLowestGain();

private:
    using Gain = int64_t;
    static constexpr Gain unity = Gain(1) << 30;

    struct Peak {
        uint64_t frame;
        Gain gain;
    };

    Gain wantedGain(const double *frame);
    void holdLowest(Gain gain);
    double smoothedGain(Gain wanted);

    std::array<double, lookahead * outputCount> m_samples{};
    uint64_t m_frame = 0;
    uint64_t m_lastLimited = 0;  ///< the frame in which a gain below unity was last in the mean, plus the lookahead
    std::array<Peak, lookahead> m_held{};  ///< rising gains of the frames ahead: the first is the lowest
    size_t m_heldFirst = 0;
    size_t m_heldCount = 0;
    Gain m_released = unity;
    std::array<Gain, lookahead> m_history = filled();
    Gain m_sum = unity * Gain(lookahead);
    Gain m_lowestSum = unity * Gain(lookahead);

    static constexpr std::array<Gain, lookahead> filled() {
        std::array<Gain, lookahead> gains{};
        for (Gain &gain : gains) {
            gain = unity;
        }
        return gains;
    }
};

}  // namespace headunit::engine
