// SPDX-License-Identifier: Apache-2.0
#include "devicesound.h"

#include "player.h"

#include <algorithm>
#include <cmath>

namespace headunit {

using namespace engine;

DeviceSound::DeviceSound(Player &player, const DeviceFormat &format)
    : m_player(player), m_format(format), m_encoder(format.samples), m_channels(blockFrames * format.channels) {
    if (format.rate != sampleRate) {
        m_resampler.emplace(sampleRate, format.rate, outputCount, blockFrames, play, this);
        prime();
    }
}

/// The resampler's memory grows while it finds its pace. Silence until then, so that it grows no more while it plays.
void DeviceSound::prime() {
    constexpr double seconds = 1;
    m_priming = true;
    for (size_t done = 0; done < static_cast<size_t>(seconds * m_format.rate); done += blockFrames) {
        m_resampler->read(m_outputs.data(), blockFrames);
    }
    m_priming = false;
}

size_t DeviceSound::play(void *self, const float **samples, size_t frames) {
    DeviceSound &sound = *static_cast<DeviceSound *>(self);
    if (!sound.m_priming) {
        sound.m_player.fill(sound.m_played.data(), frames);
    }
    *samples = sound.m_played.data();
    return frames;
}

void DeviceSound::end() {
    if (m_endFrames == 0) {
        m_endFrames = static_cast<size_t>(std::lround(endSeconds * m_format.rate));
    }
}

void DeviceSound::fall(size_t frames) {
    if (m_endFrames == 0) {
        return;
    }
    for (size_t frame = 0; frame < frames; ++frame) {
        m_ended = std::min(m_ended + 1, m_endFrames);
        const double way = static_cast<double>(m_ended) / static_cast<double>(m_endFrames);
        const double gain = hasEnded() ? 0 : (1 + std::cos(pi * way)) / 2;
        for (size_t output = 0; output < outputCount; ++output) {
            float &sample = m_outputs[frame * outputCount + output];
            sample = static_cast<float>(static_cast<double>(sample) * gain);
        }
    }
}

void DeviceSound::spread(size_t frames) {
    std::fill_n(m_channels.begin(), frames * m_format.channels, 0.0F);
    for (const Route &route : m_format.routes) {
        for (size_t frame = 0; frame < frames; ++frame) {
            m_channels[frame * m_format.channels + route.channel] +=
                route.gain * m_outputs[frame * outputCount + route.output];
        }
    }
}

void DeviceSound::fill(void *bytes, size_t frames) {
    auto *out = static_cast<unsigned char *>(bytes);
    for (size_t done = 0; done < frames;) {
        const size_t count = std::min(blockFrames, frames - done);
        if (m_resampler) {
            m_resampler->read(m_outputs.data(), count);
        } else {
            m_player.fill(m_outputs.data(), count);
        }
        fall(count);
        spread(count);
        m_encoder.encode(m_channels.data(), count * m_format.channels, out + done * frameBytes());
        done += count;
    }
}

}  // namespace headunit
