// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/programlevel.h"

#include "headunit/audio/engine/parameters.h"

#include <cmath>

namespace headunit {

namespace {

constexpr double lowestHz = 20;
constexpr double highestHz = 20000;
constexpr double stepsPerOctave = 6;

/// Weight A of a power at \a hz (IEC 61672).
double weight(double hz) {
    const double f2 = hz * hz;
    const double gain =
        12194.0 * 12194.0 * f2 * f2 /
        ((f2 + 20.6 * 20.6) * std::sqrt((f2 + 107.7 * 107.7) * (f2 + 737.9 * 737.9)) * (f2 + 12194.0 * 12194.0));
    return gain * gain;
}

}  // namespace

double programLevel(const SoundState &state) {
    const engine::Parameters parameters = engine::designParameters(state);
    const engine::ChainParameters &chain = parameters.chain;
    double power = 0;
    for (double hz = lowestHz; hz <= highestHz; hz *= std::exp2(1 / stepsPerOctave)) {
        double tone = parameters.inputGain[engine::MainInput];
        for (const engine::Biquad &section : chain.tone) {
            tone *= std::abs(engine::response(section, hz));
        }
        for (size_t output = 0; output < engine::outputCount; ++output) {
            double gain = tone * chain.placement[output] * chain.gain[output];
            for (const engine::Biquad &section : chain.crossover[output]) {
                gain *= std::abs(engine::response(section, hz));
            }
            power += gain * gain * weight(hz);
        }
    }
    constexpr double silence = 1e-30;
    return 10 * std::log10(power + silence);
}

}  // namespace headunit
