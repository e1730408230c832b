// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

// The settings of the Timing page.

namespace audiosetting {
namespace timing {

/// Outputs in the order of the array that goes to the microcontroller.
enum Output { FrontLeft, FrontRight, RearLeft, RearRight, SubLeft, SubRight, outputCount };

/// How delays are shown.
enum Unit { Milliseconds, Inches };

const int presetCount = 2;
const int maxDelay = 99;  ///< in 0.1 ms

/// The unit shown.
inline Setting unit() {
    return Setting(QStringLiteral("timing/type"), Milliseconds);
}
/// Delay of an output, 0 to maxDelay in 0.1 ms. The key says type and holds a delay. Required: cars hold
/// their delays under it.
inline Setting delay(int output) {
    return Setting(QStringLiteral("timing/DATA_TYPE%1"), output, 0);
}
inline Setting presetDelay(int preset, int output) {
    return Setting(QStringLiteral("timing/PRESETS%1_DATA%2").arg(preset).arg(output), 0);
}
/// Whether the preset has been saved.
inline Setting presetSaved(int preset) {
    return Setting(QStringLiteral("timing/PRESET_ENABLE%1"), preset, false);
}

}  // namespace timing
}  // namespace audiosetting
