// SPDX-License-Identifier: Apache-2.0
#include "soundfloor.h"

#include <array>

namespace {

using Quad = double __attribute__((vector_size(4 * sizeof(double))));

constexpr size_t blockFrames = 64;

struct Section {
    Quad b0, b1, b2, a1, a2;
    Quad s0, s1;
};

/// Some sections in a row over a block, their states in registers. The processor works on several frames at once, so
/// that no section waits for another.
template <size_t count> void run(Section *sections, Quad *samples) {
    Quad s0[count];
    Quad s1[count];
    for (size_t i = 0; i < count; ++i) {
        s0[i] = sections[i].s0;
        s1[i] = sections[i].s1;
    }
    for (size_t frame = 0; frame < blockFrames; ++frame) {
        Quad sample = samples[frame];
#pragma GCC unroll 8
        for (size_t i = 0; i < count; ++i) {
            const Quad in = sample;
            sample = sections[i].b0 * in + s0[i];
            s0[i] = (sections[i].b1 * in + s1[i]) - sections[i].a1 * sample;
            s1[i] = sections[i].b2 * in - sections[i].a2 * sample;
        }
        samples[frame] = sample;
    }
    for (size_t i = 0; i < count; ++i) {
        sections[i].s0 = s0[i];
        sections[i].s1 = s1[i];
    }
}

}  // namespace

double soundFloor(size_t frames) {
    static std::array<Section, 13> sections;
    for (Section &section : sections) {
        // Any filter that neither grows nor dies away
        section = {Quad{} + 0.99, Quad{} - 1.9, Quad{} + 0.92, Quad{} - 1.9, Quad{} + 0.91, Quad{}, Quad{}};
    }
    std::array<Quad, blockFrames> samples;
    samples.fill(Quad{0.1, -0.1, 0.2, -0.2});
    for (size_t done = 0; done < frames; done += blockFrames) {
        run<4>(&sections[0], samples.data());
        run<4>(&sections[4], samples.data());
        run<5>(&sections[8], samples.data());
        samples[done / blockFrames % blockFrames] += 0.01;
    }
    return samples[0][0];
}
