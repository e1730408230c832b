// SPDX-License-Identifier: Apache-2.0
#include "sampleencoder.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace headunit {

namespace {

/// The nearest whole number of so many bits; full scale is one more than the largest.
int32_t whole(double sample, int bits) {
    const double scale = std::ldexp(1.0, bits - 1);
    return static_cast<int32_t>(std::lrint(std::clamp(sample * scale, -scale, scale - 1)));
}

}  // namespace

size_t sampleBytes(SampleFormat format) {
    return format == SampleFormat::Int16 ? 2 : format == SampleFormat::Int24 ? 3 : 4;
}

/// The sum of two evenly spread numbers, each of them one step of sixteen bits wide.
double SampleEncoder::dither() {
    m_random ^= m_random << 13;
    m_random ^= m_random >> 7;
    m_random ^= m_random << 17;
    const double first = static_cast<double>(static_cast<int32_t>(m_random));
    const double second = static_cast<double>(static_cast<int32_t>(m_random >> 32));
    return std::ldexp(first + second, -32 - 15);
}

double SampleEncoder::dithered(float sample) {
    m_zeros = sample == 0 ? m_zeros + 1 : 0;
    const double noise = dither();
    return static_cast<double>(sample) + (m_zeros < pauseSamples ? noise : 0);
}

void SampleEncoder::encode(const float *samples, size_t count, void *bytes) {
    if (m_format == SampleFormat::Float32) {
        auto *const out = static_cast<float *>(bytes);
        std::transform(samples, samples + count, out, [](float sample) { return std::clamp(sample, -1.0F, 1.0F); });
        return;
    }
    auto *out = static_cast<unsigned char *>(bytes);
    for (size_t i = 0; i < count; ++i) {
        const double sample = static_cast<double>(samples[i]);
        int32_t number = 0;
        switch (m_format) {
            case SampleFormat::Int16:
                number = whole(dithered(samples[i]), 16);
                break;
            case SampleFormat::Int24:
            case SampleFormat::Int24In32:
                number = whole(sample, 24);
                break;
            case SampleFormat::Int32:
            case SampleFormat::Float32:
                number = whole(sample, 32);
                break;
        }
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
        const size_t skipped = sizeof number - sampleBytes(m_format);
        std::memcpy(out, reinterpret_cast<const unsigned char *>(&number) + skipped, sampleBytes(m_format));
#else
        std::memcpy(out, &number, sampleBytes(m_format));
#endif
        out += sampleBytes(m_format);
    }
}

}  // namespace headunit
