// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kernel.h"

#include <array>

namespace headunit::engine {

/// The last frames of what goes into the filters, for those that are to have heard them before they are heard.
class MixHistory {
public:
    /// In frames. The slowest filter, that of the lowest band raised by 12 dB, loses 55 dB of what it heard before.
    static constexpr size_t length = 6144;

    /// Takes \a frames of left and right of the program and of the prompts, null if none sounds.
    void write(const double *program, const double *prompts, size_t frames);

    /// Copies \a frames of both, the first of them \a age frames ago.
    void read(double *program, double *prompts, size_t age, size_t frames) const;

private:
    std::array<float, length * stereo> m_program{};
    std::array<float, length * stereo> m_prompts{};
    size_t m_position = 0;           ///< of the next write
    size_t m_silentFrames = length;  ///< of the prompts; from length on there is nothing but silence
};

}  // namespace headunit::engine
