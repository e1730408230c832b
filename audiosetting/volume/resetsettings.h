// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

// The settings that only the reset reads. It takes the others from the pages that own them.

namespace audiosetting {
namespace reset {

/// A delay (0 to 5) in 0.1 ms. Not the key that the Timing page writes (timing::delay()): this one depends on the unit,
/// whose factory file may hold delays for its car. Where it holds none, a reset sends 0.
inline Setting delay(int output) {
    return Setting(QStringLiteral("timing/msec%1"), output, 0);
}
/// Level of a volume channel (0 to 4) in the factory state.
inline Setting defaultVolume(int type) {
    return Setting(QStringLiteral("default_volume%1"), type, 20);
}

}  // namespace reset
}  // namespace audiosetting
