// SPDX-License-Identifier: Apache-2.0
#include "delayline.h"

#include <algorithm>
#include <cstring>

namespace headunit::engine {

void DelayLine::write(const double *spread, size_t frames) {
    for (size_t done = 0; done < frames;) {
        const size_t place = m_position % length;
        const size_t count = std::min(frames - done, length - place);
        std::copy_n(spread + done * outputCount, count * outputCount, &m_samples[place * outputCount]);
        m_position += count;
        done += count;
    }
}

void DelayLine::read(double *out, size_t frames, const std::array<int, outputCount> &delays,
                     const std::array<double, outputCount> &gains) const {
    using Pair = double __attribute__((vector_size(stereo * sizeof(double))));
    std::array<Pair, pairCount> gain;
    for (size_t pair = 0; pair < pairCount; ++pair) {
        gain[pair] = Pair{gains[stereo * pair], gains[stereo * pair + 1]};
    }
    for (size_t done = 0; done < frames;) {
        size_t count = frames - done;
        std::array<const double *, outputCount> from;
        for (size_t output = 0; output < outputCount; ++output) {
            const size_t place = (m_position - frames + done - static_cast<size_t>(delays[output])) % length;
            from[output] = &m_samples[place * outputCount + output];
            count = std::min(count, length - place);
        }
        double *to = out + done * outputCount;
        for (size_t i = 0; i < count * outputCount; i += outputCount, to += outputCount) {
            for (size_t pair = 0; pair < pairCount; ++pair) {
                const Pair samples = Pair{from[stereo * pair][i], from[stereo * pair + 1][i]} * gain[pair];
                std::memcpy(to + stereo * pair, &samples, sizeof samples);
            }
        }
        done += count;
    }
}

}  // namespace headunit::engine
