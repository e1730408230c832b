// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace headunit {

/// How a device wants its samples, in the byte order of this machine.
enum class SampleFormat { Int16, Int24, Int24In32, Int32, Float32 };

size_t sampleBytes(SampleFormat format);

/// Writes samples as a device wants them. Sixteen bits get triangular dither, two steps wide, so that what is rounded
/// away is noise and no distortion; digital silence stays silent.
class SampleEncoder {
public:
    explicit SampleEncoder(SampleFormat format) : m_format(format) {}

    /// Samples beyond full scale become full scale.
    void encode(const float *samples, size_t count, void *bytes);

private:
    /// So many zeros in a row are a pause, not a place where a tone crosses zero.
    static constexpr size_t pauseSamples = 64;

    double dither();
    double dithered(float sample);

    SampleFormat m_format;
    size_t m_zeros = pauseSamples;
    uint64_t m_random = 0x9E3779B97F4A7C15;
};

}  // namespace headunit
