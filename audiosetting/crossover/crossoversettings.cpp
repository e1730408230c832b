// SPDX-License-Identifier: Apache-2.0
#include "crossoversettings.h"

namespace audiosetting {
namespace crossover {

namespace {

const int defaults[fieldCount] = {0, 0, 12, 1, 506};

// The preset keys are irregular (an underscore in the front ones only, "REAT"). Required: cars hold their presets under
// these names.
const char *const presetKeys[channelCount][fieldCount] = {
    {"crossover/PRESET_FRONT_FREQ%1", "crossover/PRESET_FRONT_Y%1", "crossover/PRESET_FRONT_LEVEL%1",
     "crossover/PRESET_FRONT_SLOPE%1", "crossover/PRESET_FRONT_HEIGH%1"},
    {"crossover/PRESET_REARFREQ%1", "crossover/PRESET_REARY%1", "crossover/PRESET_REARLEVEL%1",
     "crossover/PRESET_REATSLOPE%1", "crossover/PRESET_REARHEIGH%1"},
    {"crossover/PRESET_SUBWOOFERFREQ%1", "crossover/PRESET_SUBWOOFERY%1", "crossover/PRESET_SUBWOOFERLEVEL%1",
     "crossover/PRESET_SUBWOOFERSLOPE%1", "crossover/PRESET_SUBWOOFERHEIGH%1"},
};

const Frequency frontFrequencies[] = {
    {nullptr, -360}, {"25 Hz", -330}, {"40 Hz", -270}, {"63 Hz", -215},  {"80 Hz", -150},  {"100 Hz", -85},
    {"160 Hz", -15}, {"250 Hz", 40},  {"500 Hz", 110}, {"1000 Hz", 175}, {"3500 Hz", 230}, {"5000 Hz", 295},
};
const Frequency rearFrequencies[] = {
    {nullptr, -360}, {"25 Hz", -330}, {"40 Hz", -270}, {"63 Hz", -215}, {"100 Hz", -85}, {"250 Hz", 40},
};
const Frequency subwooferFrequencies[] = {
    {nullptr, 1050}, {"25 Hz", 390}, {"40 Hz", 450}, {"63 Hz", 510}, {"100 Hz", 630}, {"250 Hz", 760},
};

const SlopeRow slopes[maxSlope - minSlope + 1] = {
    {"6 db", {"left_yellow_6db", "left_green_6db", "right_red_6db"}},
    {"12 db", {"left_yellow_12db", "left_green_12db", "right_red_12db"}},
    {"18 db", {"left_yellow_18db", "left_green_18db", "right_red_18db"}},
};

struct FrequencyTable {
    const Frequency *rows;
    int count;
};

template <int count> constexpr FrequencyTable table(const Frequency (&rows)[count]) {
    return FrequencyTable{rows, count};
}

const FrequencyTable frequencies[channelCount] = {
    table(frontFrequencies),
    table(rearFrequencies),
    table(subwooferFrequencies),
};

}  // namespace

const Setting &current(int channel, int field) {
    static const Setting settings[channelCount][fieldCount] = {
        {Setting(QStringLiteral("crossover/frontfreq"), defaults[Freq]),
         Setting(QStringLiteral("crossover/fronty"), defaults[Y]),
         Setting(QStringLiteral("crossover/frontlevel"), defaults[Level]),
         Setting(QStringLiteral("crossover/frontslope"), defaults[Slope]),
         Setting(QStringLiteral("crossover/frontheigh"), defaults[Heigh])},
        {Setting(QStringLiteral("crossover/rearfreq"), defaults[Freq]),
         Setting(QStringLiteral("crossover/reary"), defaults[Y]),
         Setting(QStringLiteral("crossover/rearlevel"), defaults[Level]),
         Setting(QStringLiteral("crossover/rearslope"), defaults[Slope]),
         Setting(QStringLiteral("crossover/rearheigh"), defaults[Heigh])},
        {Setting(QStringLiteral("crossover/subwooferfreq"), defaults[Freq]),
         Setting(QStringLiteral("crossover/subwoofery"), defaults[Y]),
         Setting(QStringLiteral("crossover/subwooferlevel"), defaults[Level]),
         Setting(QStringLiteral("crossover/subwooferslope"), defaults[Slope]),
         Setting(QStringLiteral("crossover/subwooferheigh"), defaults[Heigh])},
    };
    return settings[channel][field];
}

Setting preset(int channel, int field, int preset) {
    return Setting(QLatin1String(presetKeys[channel][field]), preset, defaults[field]);
}

int defaultOf(int field) {
    return defaults[field];
}

int frequencyCount(int channel) {
    return frequencies[channel].count;
}

const Frequency &frequency(int channel, int index) {
    return frequencies[channel].rows[index];
}

const SlopeRow &slopeRow(int slope) {
    return slopes[slope - minSlope];
}

}  // namespace crossover
}  // namespace audiosetting
