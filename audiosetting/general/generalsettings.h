// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

// The settings of the General page.

namespace audiosetting {
namespace general {

const int maxSubwooferLevel = 15;
const int maxBalanceFader = 15;

/// Defeat: 1 bypasses all sound processing, 0 is off.
inline Setting defeat() {
    return Setting(QStringLiteral("ADV_AUDIO_SETTINGS"), 0);
}
/// The EQ curve that was in force before Defeat was switched on.
inline Setting eqTypeBeforeDefeat() {
    return Setting(QStringLiteral("EQ_DEFEAT_TYPE"), 2);
}
/// Subwoofer switched on.
inline Setting subwooferOn() {
    return Setting(QStringLiteral("Setup_Sub"), 0);
}
/// Subwoofer level, 0 to maxSubwooferLevel.
inline Setting subwooferLevel() {
    return Setting(QStringLiteral("subwooferLevel"), 3);
}
/// Subwoofer phase: 0 is 0 degrees, 1 is 180 degrees.
inline Setting subwooferPhase() {
    return Setting(QStringLiteral("subwooferphase"), 0);
}
/// Loudness compensation: 1 is on, 0 is off. Its switch is on the settings root, behind "Advanced".
inline Setting loudness() {
    return Setting(QStringLiteral("Setup_Loudness"), 0);
}
/// Balance, -maxBalanceFader (left) to maxBalanceFader (right).
inline Setting balance() {
    return Setting(QStringLiteral("SoundFieldBalance"), 0);
}
/// Fader with the service's sign, -maxBalanceFader (front) to maxBalanceFader (rear).
inline Setting fader() {
    return Setting(QStringLiteral("SoundFieldFader"), 0);
}

}  // namespace general
}  // namespace audiosetting
