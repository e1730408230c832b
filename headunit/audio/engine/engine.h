// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "chain.h"
#include "ducking.h"
#include "fade.h"
#include "limiter.h"
#include "parameters.h"
#include "triplebuffer.h"

#include <array>

namespace headunit::engine {

/// The samples of each input: left and right in turn, full scale 1; null for an input that is silent.
using Inputs = std::array<const float *, inputCount>;

/// The sound processor: mixes the inputs, and gives each output what the parameters say. A change of parameters fades
/// in over fadeSamples; changes that come while one is fading in are taken together after it.
///
/// setParameters() belongs to one thread, the rest to another. None of them waits, allocates, or calls the system.
class Engine {
public:
    static constexpr size_t fadeSamples = static_cast<size_t>(0.040 * sampleRate);
    static constexpr size_t fadeInSamples = static_cast<size_t>(0.4 * sampleRate);
    static constexpr size_t latency = Limiter::latency;  ///< in samples, before any delay that is set

    /// Silent until the first parameters; what is set before the first sample holds from the first sample on.
    explicit Engine(const Kernel &kernel = bestKernel()) : m_chain(kernel), m_limiter(kernel) {}

    void setParameters(const Parameters &parameters) { m_parameters.write(parameters); }

    /// The next samples rise from silence over fadeInSamples.
    void fadeIn() { m_fadeIn.restart(); }
    /// Gives \a frames of outputCount samples, each within full scale. Any number of frames at a time gives the same.
    void process(const Inputs &inputs, float *out, size_t frames);
    /// The limiter's lowest gain of each pair since the last call, 0 to 1.
    std::array<double, pairCount> takeLimiterGains() { return m_limiter.takeLowestGains(); }
    /// How often each output has gone beyond full scale since the last call, had no limiter held it.
    std::array<unsigned, outputCount> takeOvers() { return m_limiter.takeOvers(); }

private:
    void takeParameters();
    size_t processBlock(const Inputs &inputs, size_t offset, float *out, size_t frames);
    bool add(size_t input, const float *samples, double *mixed, size_t frames);
    void rise(float *out, size_t frames);

    TripleBuffer<Parameters> m_parameters;
    bool m_started = false;
    std::array<double, inputCount> m_inputGain{};
    std::array<double, inputCount> m_nextInputGain{};
    std::array<Ducking, inputCount> m_ducking;
    Chain m_chain;
    Fade m_fade{fadeSamples};
    Fade m_fadeIn{fadeInSamples};
    Limiter m_limiter;
};

}  // namespace headunit::engine
