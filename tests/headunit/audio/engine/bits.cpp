// SPDX-License-Identifier: Apache-2.0
// Writes what the engine plays under every change of a control to a file, as 32-bit floats: to be compared with what
// another processor plays (tools/crosscheck).
//
//   enginebits FILE

#include "changesofcontrols.h"
#include "rendering.h"

#include <cstdio>

int main(int argc, char **argv) {
    std::FILE *const file = argc == 2 ? std::fopen(argv[1], "wb") : nullptr;
    if (!file) {
        std::fputs("enginebits FILE\n", stderr);
        return 2;
    }
    constexpr size_t half = 4800;
    const rendering::Stereo signal = rendering::noise(2 * half, 0.5F);
    bool written = true;
    for (const auto *table : {&changesOfControls(), &changesOfPrompts()}) {
        for (const ChangeOfControl &row : *table) {
            for (const auto &samples : rendering::render(row.before, signal, {{half, row.after}}, {}, row.input)) {
                written &= std::fwrite(samples.data(), sizeof(float), samples.size(), file) == samples.size();
            }
        }
    }
    written &= std::fclose(file) == 0;
    return written ? 0 : 1;
}
