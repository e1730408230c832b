// SPDX-License-Identifier: Apache-2.0
#include "outputfilters.h"

#include <algorithm>
#include <cstring>

namespace headunit::engine {

namespace {

std::array<double, coefficientCount> coefficients(const Biquad &section) {
    return {section.b0, section.b1, section.b2, section.a1, section.a2};
}

void place(const double *mix, std::array<double, outputCount> placement, double *spread, size_t frames) {
    for (size_t frame = 0; frame < frames; ++frame, mix += stereo, spread += outputCount) {
        const double left = mix[0];
        const double right = mix[1];
        for (size_t pair = 0; pair < outputCount; pair += stereo) {
            spread[pair] = left * placement[pair];
            spread[pair + 1] = right * placement[pair + 1];
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

OutputFilters::OutputFilters(const Kernel &kernel) : m_kernel(&kernel) {
    load(ChainParameters());
}

void OutputFilters::load(const ChainParameters &parameters) {
    loadTone(parameters);
    m_placement = parameters.placement;
    loadCrossover(parameters);
}

void OutputFilters::loadTone(const ChainParameters &parameters) {
    for (size_t group = 0; group < groupCount; ++group) {
        m_toneActive[group] = false;
    }
    for (size_t number = 0; number < toneSections; ++number) {
        const Biquad &section = parameters.tone[number];
        ToneGroup &group = m_tone[number / groupSections];
        const size_t place = number % halfSections;
        const size_t lane = number % groupSections / halfSections * stereo;
        const auto values = coefficients(section);
        for (size_t i = 0; i < coefficientCount; ++i) {
            std::fill_n(&group.coefficients[place][i][lane], stereo, values[i]);
        }
        if (section.isIdentity()) {
            // Its old contents must not come out of a section that passes samples on as they are.
            for (auto &state : group.states[place]) {
                std::fill_n(&state[lane], stereo, 0.0);
            }
        } else {
            m_toneActive[number / groupSections] = true;
        }
    }
}

void OutputFilters::loadCrossover(const ChainParameters &parameters) {
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

void OutputFilters::forget() {
    for (ToneGroup &group : m_tone) {
        std::fill_n(&group.states[0][0][0], halfSections * stateCount * groupLanes, 0.0);
    }
    std::fill_n(&m_bank.states[0][0][0], crossoverStages * stateCount * outputCount, 0.0);
}

bool OutputFilters::hasToneOf(const OutputFilters &other) const {
    return std::equal(m_tone.begin(), m_tone.end(), other.m_tone.begin(), [](const ToneGroup &a, const ToneGroup &b) {
        return std::memcmp(a.coefficients, b.coefficients, sizeof a.coefficients) == 0;
    });
}

bool OutputFilters::hasOutputOf(const OutputFilters &other, size_t output) const {
    bool same = m_placement[output] == other.m_placement[output];
    for (size_t stage = 0; stage < crossoverStages; ++stage) {
        for (size_t i = 0; i < coefficientCount; ++i) {
            same = same && m_bank.coefficients[stage][i][output] == other.m_bank.coefficients[stage][i][output];
        }
    }
    return same;
}

void OutputFilters::goOnFrom(const OutputFilters &other) {
    if (!hasToneOf(other)) {
        return;
    }
    m_tone = other.m_tone;
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t stage = 0; stage < crossoverStages && hasOutputOf(other, output); ++stage) {
            for (size_t i = 0; i < stateCount; ++i) {
                m_bank.states[stage][i][output] = other.m_bank.states[stage][i][output];
            }
        }
    }
}

void OutputFilters::process(const double *program, const double *prompts, double *spread, size_t frames) {
    std::array<double, maxBlockFrames * stereo> toned;
    std::copy_n(program, frames * stereo, toned.begin());
    for (size_t group = 0; group < groupCount; ++group) {
        if (m_toneActive[group]) {
            m_kernel->tone(&m_tone[group], toned.data(), frames);
        }
    }
    place(toned.data(), m_placement, spread, frames);
    if (prompts) {
        addPrompts(prompts, spread, frames);
    }
    if (m_bankActive) {
        m_kernel->outputs(&m_bank, spread, frames);
    }
}

}  // namespace headunit::engine
