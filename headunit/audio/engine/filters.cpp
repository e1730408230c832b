#include "filters.h"

#include <algorithm>

namespace headunit::engine {

namespace {

std::array<double, coefficientCount> coefficients(const Biquad &section) {
    return {section.b0, section.b1, section.b2, section.a1, section.a2};
}

void place(const double *mix, const std::array<double, outputCount> &placement, double *spread, size_t frames) {
    for (size_t frame = 0; frame < frames; ++frame) {
        for (size_t output = 0; output < outputCount; ++output) {
            spread[frame * outputCount + output] = mix[frame * stereo + output % stereo] * placement[output];
        }
    }
}

void addPrompts(const double *prompts, double *spread, size_t frames) {
    for (size_t frame = 0; frame < frames; ++frame) {
        spread[frame * outputCount + FrontLeft] += prompts[frame * stereo];
        spread[frame * outputCount + FrontRight] += prompts[frame * stereo + 1];
    }
}

}  // namespace

Filters::Filters(const Kernel &kernel) : m_kernel(&kernel) {
    load(ChainParameters());
}

void Filters::load(const ChainParameters &parameters) {
    loadTone(parameters);
    m_placement = parameters.placement;
    loadCrossover(parameters);
}

void Filters::loadTone(const ChainParameters &parameters) {
    for (size_t group = 0; group < groupCount; ++group) {
        m_toneActive[group] = false;
        for (size_t i = 0; i < groupSections; ++i) {
            const Biquad &section = parameters.tone[group * groupSections + i];
            const auto values = coefficients(section);
            std::copy(values.begin(), values.end(), m_tone[group].coefficients[i]);
            if (section.isIdentity()) {
                // What it heard must not come out of a section that passes samples on as they are.
                std::fill_n(&m_tone[group].states[i][0][0], stateCount * stereo, 0.0);
            } else {
                m_toneActive[group] = true;
            }
        }
    }
}

void Filters::loadCrossover(const ChainParameters &parameters) {
    m_bankActive = false;
    for (size_t stage = 0; stage < crossoverStages; ++stage) {
        for (size_t output = 0; output < outputCount; ++output) {
            const Biquad &section = parameters.crossover[output][stage];
            const auto values = coefficients(section);
            for (size_t i = 0; i < coefficientCount; ++i) {
                m_bank.coefficients[stage][i][output] = values[i];
            }
            if (section.isIdentity()) {
                for (auto &state : m_bank.states[stage]) {
                    state[output] = 0;
                }
            } else {
                m_bankActive = true;
            }
        }
    }
}

void Filters::process(double *mix, const double *prompts, double *spread, size_t frames) {
    for (size_t group = 0; group < groupCount; ++group) {
        if (m_toneActive[group]) {
            m_kernel->tone(&m_tone[group], mix, frames);
        }
    }
    place(mix, m_placement, spread, frames);
    if (prompts) {
        addPrompts(prompts, spread, frames);
    }
    if (m_bankActive) {
        m_kernel->outputs(&m_bank, spread, frames);
    }
}

}  // namespace headunit::engine
