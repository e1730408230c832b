// SPDX-License-Identifier: Apache-2.0
#include "engine.h"

#include "flushtozero.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace headunit::engine {

namespace {

/// Far above what any file holds; beyond it lie only damaged samples.
constexpr float largestSample = 16;

/// Magnitudes are compared as whole numbers, in whose order they stand, because the compiler puts that into vectors.
int32_t magnitudeBits(float sample) {
    int32_t bits;
    std::memcpy(&bits, &sample, sizeof bits);
    return bits & 0x7fffffff;
}

bool isDamaged(const float *samples, size_t count) {
    const int32_t largest = magnitudeBits(largestSample);
    int32_t room = 0;
    for (size_t i = 0; i < count; ++i) {
        room |= largest - magnitudeBits(samples[i]);
    }
    return room < 0;
}

/// A sample of an input, made safe: one that is no number is silence.
float sanitized(float sample) {
    return std::isnan(sample) ? 0 : std::clamp(sample, -largestSample, largestSample);
}

/// The program's gain comes behind its filters: those that another volume brings have heard it as loud as the others.
ChainParameters withGainOfProgram(const Parameters &parameters) {
    ChainParameters chain = parameters.chain;
    for (double &gain : chain.placement) {
        gain *= parameters.inputGain[MainInput];
    }
    return chain;
}

}  // namespace

void Engine::takeParameters() {
    const Parameters *const parameters = m_parameters.take();
    if (!parameters) {
        return;
    }
    const ChainParameters chain = withGainOfProgram(*parameters);
    m_nextInputGain = parameters->inputGain;
    m_nextInputGain[MainInput] = 1;
    if (!m_started) {
        m_started = true;
        m_inputGain = m_nextInputGain;
        for (size_t input = 0; input < inputCount; ++input) {
            m_ducking[input].jumpTo(parameters->ducking[input]);
        }
        m_chain.load(chain);
        return;
    }
    for (size_t input = 0; input < inputCount; ++input) {
        m_ducking[input].goTo(parameters->ducking[input]);
    }
    m_chain.fadeTo(chain);
    m_fade.restart();
}

/// Adds \a samples of an input, unless they are null; false if nothing was added. Who steps back for a prompt does so
/// whether he sounds or not.
bool Engine::add(size_t input, const float *samples, double *mixed, size_t frames) {
    Ducking &ducking = m_ducking[input];
    if (!samples && !ducking.isMoving()) {
        return false;
    }
    const double from = m_inputGain[input];
    const double way = m_nextInputGain[input] - from;
    const bool silent = (from == 0 && way == 0) || (ducking.gain() == 0 && !ducking.isMoving());
    std::array<double, Chain::maxBlockFrames> gains;
    ducking.advance(gains.data(), frames);
    if (!samples || silent) {
        return false;
    }
    for (size_t frame = 0; frame < frames; ++frame) {
        gains[frame] *= way == 0 ? from : from + way * m_fade.weights()[frame];
    }
    std::array<float, Chain::maxBlockFrames * stereo> safe;
    if (isDamaged(samples, frames * stereo)) {
        std::transform(samples, samples + frames * stereo, safe.begin(), sanitized);
        samples = safe.data();
    }
    for (size_t frame = 0; frame < frames; ++frame) {
        const double gain = gains[frame];
        mixed[stereo * frame] += static_cast<double>(samples[stereo * frame]) * gain;
        mixed[stereo * frame + 1] += static_cast<double>(samples[stereo * frame + 1]) * gain;
    }
    return true;
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
    const size_t count = std::min({frames, Chain::maxBlockFrames, fading ? m_fade.remaining() : frames});
    std::array<double, Chain::maxBlockFrames * stereo> program;
    std::array<double, Chain::maxBlockFrames * stereo> prompts;
    std::array<double, Chain::maxBlockFrames * outputCount> sound;
    std::fill_n(program.data(), count * stereo, 0.0);
    std::fill_n(prompts.data(), count * stereo, 0.0);
    const auto samples = [&](size_t input) { return inputs[input] ? inputs[input] + offset * stereo : nullptr; };
    add(MainInput, samples(MainInput), program.data(), count);
    bool prompted = false;
    for (size_t input = RingtoneInput; input < inputCount; ++input) {
        prompted |= add(input, samples(input), prompts.data(), count);
    }
    m_chain.process(program.data(), prompted ? prompts.data() : nullptr, sound.data(), count, m_fade.weights());
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
