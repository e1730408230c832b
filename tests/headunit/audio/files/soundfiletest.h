// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// Sound files as the tests need them, written and read without the code under test.
namespace soundfiletest {

struct SoundFile {
    int sampleRate = 0;
    int channels = 0;
    std::vector<float> samples;
    std::vector<int> channelMap;  ///< none if empty
};

/// Writes a file of 32-bit floats (WAV).
void write(const std::string &path, const SoundFile &file);
/// Writes a compressed one (FLAC); the channel map is left out.
void writeCompressed(const std::string &path, const SoundFile &file);
SoundFile read(const std::string &path);

/// The same tone on all channels.
SoundFile tone(int sampleRate, int channels, double hz, double seconds, double amplitude = 0.5);

}  // namespace soundfiletest
