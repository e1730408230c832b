// SPDX-License-Identifier: Apache-2.0
#include "measurement.h"

#include "engine.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace headunit::engine {

namespace {

constexpr size_t impulseFrames = static_cast<size_t>(sampleRate);  ///< by then the lowest filter has died away
constexpr float impulseHeight = 1.0F / 256;                        ///< too low for the limiter, whatever is set

/// The answer of all outputs to one sample on both sides.
std::vector<float> impulseResponse(const SoundState &state, Input input) {
    const auto sound = std::make_unique<Engine>();
    sound->setParameters(designParameters(state));
    std::vector<float> signal((impulseFrames + Engine::latency) * stereo);
    signal[0] = signal[1] = impulseHeight;
    std::vector<float> answer((impulseFrames + Engine::latency) * outputCount);
    Inputs inputs{};
    inputs[input] = signal.data();
    sound->process(inputs, answer.data(), impulseFrames + Engine::latency);
    answer.erase(answer.begin(), answer.begin() + Engine::latency * outputCount);
    return answer;
}

MeasuredPoint component(const std::vector<float> &answer, double hz) {
    MeasuredPoint point{hz, {}};
    const std::complex<double> step = std::polar(1.0, -2 * pi * hz / sampleRate);
    std::complex<double> turn = 1.0 / static_cast<double>(impulseHeight);
    for (size_t frame = 0; frame < impulseFrames; ++frame) {
        for (size_t output = 0; output < outputCount; ++output) {
            point.outputs[output] += static_cast<double>(answer[frame * outputCount + output]) * turn;
        }
        turn *= step;
    }
    return point;
}

}  // namespace

std::complex<double> MeasuredPoint::sum() const {
    return std::accumulate(outputs.begin(), outputs.end(), std::complex<double>());
}

std::vector<MeasuredPoint> measure(const SoundState &state, const std::vector<double> &frequencies, Input input) {
    const std::vector<float> answer = impulseResponse(state, input);
    std::vector<MeasuredPoint> points;
    points.reserve(frequencies.size());
    for (const double hz : frequencies) {
        points.push_back(component(answer, hz));
    }
    return points;
}

std::array<int, outputCount> measureArrival(const SoundState &state) {
    const std::vector<float> answer = impulseResponse(state, MainInput);
    std::array<int, outputCount> arrival;
    for (size_t output = 0; output < outputCount; ++output) {
        size_t frame = 0;
        while (frame < impulseFrames && answer[frame * outputCount + output] == 0) {
            ++frame;
        }
        arrival[output] = frame < impulseFrames ? static_cast<int>(frame) : -1;
    }
    return arrival;
}

std::vector<double> audibleFrequencies() {
    constexpr double lowest = 20;
    constexpr double highest = 20000;
    const double ratio = std::pow(2, 1.0 / 24);
    constexpr double widestStep = 25;  // the longest delay turns the phase by a quarter
    std::vector<double> frequencies;
    double hz = lowest;
    while (hz <= highest) {
        frequencies.push_back(hz);
        hz = std::min(hz * ratio, hz + widestStep);
    }
    return frequencies;
}

}  // namespace headunit::engine
