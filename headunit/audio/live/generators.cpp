// SPDX-License-Identifier: Apache-2.0
#include "generators.h"

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

using engine::pi;
using engine::sampleRate;

/// Evenly spread over -1 to 1.
float randomSample(uint32_t *state) {
    *state = *state * 1664525U + 1013904223U;
    return static_cast<float>(static_cast<int32_t>(*state)) / 2147483648.0F;
}

/// A plucked note, \a seconds after its start: a tone and its octave, dying away.
double note(double hz, double seconds, double fall) {
    constexpr double attack = 0.004;
    const double level = std::min(1.0, seconds / attack) * std::exp(-seconds / fall);
    return level * (std::sin(2 * pi * hz * seconds) + 0.3 * std::sin(4 * pi * hz * seconds));
}

struct Bar {
    double bass;  // Hz
    std::array<double, 4> notes;
};

// A minor, F, C, G
constexpr std::array<Bar, 4> bars = {{{55.00, {220.00, 261.63, 329.63, 440.00}},
                                      {43.65, {174.61, 220.00, 261.63, 349.23}},
                                      {65.41, {196.00, 261.63, 329.63, 392.00}},
                                      {49.00, {196.00, 246.94, 293.66, 392.00}}}};

}  // namespace

void Music::fill(float *stereo, size_t frames) {
    constexpr uint64_t step = static_cast<uint64_t>(0.25 * sampleRate);
    constexpr uint64_t stepsPerBar = 8;
    for (size_t i = 0; i < frames; ++i, ++m_frame) {
        const uint64_t number = m_frame / step;
        const Bar &bar = bars[number / stepsPerBar % bars.size()];
        const double sinceStep = static_cast<double>(m_frame % step) / sampleRate;
        const double sinceBar = static_cast<double>(m_frame % (step * stepsPerBar)) / sampleRate;
        const double bass = 0.4 * note(bar.bass, sinceBar, 0.9);
        // Up and down the chord, now on one side, now on the other
        const size_t position = number % 6;
        const double pluck = 0.2 * note(bar.notes[position < 4 ? position : 6 - position], sinceStep, 0.18);
        const double right = number % 2 == 0 ? 0.4 : 1;
        const double hat = number % 2 == 1 ? 0.1 * std::exp(-sinceStep / 0.03) * randomSample(&m_random) : 0;
        stereo[2 * i] = static_cast<float>(bass + pluck * (1.4 - right) + hat);
        stereo[2 * i + 1] = static_cast<float>(bass + pluck * right + hat);
    }
}

float PinkNoise::next(size_t side) {
    // Row n changes at every 2^n-th sample, so each has an octave less of the spectrum.
    size_t row = 0;
    while (row + 1 < rows && !(m_count >> row & 1)) {
        ++row;
    }
    const float value = randomSample(&m_random);
    m_sums[side] += value - m_rows[side][row];
    m_rows[side][row] = value;
    return (m_sums[side] + randomSample(&m_random)) / static_cast<float>(rows + 1);
}

void PinkNoise::fill(float *stereo, size_t frames) {
    constexpr float level = 0.5F;
    for (size_t i = 0; i < frames; ++i) {
        ++m_count;
        stereo[2 * i] = level * next(0);
        stereo[2 * i + 1] = level * next(1);
    }
}

void Sweep::fill(float *stereo, size_t frames) {
    constexpr double level = 0.15;
    constexpr double lowest = 20;
    constexpr double range = 1000;
    constexpr uint64_t length = static_cast<uint64_t>(10 * sampleRate);
    constexpr double edge = 0.02 * sampleRate;
    for (size_t i = 0; i < frames; ++i, ++m_frame) {
        const uint64_t place = m_frame % length;
        const double part = static_cast<double>(place) / static_cast<double>(length);
        m_phase += 2 * pi * lowest * std::pow(range, part) / sampleRate;
        m_phase = place == 0 ? 0 : std::fmod(m_phase, 2 * pi);
        const double toEdge = static_cast<double>(std::min(place, length - place)) / edge;
        const double sample = level * std::min(1.0, toEdge) * std::sin(m_phase);
        stereo[2 * i] = stereo[2 * i + 1] = static_cast<float>(sample);
    }
}

namespace {

constexpr uint64_t turnFrames = static_cast<uint64_t>(sampleRate);  ///< of a loudspeaker
/// Silence at the end of a turn. The next loudspeaker is taken in its middle, as the engine and its delays come late.
constexpr uint64_t gapFrames = static_cast<uint64_t>(0.2 * sampleRate);

}  // namespace

void LoudspeakerTone::fill(float *stereo, size_t frames) {
    constexpr double level = 0.2;
    constexpr double lowHz = 50;
    constexpr double highHz = 600;
    constexpr double edge = 0.02 * sampleRate;
    for (size_t i = 0; i < frames; ++i, ++m_frame) {
        const uint64_t place = m_frame % turnFrames;
        const uint64_t left = turnFrames - gapFrames - std::min(place, turnFrames - gapFrames);
        const double fade = std::min(1.0, static_cast<double>(std::min(place, left)) / edge);
        const double seconds = static_cast<double>(place) / sampleRate;
        const double sample = level * fade * (std::sin(2 * pi * lowHz * seconds) + std::sin(2 * pi * highHz * seconds));
        stereo[2 * i] = stereo[2 * i + 1] = static_cast<float>(sample);
    }
}

void LoudspeakerTone::select(float *out, size_t frames) {
    for (size_t i = 0; i < frames; ++i, ++m_selected) {
        const size_t turn = (m_selected + gapFrames / 2) / turnFrames % engine::outputCount;
        for (size_t output = 0; output < engine::outputCount; ++output) {
            if (output != turn) {
                out[i * engine::outputCount + output] = 0;
            }
        }
    }
}

namespace {

struct Notes {
    double first;   // Hz
    double second;  // Hz
    double fall;    // s
};

/// By input; the main one has none, and the key click is a single dry note.
constexpr std::array<Notes, engine::inputCount> chimes = {{{0, 0, 0},
                                                           {880, 1108.73, 0.12},
                                                           {440, 440, 0.10},
                                                           {659.26, 523.25, 0.20},
                                                           {293.66, 349.23, 0.15},
                                                           {587.33, 783.99, 0.25},
                                                           {1760, 1760, 0.006}}};
constexpr uint64_t noteFrames = static_cast<uint64_t>(0.25 * sampleRate);
constexpr uint64_t chimeFrames = static_cast<uint64_t>(2 * sampleRate);
constexpr uint64_t beepSpacing = static_cast<uint64_t>(sampleRate);
constexpr uint64_t clickFrames = static_cast<uint64_t>(0.06 * sampleRate);

}  // namespace

bool Chime::isPlaying() const {
    return m_frame < (m_input == engine::BeepInput ? clickFrames : chimeFrames);
}

bool Chime::isOver() const {
    return m_frame >= (m_input == engine::BeepInput ? beepSpacing : chimeFrames);
}

void Chime::fill(float *stereo, size_t frames) {
    constexpr double level = 0.2;
    const Notes &notes = chimes[m_input];
    for (size_t i = 0; i < frames; ++i, ++m_frame) {
        double sample = 0;
        if (isPlaying()) {
            // The second note rings on until it has died away.
            const bool second = m_frame >= noteFrames;
            const double seconds = static_cast<double>(second ? m_frame - noteFrames : m_frame) / sampleRate;
            sample = level * note(second ? notes.second : notes.first, seconds, notes.fall);
        }
        stereo[2 * i] = stereo[2 * i + 1] = static_cast<float>(sample);
    }
}

}  // namespace headunit
