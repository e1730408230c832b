// SPDX-License-Identifier: Apache-2.0
#include "limiter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace headunit::engine {

namespace {

using Pair = double __attribute__((vector_size(stereo * sizeof(double))));
using Bits = int64_t __attribute__((vector_size(stereo * sizeof(int64_t))));
constexpr int64_t magnitudeBits = std::numeric_limits<int64_t>::max();

/// The limiter's ceiling: a little below full scale, for the little that TruePeak may miss.
constexpr double ceiling = 0.985;

}  // namespace

double Limiter::wantedGain(size_t pair) {
    const auto highest = [pair](const auto &a, const auto &b) { return a[pair] < b[pair]; };
    if ((*std::max_element(m_highest.begin(), m_highest.end(), highest))[pair] <= m_truePeak.harmlessSample()) {
        m_isOver[stereo * pair] = m_isOver[stereo * pair + 1] = false;
        return 1;
    }
    TruePeak::Reading highestReading;
    for (size_t output = stereo * pair; output < stereo * (pair + 1); ++output) {
        std::array<float, TruePeak::window> samples;
        const uint64_t first = m_frame - 2 * group - TruePeak::before + length;
        for (size_t i = 0; i < samples.size(); ++i) {
            samples[i] = static_cast<float>(m_samples[(first + i) % length * outputCount + output]);
        }
        const TruePeak::Reading reading = m_truePeak.read(samples);
        const bool isOver = reading.peak > 1;
        m_overs[output] += isOver && !m_isOver[output];
        m_isOver[output] = isOver;
        highestReading.peak = std::max(highestReading.peak, reading.peak);
        highestReading.unread = std::max(highestReading.unread, reading.unread);
    }
    return highestReading.peak > 1 ? ceiling / (highestReading.peak + highestReading.unread) : 1;
}

/// When a group is complete, the one before it can be read.
void Limiter::analyse() {
    std::array<Pair, pairCount> highest{};
    const double *sample = &m_samples[(m_frame - group) % length * outputCount];
    for (size_t frame = 0; frame < group; ++frame) {
        for (Pair &pair : highest) {
            Bits bits;
            std::memcpy(&bits, sample, sizeof bits);
            bits &= magnitudeBits;
            const Pair magnitudes = reinterpret_cast<Pair>(bits);
            pair = magnitudes > pair ? magnitudes : pair;
            sample += stereo;
        }
    }
    std::array<double, pairCount> &newest = m_highest[m_frame / group % m_highest.size()];
    for (size_t pair = 0; pair < pairCount; ++pair) {
        newest[pair] = std::max(highest[pair][0], highest[pair][1]);
        m_gains[pair].want(wantedGain(pair));
    }
}

void Limiter::limit(const double *delayed, float *out, size_t frames) {
    if (std::all_of(m_gains.begin(), m_gains.end(), [](const LimiterGain &gain) { return gain.isUnity(); })) {
        std::transform(delayed, delayed + frames * outputCount, out, [](double sample) { return float(sample); });
        return;
    }
    for (size_t pair = 0; pair < pairCount; ++pair) {
        const bool unity = m_gains[pair].isUnity();
        for (size_t frame = 0; frame < frames; ++frame) {
            const double gain = unity ? 1 : m_gains[pair].next();
            for (size_t i = frame * outputCount + stereo * pair, end = i + stereo; i < end; ++i) {
                out[i] = static_cast<float>(std::clamp(delayed[i] * gain, -1.0, 1.0));
            }
        }
    }
}

void Limiter::process(const double *in, float *out, size_t frames) {
    for (size_t done = 0; done < frames;) {
        const size_t count = std::min(frames - done, group - m_frame % group);
        std::copy_n(in + done * outputCount, count * outputCount, &m_samples[m_frame % length * outputCount]);
        limit(&m_samples[(m_frame + length - latency) % length * outputCount], out + done * outputCount, count);
        done += count;
        m_frame += count;
        if (m_frame % group == 0) {
            analyse();
        }
    }
}

std::array<double, pairCount> Limiter::takeLowestGains() {
    std::array<double, pairCount> lowest;
    std::transform(m_gains.begin(), m_gains.end(), lowest.begin(), [](LimiterGain &gain) { return gain.takeLowest(); });
    return lowest;
}

}  // namespace headunit::engine
