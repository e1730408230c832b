// SPDX-License-Identifier: Apache-2.0
// The loops of kernel.h, included by one source file for each instruction set, which names it in KERNEL. No other
// functions are called, as their compiled form might be shared with code for another instruction set.

#include "kernel.h"

#include <cstdint>

namespace headunit::engine {

namespace {

using Pair = double __attribute__((vector_size(2 * sizeof(double))));
using Quad = double __attribute__((vector_size(4 * sizeof(double))));
#ifdef __AVX__
using Floats = float __attribute__((vector_size(8 * sizeof(float))));
using Integers = int32_t __attribute__((vector_size(8 * sizeof(int32_t))));
#else
using Floats = float __attribute__((vector_size(4 * sizeof(float))));
using Integers = int32_t __attribute__((vector_size(4 * sizeof(int32_t))));
#endif

/// By reference: without AVX there is no agreed way to return a Quad.
template <typename Vector> inline __attribute__((always_inline)) void load(Vector &vector, const double *place) {
    __builtin_memcpy(&vector, place, sizeof(Vector));
}

/// One step of a section, transposed direct form II: what comes out depends on its last steps by as little as can be.
template <typename Vector> inline __attribute__((always_inline)) void step(Vector &sample, Vector &s0, Vector &s1,
                                                                           const double *coefficients, size_t lanes) {
    // Aligned for a Pair at least, which SSE2 then multiplies by in memory.
    const auto *const aligned = static_cast<const double *>(__builtin_assume_aligned(coefficients, sizeof(Pair)));
    Vector b0, b1, b2, a1, a2;
    load(b0, aligned);
    load(b1, aligned + lanes);
    load(b2, aligned + 2 * lanes);
    load(a1, aligned + 3 * lanes);
    load(a2, aligned + 4 * lanes);
    const Vector in = sample;
    sample = b0 * in + s0;
    s0 = (b1 * in + s1) - a1 * sample;
    s1 = b2 * in - a2 * sample;
}

/// The states of a group's sections, of as many lanes as a vector has.
template <typename Vector> struct States {
    Vector s[halfSections][stateCount];

    inline __attribute__((always_inline)) void load(const ToneGroup &group, size_t lane) {
        for (size_t section = 0; section < halfSections; ++section) {
            for (size_t i = 0; i < stateCount; ++i) {
                engine::load(s[section][i], &group.states[section][i][lane]);
            }
        }
    }
    inline __attribute__((always_inline)) void store(ToneGroup *group, size_t lane) const {
        for (size_t section = 0; section < halfSections; ++section) {
            for (size_t i = 0; i < stateCount; ++i) {
                __builtin_memcpy(&group->states[section][i][lane], &s[section][i], sizeof(Vector));
            }
        }
    }
    inline __attribute__((always_inline)) void run(Vector &sample, const ToneGroup &group, size_t lane) {
#pragma GCC unroll 8
        for (size_t section = 0; section < halfSections; ++section) {
            step(sample, s[section][0], s[section][1], &group.coefficients[section][0][lane], groupLanes);
        }
    }
};

/// One half of a group alone.
inline __attribute__((always_inline)) void halfLoop(ToneGroup *group, size_t lane, double *samples, size_t frames) {
    States<Pair> states;
    states.load(*group, lane);
    for (double *place = samples; place < samples + frames * stereo; place += stereo) {
        Pair sample;
        load(sample, place);
        states.run(sample, *group, lane);
        __builtin_memcpy(place, &sample, sizeof sample);
    }
    states.store(group, lane);
}

#ifdef __AVX__

/// Both halves at once, the second some frames behind: what it takes in has left the first long enough ago that the
/// processor need not wait for it.
void toneLoop(ToneGroup *group, double *samples, size_t frames) {
    constexpr size_t longestWay = 4;
    constexpr size_t second = groupLanes / 2;
    const size_t way = frames < longestWay ? frames : longestWay;
    halfLoop(group, 0, samples, way);
    States<Quad> states;
    states.load(*group, 0);
    for (double *place = samples + way * stereo; place < samples + frames * stereo; place += stereo) {
        double *const behind = place - way * stereo;
        Pair first;
        Pair late;
        load(first, place);
        load(late, behind);
        Quad sample = {first[0], first[1], late[0], late[1]};
        states.run(sample, *group, 0);
        const Pair firstOut = {sample[0], sample[1]};
        const Pair lateOut = {sample[2], sample[3]};
        __builtin_memcpy(place, &firstOut, sizeof firstOut);
        __builtin_memcpy(behind, &lateOut, sizeof lateOut);
    }
    states.store(group, 0);
    halfLoop(group, second, samples + (frames - way) * stereo, way);
}

#else

void toneLoop(ToneGroup *group, double *samples, size_t frames) {
    halfLoop(group, 0, samples, frames);
    halfLoop(group, groupLanes / 2, samples, frames);
}

#endif

/// The sections of as many outputs as a vector has lanes, from output \a first on.
template <typename Vector> struct Outputs {
    Vector s[crossoverStages][stateCount];

    inline __attribute__((always_inline)) void load(const OutputBank &bank, size_t first) {
        for (size_t stage = 0; stage < crossoverStages; ++stage) {
            for (size_t i = 0; i < stateCount; ++i) {
                engine::load(s[stage][i], &bank.states[stage][i][first]);
            }
        }
    }
    inline __attribute__((always_inline)) void store(OutputBank *bank, size_t first) const {
        for (size_t stage = 0; stage < crossoverStages; ++stage) {
            for (size_t i = 0; i < stateCount; ++i) {
                __builtin_memcpy(&bank->states[stage][i][first], &s[stage][i], sizeof(Vector));
            }
        }
    }
    inline __attribute__((always_inline)) void run(double *place, const OutputBank &bank, size_t first) {
        Vector sample;
        engine::load(sample, place + first);
#pragma GCC unroll 2
        for (size_t stage = 0; stage < crossoverStages; ++stage) {
            step(sample, s[stage][0], s[stage][1], &bank.coefficients[stage][0][first], outputCount);
        }
        __builtin_memcpy(place + first, &sample, sizeof sample);
    }
};

void outputLoop(OutputBank *bank, double *spread, size_t frames) {
    Outputs<Quad> cabin;
    Outputs<Pair> subwoofer;
    cabin.load(*bank, FrontLeft);
    subwoofer.load(*bank, SubLeft);
    for (double *place = spread; place < spread + frames * outputCount; place += outputCount) {
        cabin.run(place, *bank, FrontLeft);
        subwoofer.run(place, *bank, SubLeft);
    }
    cabin.store(bank, FrontLeft);
    subwoofer.store(bank, SubLeft);
}

void interpolateLoop(const Interpolator &interpolator, const float *samples, float *rows, float *highest) {
    constexpr size_t width = sizeof(Floats) / sizeof(float);
    constexpr size_t parts = interpolatedFrames / width;
    const float *taps = &interpolator[0][0];
    for (size_t row = 0; row < interpolatorRows; ++row, rows += interpolatedFrames) {
        Floats sums[parts] = {};
        for (size_t tap = 0; tap < interpolatorTaps; ++tap, ++taps) {
#pragma GCC unroll 4
            for (size_t part = 0; part < parts; ++part) {
                Floats some;
                __builtin_memcpy(&some, samples + tap + part * width, sizeof some);
                sums[part] += *taps * some;
            }
        }
        __builtin_memcpy(rows, sums, sizeof sums);
        // Magnitudes stand in the order of the whole numbers that have the same bits.
        Integers most = {};
        for (size_t part = 0; part < parts; ++part) {
            const Integers magnitudes = reinterpret_cast<Integers>(sums[part]) & 0x7fffffff;
            most = magnitudes > most ? magnitudes : most;
        }
        int32_t bits = 0;
        for (size_t lane = 0; lane < width; ++lane) {
            bits = most[lane] > bits ? most[lane] : bits;
        }
        __builtin_memcpy(highest + row, &bits, sizeof bits);
    }
}

}  // namespace

const Kernel KERNEL = {KERNEL_NAME, toneLoop, outputLoop, interpolateLoop};

}  // namespace headunit::engine
