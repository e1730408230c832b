// SPDX-License-Identifier: Apache-2.0
#include "response.h"

#include "kernel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace headunit::engine {

namespace {

using Complex = std::complex<double>;

/// A transfer function at a frequency, and the slope of its logarithm over the angular frequency.
struct Transfer {
    Complex value = 1;
    Complex slope = 0;

    void operator*=(const Transfer &o) {
        value *= o.value;
        slope += o.slope;
    }
};

Transfer transfer(const Biquad &section, Complex back) {
    const Complex above = section.b0 + back * (section.b1 + back * section.b2);
    const Complex below = 1.0 + back * (section.a1 + back * section.a2);
    const Complex aboveSlope = back * (section.b1 + 2.0 * back * section.b2);
    const Complex belowSlope = back * (section.a1 + 2.0 * back * section.a2);
    return {above / below, Complex(0, -1 / sampleRate) * (aboveSlope / above - belowSlope / below)};
}

template <typename Sections> Transfer cascade(const Sections &sections, Complex back) {
    Transfer whole;
    for (const Biquad &section : sections) {
        if (!section.isIdentity()) {
            whole *= transfer(section, back);
        }
    }
    return whole;
}

using Transfers = std::array<Transfer, outputCount>;

Transfers transfers(const Parameters &parameters, double hz) {
    const ChainParameters &chain = parameters.chain;
    const Complex back = std::polar(1.0, -2 * pi * hz / sampleRate);
    const Transfer tone = cascade(chain.tone, back);
    const double program = parameters.inputGain[MainInput] * parameters.ducking[MainInput];
    Transfers all;
    for (size_t output = 0; output < outputCount; ++output) {
        const bool asLeft = output % stereo == 1 && chain.crossover[output] == chain.crossover[output - 1];
        Transfer &transfer = all[output];
        if (asLeft) {
            transfer = all[output - 1];
            continue;
        }
        transfer = tone;
        transfer *= cascade(chain.crossover[output], back);
    }
    for (size_t output = 0; output < outputCount; ++output) {
        const double seconds = chain.delay[output] / sampleRate;
        all[output].value *=
            program * chain.placement[output] * chain.gain[output] * std::polar(1.0, -2 * pi * hz * seconds);
        all[output].slope -= Complex(0, seconds);
    }
    return all;
}

double groupDelay(Complex value, Complex slope) {
    return value == 0.0 ? std::numeric_limits<double>::quiet_NaN() : -slope.imag();
}

HighestGain highestAt(const Parameters &parameters, double hz) {
    HighestGain highest;
    const Transfers all = transfers(parameters, hz);
    for (size_t output = 0; output < outputCount; ++output) {
        const double gain = std::abs(all[output].value);
        if (gain > highest.gain) {
            highest = {gain, hz, output};
        }
    }
    return highest;
}

}  // namespace

std::vector<MeasuredPoint> calculateResponse(const Parameters &parameters, const std::vector<double> &frequencies) {
    std::vector<MeasuredPoint> points;
    points.reserve(frequencies.size());
    for (const double hz : frequencies) {
        MeasuredPoint point{hz, {}};
        const Transfers all = transfers(parameters, hz);
        std::transform(all.begin(), all.end(), point.outputs.begin(), [](const Transfer &t) { return t.value; });
        points.push_back(point);
    }
    return points;
}

std::vector<GroupDelays> calculateGroupDelays(const Parameters &parameters, const std::vector<double> &frequencies) {
    std::vector<GroupDelays> delays;
    delays.reserve(frequencies.size());
    for (const double hz : frequencies) {
        const Transfers all = transfers(parameters, hz);
        GroupDelays there;
        Complex sum = 0;
        Complex slopeOfSum = 0;
        for (size_t output = 0; output < outputCount; ++output) {
            there[output] = groupDelay(all[output].value, all[output].slope);
            sum += all[output].value;
            slopeOfSum += all[output].value * all[output].slope;
        }
        there[outputCount] = groupDelay(sum, slopeOfSum / sum);
        delays.push_back(there);
    }
    return delays;
}

HighestGain highestGain(const Parameters &parameters) {
    const double step = std::exp2(1.0 / 24);
    constexpr double lowest = 20;
    constexpr double top = 20000;
    HighestGain highest;
    for (double hz = lowest; hz <= top; hz *= step) {
        const HighestGain there = highestAt(parameters, hz);
        highest = there.gain > highest.gain ? there : highest;
    }
    // Between the neighbours of the highest one.
    constexpr int finer = 16;
    const double middle = highest.hz;
    for (int i = -finer; i <= finer && highest.gain > 0; ++i) {
        const double hz = std::clamp(middle * std::pow(step, double(i) / finer), lowest, top);
        const HighestGain there = highestAt(parameters, hz);
        highest = there.gain > highest.gain ? there : highest;
    }
    return highest;
}

}  // namespace headunit::engine
