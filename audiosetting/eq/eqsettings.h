#pragma once

#include "base/setting.h"

// The settings of the EQ page and of the Factory EQ page.

namespace audiosetting {
namespace eq {

/// The slot (0 to 4) that was last recalled or stored.
inline Setting lastSlot() {
    return Setting(QStringLiteral("custom_eq_type_id"), 0);
}
/// Slider level (0 to 24) of a band in a slot.
inline Setting slotLevel(int slot, int band) {
    return Setting(QStringLiteral("customeq%1_%2").arg(slot + 1), band, 12);
}
/// The slot holds a stored curve.
inline Setting slotStored(int slot) {
    return Setting(QStringLiteral("EqPresetSwitch%1"), slot, false);
}
/// The slot to show as selected, or noSlot.
inline Setting highlightedSlot() {
    return Setting(QStringLiteral("HIGHLIGHT_PRESET_ID"), -1);
}
const int noSlot = -1;
/// Service value (gain + 12) of a band of the live custom curve. The audio service writes it.
inline Setting liveBand(int band) {
    return Setting(QStringLiteral("eq%1"), band, 0);
}

}  // namespace eq
}  // namespace audiosetting
