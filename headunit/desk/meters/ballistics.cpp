// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/meters/ballistics.h"

#include "headunit/audio/engine/filterdesign.h"

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

double decibels(double gain) {
    return std::max(engine::toDecibels(gain), Ballistics::lowest);
}

/// Moves the mark of a value: held for some time, then falling, but never below the value.
void moveMark(double value, double seconds, double *mark, double *since) {
    if (value >= *mark) {
        *mark = value;
        *since = 0;
        return;
    }
    const double before = std::max(*since, Ballistics::holdSeconds);
    *since += seconds;
    const double falling = std::max(0.0, *since - before);
    *mark = std::max(value, *mark - falling * Ballistics::fallPerSecond);
}

}  // namespace

void Ballistics::feed(const engine::Meters &reading) {
    const double seconds = static_cast<double>(reading.frames) / engine::sampleRate;
    if (reading.frames == 0) {
        return;
    }
    const double part = 1 - std::exp(-seconds / meanSeconds);
    constexpr double sine = 2;  // its power to that of its mean
    for (size_t i = 0; i < engine::outputCount; ++i) {
        Output &output = m_outputs[i];
        const double peak = decibels(static_cast<double>(reading.peak[i]));
        output.peak = std::max({peak, output.peak - seconds * fallPerSecond, lowest});
        output.highest = std::max(output.highest, peak);
        moveMark(output.peak, seconds, &output.held, &m_sinceHeld[i]);
        m_power[i] += (reading.squares[i] / static_cast<double>(reading.frames) - m_power[i]) * part;
        output.rms = decibels(std::sqrt(sine * m_power[i]));
        output.overs += reading.overs[i];
    }
    for (size_t i = 0; i < engine::pairCount; ++i) {
        Pair &pair = m_pairs[i];
        pair.reduction = std::min(0.0, decibels(reading.limiterGain[i]));
        pair.most = std::min(pair.most, pair.reduction);
        double mark = -pair.held;
        moveMark(-pair.reduction, seconds, &mark, &m_sinceMost[i]);
        pair.held = -mark;
    }
}

void Ballistics::rest() {
    m_power.fill(0);
    for (Output &output : m_outputs) {
        output.peak = output.held = output.rms = lowest;
    }
    for (Pair &pair : m_pairs) {
        pair.reduction = pair.held = 0;
    }
}

void Ballistics::reset() {
    for (Output &output : m_outputs) {
        output.highest = lowest;
        output.overs = 0;
    }
    for (Pair &pair : m_pairs) {
        pair.most = 0;
    }
}

}  // namespace headunit
