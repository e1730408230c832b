#include "delayline.h"

namespace headunit::engine {

void DelayLine::write(const double *spread, size_t frames) {
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < frames; ++frame) {
            m_samples[output][(m_position + frame) % length] = spread[frame * outputCount + output];
        }
    }
    m_position += frames;
}

void DelayLine::read(double *out, size_t frames, const std::array<int, outputCount> &delays,
                     const std::array<double, outputCount> &gains) const {
    for (size_t output = 0; output < outputCount; ++output) {
        const size_t first = m_position - frames - static_cast<size_t>(delays[output]);
        for (size_t frame = 0; frame < frames; ++frame) {
            out[frame * outputCount + output] = m_samples[output][(first + frame) % length] * gains[output];
        }
    }
}

}  // namespace headunit::engine
