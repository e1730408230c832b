#include "engine.h"

#include "flushtozero.h"

#include <algorithm>
#include <cmath>

namespace headunit::engine {

namespace {

/// Far above what any file holds; beyond it lie only damaged samples.
constexpr float largestSample = 16;

/// What an input may do at worst: a sample that is no number is silence.
double tamed(float sample) {
    return std::isnan(sample) ? 0 : std::clamp(sample, -largestSample, largestSample);
}

}  // namespace

void Engine::takeParameters() {
    const Parameters *const parameters = m_parameters.take();
    if (!parameters) {
        return;
    }
    m_nextInputGain = parameters->inputGain;
    if (!m_started) {
        m_started = true;
        m_inputGain = m_nextInputGain;
        m_chain.load(parameters->chain);
        return;
    }
    m_chain.fadeTo(parameters->chain);
    m_fade.restart();
}

void Engine::mix(const Inputs &inputs, size_t offset, double *mixed, size_t frames) const {
    std::fill_n(mixed, frames * stereo, 0.0);
    for (size_t input = 0; input < inputCount; ++input) {
        const double from = m_inputGain[input];
        const double way = m_nextInputGain[input] - from;
        if (!inputs[input] || (from == 0 && way == 0)) {
            continue;
        }
        const float *const samples = inputs[input] + offset * stereo;
        for (size_t frame = 0; frame < frames; ++frame) {
            const double gain = way == 0 ? from : from + way * m_fade.weights()[frame];
            for (size_t side = 0; side < stereo; ++side) {
                mixed[frame * stereo + side] += tamed(samples[frame * stereo + side]) * gain;
            }
        }
    }
}

/// Behind the limiter, which would give back at once what the fade takes from a sound that is too loud.
void Engine::rise(float *out, size_t frames) {
    const size_t fading = std::min(frames, m_fadeIn.remaining());
    for (size_t frame = 0; frame < fading; ++frame) {
        for (size_t i = frame * outputCount; i < (frame + 1) * outputCount; ++i) {
            out[i] = static_cast<float>(static_cast<double>(out[i]) * m_fadeIn.weights()[frame]);
        }
    }
    m_fadeIn.advance(fading);
}

size_t Engine::processBlock(const Inputs &inputs, size_t offset, float *out, size_t frames) {
    if (m_fade.isOver()) {
        takeParameters();
    }
    const bool fading = !m_fade.isOver();
    const size_t count = std::min({frames, Chain::largestBlock, fading ? m_fade.remaining() : frames});
    std::array<double, Chain::largestBlock * stereo> mixed;
    std::array<double, Chain::largestBlock * outputCount> sound;
    mix(inputs, offset, mixed.data(), count);
    m_chain.process(mixed.data(), sound.data(), count, m_fade.weights());
    if (fading) {
        m_fade.advance(count);
        if (m_fade.isOver()) {
            m_inputGain = m_nextInputGain;
            m_chain.endFade();
        }
    }
    m_limiter.process(sound.data(), out, count);
    rise(out, count);
    return count;
}

void Engine::process(const Inputs &inputs, float *out, size_t frames) {
    const FlushToZero flush;
    for (size_t done = 0; done < frames;) {
        done += processBlock(inputs, done, out + done * outputCount, frames - done);
    }
}

}  // namespace headunit::engine
