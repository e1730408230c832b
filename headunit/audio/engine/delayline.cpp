#include "delayline.h"

namespace headunit::engine {

void DelayLine::process(const double *spread, double *out, size_t frames, const std::array<int, outputCount> &delays,
                        const std::array<double, outputCount> &gains) {
    for (size_t output = 0; output < outputCount; ++output) {
        std::array<double, length> &line = m_samples[output];
        const size_t delay = static_cast<size_t>(delays[output]);
        for (size_t frame = 0; frame < frames; ++frame) {
            const size_t position = m_position + frame;
            line[position % length] = spread[frame * lanes + output];
            out[frame * outputCount + output] = line[(position - delay) % length] * gains[output];
        }
    }
    m_position += frames;
}

}  // namespace headunit::engine
