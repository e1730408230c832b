// The loops of kernel.h, included by one source file for each instruction set, which names it in KERNEL. No other
// functions are called, as their compiled form might be shared with code for another instruction set.

#include "kernel.h"

namespace headunit::engine {

namespace {

using Pair = double __attribute__((vector_size(2 * sizeof(double))));
using Quad = double __attribute__((vector_size(4 * sizeof(double))));
using Octet = float __attribute__((vector_size(8 * sizeof(float))));

/// One step of a section, transposed direct form II.
template <typename Vector> inline __attribute__((always_inline)) void step(Vector &sample, Vector &s0, Vector &s1,
                                                                           const Vector &b0, const Vector &b1,
                                                                           const Vector &b2, const Vector &a1,
                                                                           const Vector &a2) {
    const Vector in = sample;
    sample = b0 * in + s0;
    s0 = (b1 * in - a1 * sample) + s1;
    s1 = b2 * in - a2 * sample;
}

void toneLoop(ToneGroup *group, double *samples, size_t frames) {
    Pair c[groupSections][coefficientCount];
    Pair s[groupSections][stateCount];
    for (size_t section = 0; section < groupSections; ++section) {
        for (size_t i = 0; i < coefficientCount; ++i) {
            const double value = group->coefficients[section][i];
            c[section][i] = Pair{value, value};
        }
        for (size_t i = 0; i < stateCount; ++i) {
            s[section][i] = Pair{group->states[section][i][0], group->states[section][i][1]};
        }
    }
    for (size_t frame = 0; frame < frames; ++frame) {
        double *const place = samples + frame * stereo;
        Pair sample = {place[0], place[1]};
#pragma GCC unroll 8
        for (size_t section = 0; section < groupSections; ++section) {
            step(sample, s[section][0], s[section][1], c[section][0], c[section][1], c[section][2], c[section][3],
                 c[section][4]);
        }
        place[0] = sample[0];
        place[1] = sample[1];
    }
    for (size_t section = 0; section < groupSections; ++section) {
        for (size_t i = 0; i < stateCount; ++i) {
            group->states[section][i][0] = s[section][i][0];
            group->states[section][i][1] = s[section][i][1];
        }
    }
}

/// One vector of outputs, from lane \a first on.
template <typename Vector>
inline __attribute__((always_inline)) void outputLanes(OutputBank *bank, double *spread, size_t frames, size_t first) {
    Vector c[crossoverStages][coefficientCount];
    Vector s[crossoverStages][stateCount];
    for (size_t stage = 0; stage < crossoverStages; ++stage) {
        for (size_t i = 0; i < coefficientCount; ++i) {
            __builtin_memcpy(&c[stage][i], &bank->coefficients[stage][i][first], sizeof(Vector));
        }
        for (size_t i = 0; i < stateCount; ++i) {
            __builtin_memcpy(&s[stage][i], &bank->states[stage][i][first], sizeof(Vector));
        }
    }
    for (size_t frame = 0; frame < frames; ++frame) {
        Vector sample;
        __builtin_memcpy(&sample, spread + frame * outputCount + first, sizeof(Vector));
#pragma GCC unroll 2
        for (size_t stage = 0; stage < crossoverStages; ++stage) {
            step(sample, s[stage][0], s[stage][1], c[stage][0], c[stage][1], c[stage][2], c[stage][3], c[stage][4]);
        }
        __builtin_memcpy(spread + frame * outputCount + first, &sample, sizeof(Vector));
    }
    for (size_t stage = 0; stage < crossoverStages; ++stage) {
        for (size_t i = 0; i < stateCount; ++i) {
            __builtin_memcpy(&bank->states[stage][i][first], &s[stage][i], sizeof(Vector));
        }
    }
}

void outputLoop(OutputBank *bank, double *spread, size_t frames) {
    outputLanes<Quad>(bank, spread, frames, FrontLeft);
    outputLanes<Pair>(bank, spread, frames, SubLeft);
}

void interpolateLoop(const Interpolator &interpolator, const float *samples, float *rows) {
    const float *taps = &interpolator[0][0];
    for (size_t row = 0; row < interpolatorRows; ++row) {
        Octet first = {};
        Octet second = {};
        for (size_t tap = 0; tap < interpolatorTaps; ++tap, ++taps) {
            Octet low;
            Octet high;
            __builtin_memcpy(&low, samples + tap, sizeof low);
            __builtin_memcpy(&high, samples + tap + interpolatedFrames / 2, sizeof high);
            first += *taps * low;
            second += *taps * high;
        }
        __builtin_memcpy(rows, &first, sizeof first);
        __builtin_memcpy(rows + interpolatedFrames / 2, &second, sizeof second);
        rows += interpolatedFrames;
    }
}

}  // namespace

const Kernel KERNEL = {KERNEL_NAME, toneLoop, outputLoop, interpolateLoop};

}  // namespace headunit::engine
