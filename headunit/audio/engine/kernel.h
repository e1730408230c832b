// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include <array>

namespace headunit::engine {

constexpr size_t coefficientCount = 5;  ///< b0 b1 b2 a1 a2
constexpr size_t stateCount = 2;
constexpr size_t stereo = 2;
constexpr size_t crossoverStages = 2;

/// Tone sections are run in groups of two halves, the second of which follows the first a few frames behind, so that a
/// vector holds a section of each. A half is long enough that the processor overlaps its sections' waiting for one
/// another, and short enough for its registers.
constexpr size_t halfSections = 5;
constexpr size_t groupSections = 2 * halfSections;
constexpr size_t groupLanes = 4;  ///< first half left and right, second half left and right

struct alignas(32) ToneGroup {
    double coefficients[halfSections][coefficientCount][groupLanes];
    double states[halfSections][stateCount][groupLanes];
};

/// Two sections for each output.
struct alignas(32) OutputBank {
    double coefficients[crossoverStages][coefficientCount][outputCount];
    double states[crossoverStages][stateCount][outputCount];
};

/// Filters that run over the same samples, interpolatedFrames at once.
constexpr size_t interpolatorTaps = 24;
constexpr size_t interpolatorRows = 4;
constexpr size_t interpolatedFrames = 16;
using Interpolator = std::array<std::array<float, interpolatorTaps>, interpolatorRows>;

/// The loops that take the time, once for each instruction set. All of them give the same samples, bit for bit.
struct Kernel {
    const char *name;
    /// Filters \a frames of left and right in place.
    void (*tone)(ToneGroup *group, double *samples, size_t frames);
    /// Filters \a frames of outputCount samples in place.
    void (*outputs)(OutputBank *bank, double *spread, size_t frames);
    /// Gives interpolatedFrames for each row, one row after the other, the first from the first interpolatorTaps
    /// \a samples; and the highest magnitude of each row.
    void (*interpolate)(const Interpolator &interpolator, const float *samples, float *rows, float *highest);
};

extern const Kernel plainKernel;  ///< whatever every processor of this kind has; SSE2 on x86-64
extern const Kernel avx2Kernel;   ///< as plainKernel where there is no AVX2 to compile for

/// Whether this processor has what avx2Kernel needs.
bool hasAvx2();
/// The best one that this processor can run.
const Kernel &bestKernel();

}  // namespace headunit::engine
