// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/engine.h"
#include "headunit/audio/service/soundstate.h"

#include <array>
#include <complex>
#include <functional>
#include <vector>

/// The common parts of the engine's tests: settings to start from, signals, and looks at what comes out.
namespace rendering {

using headunit::SoundState;
using Stereo = std::vector<float>;  ///< left and right in turn
using Sound = std::array<std::vector<float>, headunit::engine::outputCount>;

/// Everything neutral and at full volume; the subwoofer plays unfiltered at 0 dB.
SoundState neutral();

Stereo tone(double hz, size_t frames, double amplitude = 0.25);
Stereo impulse(size_t frames, float height = 0.25F);
/// The same at every run.
Stereo noise(size_t frames, float amplitude = 0.25F);

/// The output for a signal on an input when the settings change after that many frames. The engine's latency is cut
/// off, and as many frames come out as go in.
struct Change {
    size_t frame;
    SoundState state;
};
Sound render(const SoundState &state, const Stereo &signal, const std::vector<Change> &changes = {},
             const std::vector<size_t> &blocks = {}, headunit::engine::Input input = headunit::engine::MainInput);

/// Complex amplitude of \a hz in samples from \a first on, by a Hann window over \a count of them.
std::complex<double> component(const std::vector<float> &samples, double hz, size_t first, size_t count);

/// Gain in dB from a tone on the main input to an output.
double gainDecibels(const SoundState &state, double hz, size_t output);

/// How many cases a sweep takes: \a usual (with the sanitizers a twentieth), or that times the environment's
/// ENGINE_SWEEP.
int sweep(int usual);

}  // namespace rendering
