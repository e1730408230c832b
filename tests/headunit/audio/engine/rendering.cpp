// SPDX-License-Identifier: Apache-2.0
#include "rendering.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>

using namespace headunit::engine;

namespace rendering {

namespace {}  // namespace

SoundState neutral() {
    SoundState state;
    state.eqType = 16;
    state.customEq.fill(12);
    state.channelLevel.fill(40);
    state.sourceGain.fill(10);
    state.subwooferLevel = 10;
    return state;
}

Stereo tone(double hz, size_t frames, double amplitude) {
    Stereo signal(frames * stereo);
    for (size_t i = 0; i < signal.size(); ++i) {
        const double time = static_cast<double>(i / stereo) / sampleRate;
        signal[i] = static_cast<float>(amplitude * std::sin(2 * pi * hz * time));
    }
    return signal;
}

Stereo impulse(size_t frames, float height) {
    Stereo signal(stereo, height);
    signal.resize(frames * stereo);
    return signal;
}

Stereo noise(size_t frames, float amplitude) {
    std::mt19937 random(1);
    Stereo signal(frames * stereo);
    for (float &sample : signal) {
        sample = amplitude * (static_cast<float>(random() >> 8) / 8388608.0F - 1);
    }
    return signal;
}

Sound render(const SoundState &state, const Stereo &signal, const std::vector<Change> &changes,
             const std::vector<size_t> &blocks, Input input) {
    Engine engine;
    engine.setParameters(designParameters(state));
    const size_t frames = signal.size() / stereo;
    Stereo padded = signal;
    padded.resize(signal.size() + Engine::latency * stereo);
    std::vector<float> out((frames + Engine::latency) * outputCount);
    size_t next = 0;
    size_t block = 0;
    for (size_t done = 0; done < frames + Engine::latency;) {
        size_t count = frames + Engine::latency - done;
        if (!blocks.empty()) {
            count = std::min(count, blocks[block++ % blocks.size()]);
        }
        if (next < changes.size()) {
            if (changes[next].frame == done) {
                engine.setParameters(designParameters(changes[next++].state));
                continue;
            }
            count = std::min(count, changes[next].frame - done);
        }
        Inputs inputs{};
        inputs[input] = padded.data() + done * stereo;
        engine.process(inputs, out.data() + done * outputCount, count);
        done += count;
    }
    Sound sound;
    for (size_t output = 0; output < outputCount; ++output) {
        for (size_t frame = 0; frame < frames; ++frame) {
            sound[output].push_back(out[(frame + Engine::latency) * outputCount + output]);
        }
    }
    return sound;
}

std::complex<double> component(const std::vector<float> &samples, double hz, size_t first, size_t count) {
    std::complex<double> sum = 0;
    for (size_t i = 0; i < count; ++i) {
        const double window = 1 - std::cos(2 * pi * (static_cast<double>(i) + 0.5) / static_cast<double>(count));
        const double angle = -2 * pi * hz * static_cast<double>(first + i) / sampleRate;
        sum += static_cast<double>(samples[first + i]) * window * std::polar(1.0, angle);
    }
    return sum * 2.0 / static_cast<double>(count);
}

double gainDecibels(const SoundState &state, double hz, size_t output) {
    constexpr size_t settling = 24000;
    constexpr size_t measured = 24000;
    const Stereo signal = tone(hz, settling + measured);
    std::vector<float> left;
    for (size_t i = 0; i < signal.size(); i += stereo) {
        left.push_back(signal[i]);
    }
    const auto in = std::abs(component(left, hz, settling, measured));
    const auto out = std::abs(component(render(state, signal)[output], hz, settling, measured));
    return 20 * std::log10(out / in);
}

int sweep(int usual) {
#ifdef __SANITIZE_ADDRESS__
    constexpr double usualFactor = 0.05;
#else
    constexpr double usualFactor = 1;
#endif
    const char *const asked = std::getenv("ENGINE_SWEEP");
    return std::max(1, static_cast<int>(usual * (asked ? std::atof(asked) : usualFactor)));
}

}  // namespace rendering
