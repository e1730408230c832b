// SPDX-License-Identifier: Apache-2.0
#include "chain.h"

#include <algorithm>

namespace headunit::engine {

namespace {

void crossFade(double *from, const double *to, const double *weights, size_t frames) {
    for (size_t frame = 0; frame < frames; ++frame) {
        for (size_t i = frame * outputCount; i < (frame + 1) * outputCount; ++i) {
            from[i] += (to[i] - from[i]) * weights[frame];
        }
    }
}

}  // namespace

Chain::Chain(const Kernel &kernel) : m_filters(kernel), m_nextFilters(kernel) {}

void Chain::load(const ChainParameters &parameters) {
    m_parameters = parameters;
    m_filters.load(parameters);
}

void Chain::fadeTo(const ChainParameters &parameters) {
    m_fading = !(parameters == m_parameters);
    if (m_fading) {
        m_next = parameters;
        m_nextFilters.load(parameters);
        letNextFiltersHear();
    }
}

/// Takes about a tenth of a millisecond, once a fade at most.
void Chain::letNextFiltersHear() {
    static_assert(MixHistory::length % maxBlockFrames == 0, "the history is heard in whole blocks");
    std::array<double, maxBlockFrames * stereo> program;
    std::array<double, maxBlockFrames * stereo> prompts;
    std::array<double, maxBlockFrames * outputCount> spread;
    m_nextFilters.forget();
    for (size_t age = MixHistory::length; age > 0; age -= maxBlockFrames) {
        m_history.read(program.data(), prompts.data(), age, maxBlockFrames);
        m_nextFilters.process(program.data(), prompts.data(), spread.data(), maxBlockFrames);
    }
    m_nextFilters.goOnFrom(m_filters);
}

void Chain::endFade() {
    if (m_fading) {
        m_fading = false;
        m_parameters = m_next;
        m_filters = m_nextFilters;
    }
}

void Chain::process(const double *program, const double *prompts, double *out, size_t frames, const double *weights) {
    std::array<double, maxBlockFrames * outputCount> spread;
    m_history.write(program, prompts, frames);
    m_filters.process(program, prompts, spread.data(), frames);
    if (!m_fading) {
        m_delay.write(spread.data(), frames);
        m_delay.read(out, frames, m_parameters.delay, m_parameters.gain);
        return;
    }
    std::array<double, maxBlockFrames * outputCount> next;
    m_nextFilters.process(program, prompts, next.data(), frames);
    crossFade(spread.data(), next.data(), weights, frames);
    m_delay.write(spread.data(), frames);
    m_delay.read(out, frames, m_parameters.delay, m_parameters.gain);
    m_delay.read(next.data(), frames, m_next.delay, m_next.gain);
    crossFade(out, next.data(), weights, frames);
}

}  // namespace headunit::engine
