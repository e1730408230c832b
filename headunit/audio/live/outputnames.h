// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/layout.h"

namespace headunit {

/// Names of the outputs, as on the loudspeakers.
constexpr const char *outputNames[engine::outputCount] = {"FL", "FR", "RL", "RR", "SL", "SR"};
constexpr const char *pairNames[engine::pairCount] = {"front", "rear", "sub"};

}  // namespace headunit
