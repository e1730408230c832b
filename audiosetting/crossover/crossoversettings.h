// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

// The settings and tables of the Crossover page.

namespace audiosetting {
namespace crossover {

enum Channel { Front, Rear, Subwoofer, channelCount };

/// The fields of a channel, in the order in which a whole channel is written.
enum Field {
    Freq,   ///< index into the channel's frequencies, 0 is off
    Y,      ///< top edge of the curve picture in the graph, px
    Level,  ///< 0 to maxLevel, shown as -12 to 0
    Slope,  ///< 1 to 3: 6, 12, 18 dB per octave
    Heigh,  ///< height of the curve picture, px; so spelled in the keys
    fieldCount
};

const int presetCount = 2;
const int maxLevel = 12;  ///< 0 dB; level 0 is -12 dB

/// The setting that is in force.
const Setting &current(int channel, int field);
/// The same field in preset 0 or 1.
Setting preset(int channel, int field, int preset);
/// Default of a field, the same in every channel.
int defaultOf(int field);

/// The channel that the page shows.
inline Setting type() {
    return Setting(QStringLiteral("crossover/type"), Front);
}
/// The channel shown when the preset was saved. Written, never read back.
inline Setting presetType(int preset) {
    return Setting(QStringLiteral("crossover/PRESET_TYPE%1"), preset, Front);
}
/// Whether the preset has been saved.
inline Setting presetSaved(int preset) {
    return Setting(QStringLiteral("crossover/PRESET_SWITCH%1"), preset, false);
}

/// One cut-off frequency of a channel.
struct Frequency {
    const char *label;  ///< null for off, whose text is translated
    int place;          ///< where its curve lies: left edge of the high-pass picture, width of the low-pass picture, px
};

/// Number of frequencies of a channel, off included.
int frequencyCount(int channel);
/// \a index below frequencyCount().
const Frequency &frequency(int channel, int index);

const int minSlope = 1;
const int maxSlope = 3;

/// One slope, with the name of each channel's curve picture.
struct SlopeRow {
    const char *label;
    const char *curves[channelCount];
};

/// \a slope from minSlope to maxSlope.
const SlopeRow &slopeRow(int slope);

}  // namespace crossover
}  // namespace audiosetting
