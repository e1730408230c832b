#pragma once

#include "chain.h"
#include "fade.h"
#include "limiter.h"
#include "parameters.h"
#include "triplebuffer.h"

#include <array>

namespace headunit::engine {

/// What comes in: left and right in turn for each input, in full scale 1; null for one that is silent.
using Inputs = std::array<const float *, inputCount>;

/// What came out, for whoever wants to look.
struct Meters {
    std::array<float, outputCount> peak{};  ///< since the readings before, 0 to 1
    float limiterGain = 1;                  ///< the lowest one since then
};

/// The sound processor: mixes the inputs, and gives each output what the parameters say. A change of parameters fades
/// in over fadeSamples; changes that come while one is fading in are taken together after it.
///
/// process() belongs to one thread, setParameters() and takeMeters() to another. None of them waits, allocates, or
/// calls the system.
class Engine {
public:
    static constexpr size_t fadeSamples = static_cast<size_t>(0.025 * sampleRate);
    static constexpr size_t powerUpSamples = static_cast<size_t>(0.4 * sampleRate);
    static constexpr size_t latency = Limiter::latency;  ///< in samples, before any delay that is set

    enum class Start { AtOnce, FadedIn };

    /// Silent until the first parameters; what is set before the first sample holds from the first sample on.
    explicit Engine(Start start = Start::AtOnce, const Kernel &kernel = bestKernel());

    void setParameters(const Parameters &parameters) { m_parameters.write(parameters); }
    /// Null if there is nothing new.
    const Meters *takeMeters() { return m_meters.take(); }

    /// Gives \a frames of outputCount samples, each within full scale. Any number of frames at a time gives the same.
    void process(const Inputs &inputs, float *out, size_t frames);

private:
    static constexpr size_t meterSamples = 2400;  ///< twenty readings a second

    void takeParameters();
    size_t processBlock(const Inputs &inputs, size_t offset, float *out, size_t frames);
    void mix(const Inputs &inputs, size_t offset, double *mixed, size_t frames) const;
    void fadeInAtStart(double *out, size_t frames);
    void meter(const float *out, size_t frames);

    TripleBuffer<Parameters> m_parameters;
    TripleBuffer<Meters> m_meters;
    bool m_started = false;
    std::array<double, inputCount> m_inputGain{};
    std::array<double, inputCount> m_nextInputGain{};
    Chain m_chain;
    Fade m_fade{fadeSamples};
    Fade m_powerUp{powerUpSamples};
    Limiter m_limiter;
    Meters m_reading;
    size_t m_metered = 0;
};

}  // namespace headunit::engine
