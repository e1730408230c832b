// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

/// Bands of the equaliser.
enum { eqBandCount = 13 };

// The settings of the EQ page and of the Factory EQ page.

namespace audiosetting {
namespace eq {

const int presetCount = 5;  ///< curves of the driver's own
const int noPreset = -1;
const int resetBandCount = 10;  ///< bands from the lowest that the reset command covers

inline bool isBand(int band) {
    return band >= 0 && band < eqBandCount;
}
inline bool isPreset(int number) {
    return number >= 0 && number < presetCount;
}

/// The preset (0 to 4) that was last recalled or saved.
inline Setting lastPreset() {
    return Setting(QStringLiteral("custom_eq_type_id"), 0);
}
/// Slider level (0 to 24) of a band in a preset.
inline Setting presetLevel(int preset, int band) {
    return Setting(QStringLiteral("customeq%1_%2").arg(preset + 1), band, 12);
}
/// Whether the preset has been saved.
inline Setting presetSaved(int preset) {
    return Setting(QStringLiteral("EqPresetSwitch%1"), preset, false);
}
/// The preset to show as selected, or noPreset.
inline Setting highlightedPreset() {
    return Setting(QStringLiteral("HIGHLIGHT_PRESET_ID"), noPreset);
}
/// Service value (gain + 12) of a band of the live custom curve. The audio service writes it.
inline Setting liveBand(int band) {
    return Setting(QStringLiteral("eq%1"), band, 0);
}

}  // namespace eq
}  // namespace audiosetting
