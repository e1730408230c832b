// SPDX-License-Identifier: Apache-2.0
#include "mixhistory.h"

#include <algorithm>

namespace headunit::engine {

namespace {

void narrow(const double *from, float *to, size_t count) {
    std::transform(from, from + count, to, [](double sample) { return static_cast<float>(sample); });
}

}  // namespace

void MixHistory::write(const double *program, const double *prompts, size_t frames) {
    for (size_t done = 0; done < frames;) {
        const size_t place = m_position;
        const size_t count = std::min(frames - done, length - place);
        narrow(program + done * stereo, &m_program[place * stereo], count * stereo);
        if (prompts) {
            m_silentFrames = 0;
            narrow(prompts + done * stereo, &m_prompts[place * stereo], count * stereo);
        } else if (m_silentFrames < length) {
            m_silentFrames += count;
            std::fill_n(&m_prompts[place * stereo], count * stereo, 0.0F);
        }
        m_position = (m_position + count) % length;
        done += count;
    }
}

void MixHistory::read(double *program, double *prompts, size_t age, size_t frames) const {
    for (size_t done = 0; done < frames;) {
        const size_t place = (m_position + length - age + done) % length;
        const size_t count = std::min(frames - done, length - place);
        std::copy_n(&m_program[place * stereo], count * stereo, program + done * stereo);
        std::copy_n(&m_prompts[place * stereo], count * stereo, prompts + done * stereo);
        done += count;
    }
}

}  // namespace headunit::engine
