// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "routing.h"
#include "sampleencoder.h"

#include "headunit/audio/engine/kernel.h"
#include "headunit/audio/files/resampler.h"

#include <optional>
#include <vector>

namespace headunit {

class Player;

/// How a device wants the sound.
struct DeviceFormat {
    double rate;      ///< in Hz
    size_t channels;  ///< of which some may stay silent
    SampleFormat samples;
    std::vector<Route> routes;
};

/// The unit's sound, as a device wants it: at its sample rate, on its channels, in its format. Belongs to the audio
/// thread, but for its making, which allocates.
class DeviceSound {
public:
    static constexpr double endSeconds = 0.03;

    DeviceSound(Player &player, const DeviceFormat &format);
    DeviceSound(const DeviceSound &) = delete;
    DeviceSound &operator=(const DeviceSound &) = delete;

    /// The next sound falls along a raised cosine for endSeconds, then there is silence.
    void end();
    /// Whether all that still comes is silence.
    bool hasEnded() const { return m_endFrames > 0 && m_ended >= m_endFrames; }

    size_t frameBytes() const { return m_format.channels * sampleBytes(m_format.samples); }
    /// Never waits, allocates, or calls the system.
    void fill(void *bytes, size_t frames);

private:
    static constexpr size_t blockFrames = 256;

    static size_t play(void *self, const float **samples, size_t frames);
    void prime();
    void fall(size_t frames);
    void spread(size_t frames);

    Player &m_player;
    const DeviceFormat m_format;
    SampleEncoder m_encoder;
    size_t m_endFrames = 0;  ///< length of the fall, once there is one
    size_t m_ended = 0;      ///< how much of it is over
    std::vector<float> m_played = std::vector<float>(blockFrames * engine::outputCount);
    std::vector<float> m_outputs = std::vector<float>(blockFrames * engine::outputCount);
    std::vector<float> m_channels;
    bool m_priming = false;
    std::optional<Resampler> m_resampler;  ///< none at the engine's own rate
};

}  // namespace headunit
