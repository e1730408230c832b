// SPDX-License-Identifier: Apache-2.0
#include "soundfiletest.h"

#include <sndfile.h>

#include <cmath>
#include <stdexcept>

namespace soundfiletest {

namespace {

SNDFILE *create(const std::string &path, const SoundFile &file, int format) {
    SF_INFO info{};
    info.samplerate = file.sampleRate;
    info.channels = file.channels;
    info.format = format;
    SNDFILE *const handle = sf_open(path.c_str(), SFM_WRITE, &info);
    if (!handle) {
        throw std::runtime_error(sf_strerror(nullptr));
    }
    return handle;
}

}  // namespace

void write(const std::string &path, const SoundFile &file) {
    const int container = file.channelMap.empty() ? SF_FORMAT_WAV : SF_FORMAT_WAVEX;
    SNDFILE *const handle = create(path, file, container | SF_FORMAT_FLOAT);
    if (!file.channelMap.empty()) {
        std::vector<int> map = file.channelMap;
        sf_command(handle, SFC_SET_CHANNEL_MAP_INFO, map.data(), static_cast<int>(map.size() * sizeof(int)));
    }
    sf_write_float(handle, file.samples.data(), static_cast<sf_count_t>(file.samples.size()));
    sf_close(handle);
}

void writeCompressed(const std::string &path, const SoundFile &file) {
    SNDFILE *const handle = create(path, file, SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
    sf_write_float(handle, file.samples.data(), static_cast<sf_count_t>(file.samples.size()));
    sf_close(handle);
}

SoundFile read(const std::string &path) {
    SF_INFO info{};
    SNDFILE *const handle = sf_open(path.c_str(), SFM_READ, &info);
    if (!handle) {
        throw std::runtime_error(sf_strerror(nullptr));
    }
    SoundFile file;
    file.sampleRate = info.samplerate;
    file.channels = info.channels;
    file.samples.resize(static_cast<size_t>(info.frames * info.channels));
    file.channelMap.resize(static_cast<size_t>(info.channels));
    sf_read_float(handle, file.samples.data(), static_cast<sf_count_t>(file.samples.size()));
    sf_command(handle, SFC_GET_CHANNEL_MAP_INFO, file.channelMap.data(),
               static_cast<int>(file.channelMap.size() * sizeof(int)));
    sf_close(handle);
    return file;
}

SoundFile tone(int sampleRate, int channels, double hz, double seconds, double amplitude) {
    SoundFile file;
    file.sampleRate = sampleRate;
    file.channels = channels;
    for (int frame = 0; frame < static_cast<int>(seconds * sampleRate); ++frame) {
        const double sample = amplitude * std::sin(2 * M_PI * hz * frame / sampleRate);
        file.samples.insert(file.samples.end(), static_cast<size_t>(channels), static_cast<float>(sample));
    }
    return file;
}

}  // namespace soundfiletest
