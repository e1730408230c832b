#include "filters.h"

#include <algorithm>

namespace headunit::engine {

namespace {

std::array<double, coefficientCount> coefficients(const Biquad &section) {
    return {section.b0, section.b1, section.b2, section.a1, section.a2};
}

/// As kernels do it, where there is nothing to filter.
void spreadOnly(const double *mix, double *spread, size_t frames) {
    for (size_t frame = 0; frame < frames; ++frame) {
        for (size_t output = 0; output < outputCount; ++output) {
            spread[frame * outputCount + output] = mix[frame * stereo + output % stereo];
        }
    }
}

}  // namespace

Filters::Filters(const Kernel &kernel) : m_kernel(&kernel) {
    load(ChainParameters());
}

void Filters::load(const ChainParameters &parameters) {
    loadTone(parameters);
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

void Filters::process(double *mix, double *spread, size_t frames) {
    for (size_t group = 0; group < groupCount; ++group) {
        if (m_toneActive[group]) {
            m_kernel->tone(&m_tone[group], mix, frames);
        }
    }
    if (m_bankActive) {
        m_kernel->outputs(&m_bank, mix, spread, frames);
    } else {
        spreadOnly(mix, spread, frames);
    }
}

}  // namespace headunit::engine
