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
        m_nextFilters = m_filters;
        m_nextFilters.load(parameters);
    }
}

void Chain::endFade() {
    if (m_fading) {
        m_fading = false;
        m_parameters = m_next;
        m_filters = m_nextFilters;
    }
}

void Chain::process(double *mix, const double *prompts, double *out, size_t frames, const double *weights) {
    std::array<double, largestBlock * outputCount> spread;
    if (!m_fading) {
        m_filters.process(mix, prompts, spread.data(), frames);
        m_delay.write(spread.data(), frames);
        m_delay.read(out, frames, m_parameters.delay, m_parameters.gain);
        return;
    }
    std::array<double, largestBlock * outputCount> next;
    std::array<double, largestBlock * stereo> copy;
    std::copy_n(mix, frames * stereo, copy.begin());
    m_filters.process(mix, prompts, spread.data(), frames);
    m_nextFilters.process(copy.data(), prompts, next.data(), frames);
    crossFade(spread.data(), next.data(), weights, frames);
    m_delay.write(spread.data(), frames);
    m_delay.read(out, frames, m_parameters.delay, m_parameters.gain);
    m_delay.read(next.data(), frames, m_next.delay, m_next.gain);
    crossFade(out, next.data(), weights, frames);
}

}  // namespace headunit::engine
