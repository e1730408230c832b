#include "delayline.h"

#include <algorithm>

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
    for (size_t output = 0; output < outputCount; ++output) {
        const size_t first = m_position - frames - static_cast<size_t>(delays[output]);
        const double gain = gains[output];
        for (size_t done = 0; done < frames;) {
            const size_t place = (first + done) % length;
            const size_t count = std::min(frames - done, length - place);
            const double *const from = &m_samples[place * outputCount + output];
            double *const to = out + done * outputCount + output;
            for (size_t i = 0; i < count * outputCount; i += outputCount) {
                to[i] = from[i] * gain;
            }
            done += count;
        }
    }
}

}  // namespace headunit::engine
