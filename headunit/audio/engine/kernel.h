#pragma once

#include "format.h"

#include <array>

namespace headunit::engine {

constexpr size_t coefficientCount = 5;  ///< b0 b1 b2 a1 a2
constexpr size_t stateCount = 2;
constexpr size_t stereo = 2;
constexpr size_t crossoverStages = 2;

/// Tone sections are run in groups: long enough that the processor overlaps their waiting for one another, short
/// enough for its registers.
constexpr size_t groupSections = 5;

/// A group's sections, one after the other, both channels alike.
struct alignas(32) ToneGroup {
    double coefficients[groupSections][coefficientCount];
    double states[groupSections][stateCount][stereo];
};

/// Two sections for each output.
struct alignas(32) OutputBank {
    double coefficients[crossoverStages][coefficientCount][outputCount];
    double states[crossoverStages][stateCount][outputCount];
};

/// The loops that take the time, once for each instruction set. All of them give the same samples, bit for bit.
struct Kernel {
    const char *name;
    /// Filters \a frames of left and right in place.
    void (*tone)(ToneGroup *group, double *samples, size_t frames);
    /// Filters \a frames of outputCount samples in place.
    void (*outputs)(OutputBank *bank, double *spread, size_t frames);
};

extern const Kernel plainKernel;  ///< whatever every processor of this kind has; SSE2 on x86-64
extern const Kernel avx2Kernel;   ///< as plainKernel where there is no AVX2 to compile for

/// Whether this processor has what avx2Kernel needs.
bool hasAvx2();
/// The best one that this processor can run.
const Kernel &bestKernel();

}  // namespace headunit::engine
