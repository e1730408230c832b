// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/layout.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace headunit {

// Signals of the unit's own making: left and right in turn, well below full scale. Every fill() goes on where the one
// before ended, allocates nothing and waits for nothing.

/// A slow piece of four chords with a bass and a beat, so that every part of the spectrum is there; it never ends.
class Music {
public:
    void fill(float *stereo, size_t frames);

private:
    uint64_t m_frame = 0;
    uint32_t m_random = 1;
};

/// Noise with the same power in every octave.
class PinkNoise {
public:
    void fill(float *stereo, size_t frames);

private:
    static constexpr size_t rows = 14;  ///< octaves, down to a few hertz

    float next(size_t side);

    std::array<std::array<float, rows>, 2> m_rows{};
    std::array<float, 2> m_sums{};
    uint32_t m_count = 0;
    uint32_t m_random = 1;
};

/// A tone that rises from 20 Hz to 20 kHz in ten seconds, again and again.
class Sweep {
public:
    void fill(float *stereo, size_t frames);

private:
    uint64_t m_frame = 0;
    double m_phase = 0;
};

/// A tone that goes from loudspeaker to loudspeaker, a second on each, low and high enough for all of them.
class LoudspeakerTone {
public:
    void fill(float *stereo, size_t frames);
    /// Silences the other loudspeakers in the \a frames that the engine made of those that were filled in last.
    void select(float *out, size_t frames);

private:
    uint64_t m_frame = 0;
    uint64_t m_selected = 0;
};

/// A short sound for an input other than the main one, which tells them apart: two notes, or the click of a key.
class Chime {
public:
    /// \a input is not the main one.
    explicit Chime(engine::Input input) : m_input(input) {}

    void restart() { m_frame = 0; }
    bool isPlaying() const;
    /// As long after its beginning as it takes before the same sound again does not seem hasty.
    bool isOver() const;
    void fill(float *stereo, size_t frames);

private:
    engine::Input m_input;
    uint64_t m_frame = UINT64_MAX / 2;
};

}  // namespace headunit
