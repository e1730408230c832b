// SPDX-License-Identifier: Apache-2.0
#include "deskinput.h"

#include <algorithm>
#include <cmath>

namespace headunit {

using engine::sampleRate;
using engine::stereo;

namespace {

constexpr size_t ringFrames = 16384;
constexpr size_t pieceFrames = 256;
/// A program that has been silent for so long is heard no longer.
constexpr size_t pauseFrames = static_cast<size_t>(1.0 * sampleRate);
/// So much more than wanted waits only after somebody stood still; stretching would take too long over it.
constexpr size_t mostExcess = 2160;
/// When too little has come, more is to wait from then on; less again once that has been enough for a while.
constexpr size_t wantedStep = 240;
constexpr size_t patientFrames = static_cast<size_t>(20 * sampleRate);

/// Clocks differ by a few hundredths of a percent; ten times that is a quarter of what an ear notices.
constexpr double largestStretch = 0.005;
constexpr double levelSeconds = 4;
constexpr double settlingSeconds = 20;
constexpr size_t steerFrames = 24000;

}  // namespace

DeskInput::DeskInput() : m_ring(ringFrames * stereo), m_piece(pieceFrames * stereo) {
    const soxr_io_spec_t samples = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
    const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, SOXR_VR);
    constexpr double largestRatio = 1 + largestStretch;
    m_stretcher.reset(soxr_create(largestRatio, 1, stereo, nullptr, &samples, &quality, nullptr));
    if (m_stretcher) {
        soxr_set_input_fn(m_stretcher.get(), feed, this, pieceFrames);
        soxr_set_io_ratio(m_stretcher.get(), 1, 0);
    }
    // It finds its pace, and the memory that it needs at any, before it is heard.
    std::vector<float> unheard(pieceFrames * stereo);
    for (const double stretch : {1 + largestStretch, 1 - largestStretch, 1.0}) {
        if (m_stretcher) {
            soxr_set_io_ratio(m_stretcher.get(), stretch, 0);
        }
        for (size_t done = 0, frames = 0; done < static_cast<size_t>(sampleRate); done += frames) {
            frames = 1 + done * 97 % pieceFrames;
            fill(unheard.data(), frames);
        }
    }
    m_dropouts = 0;
}

void DeskInput::setActive(bool active) {
    if (active != m_active) {
        m_active = active;
        if (m_changed) {
            m_changed(active);
        }
    }
}

void DeskInput::push(const float *samples, size_t frames) {
    if (waiting() + frames > ringFrames) {
        m_read = m_written;
        return;
    }
    for (size_t frame = 0; frame < frames; ++frame, ++m_written) {
        bool isSilent = true;
        for (size_t side = 0; side < stereo; ++side) {
            const float sample = samples[frame * stereo + side];
            // Numbers that are none would spread over their neighbours.
            const bool isValid = std::isfinite(sample);
            m_hadInvalid = m_hadInvalid || !isValid;
            m_ring[m_written % ringFrames * stereo + side] = isValid ? sample : 0;
            isSilent = isSilent && (!isValid || sample == 0);
        }
        m_silent = isSilent ? m_silent + 1 : 0;
    }
    if (m_silent == 0) {
        setActive(true);
    } else if (m_silent > pauseFrames) {
        stop();
    }
}

void DeskInput::stop() {
    m_read = m_written;
    m_playing = false;
    setActive(false);
}

/// Brings what waits back to what is usual, slowly.
void DeskInput::steer(size_t frames) {
    const double part = std::min(1.0, static_cast<double>(frames) / (levelSeconds * sampleRate));
    m_level += part * (static_cast<double>(waiting()) - m_level);
    m_sinceStarved += frames;
    if (m_sinceStarved > patientFrames && m_wanted > usualFrames) {
        m_sinceStarved = 0;
        m_wanted -= wantedStep;
    }
    const double excess = (m_level - static_cast<double>(m_wanted)) / (settlingSeconds * sampleRate);
    m_stretch = 1 + std::clamp(excess, -largestStretch, largestStretch);
    m_sinceSteered += frames;
    if (m_sinceSteered >= steerFrames) {
        m_sinceSteered = 0;
        soxr_set_io_ratio(m_stretcher.get(), m_stretch, steerFrames / 2);
    }
}

void DeskInput::starve() {
    m_playing = false;
    if (m_silent == 0) {  // a program that ended leaves no hole
        ++m_dropouts;
        m_sinceStarved = 0;
        m_wanted = std::min(m_wanted + wantedStep, largestFrames);
    }
}

size_t DeskInput::feed(void *data, soxr_in_t *samples, size_t frames) {
    DeskInput &input = *static_cast<DeskInput *>(data);
    const size_t count = input.m_playing ? std::min(frames, input.waiting()) : 0;
    for (size_t i = 0; i < count * stereo; ++i) {
        input.m_piece[i] = input.m_ring[(input.m_read * stereo + i) % input.m_ring.size()];
    }
    std::fill(input.m_piece.begin() + static_cast<std::ptrdiff_t>(count * stereo), input.m_piece.end(), 0.0F);
    input.m_read += count;
    if (input.m_playing && count < frames) {
        input.starve();
    }
    *samples = input.m_piece.data();
    return frames;
}

void DeskInput::fill(float *samples, size_t frames) {
    if (waiting() > m_wanted + mostExcess) {
        m_read = m_written - m_wanted;
    }
    if (!m_playing && waiting() >= m_wanted) {
        m_playing = true;
        m_level = static_cast<double>(m_wanted);
    }
    if (m_stretcher) {
        if (m_playing) {
            steer(frames);
        }
        soxr_output(m_stretcher.get(), samples, frames);
    } else {
        std::fill_n(samples, frames * stereo, 0.0F);
    }
}

}  // namespace headunit
