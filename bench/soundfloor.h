// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

/// The arithmetic of the sound chain and nothing else: as many second-order sections as it has, 26 for each frame of
/// left and right, two of them in one vector of AVX2, which the processor must have. \return what depends on all of it.
double soundFloor(size_t frames);
