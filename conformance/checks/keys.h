// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

namespace conformance {

const char factoryFile[] = "/media/flash/nvm/factory/audiosettings.ini";

struct Key {
    const char *name;
    int flat;  ///< what a Flat sets it to
};

/// The keys that flatCrossover() sets.
const Key crossoverKeys[] = {
    {"crossover/frontfreq", 0},
    {"crossover/fronty", 0},
    {"crossover/frontheigh", 506},
    {"crossover/frontlevel", 12},
    {"crossover/frontslope", 1},
    {"crossover/rearfreq", 0},
    {"crossover/reary", 0},
    {"crossover/rearheigh", 506},
    {"crossover/rearlevel", 12},
    {"crossover/rearslope", 1},
    {"crossover/subwooferfreq", 0},
    {"crossover/subwoofery", 0},
    {"crossover/subwooferheigh", 506},
    {"crossover/subwooferlevel", 12},
    {"crossover/subwooferslope", 1},
};

/// The keys that flatTimeDelay() sets.
const Key delayKeys[] = {
    {"timing/DATA_TYPE0", 0}, {"timing/DATA_TYPE1", 0}, {"timing/DATA_TYPE2", 0},
    {"timing/DATA_TYPE3", 0}, {"timing/DATA_TYPE4", 0}, {"timing/DATA_TYPE5", 0},
};

/// The keys that both leave alone.
const char *const keptByFlat[] = {
    "crossover/type",
    "crossover/PRESET_SWITCH0",
    "crossover/PRESET_FRONT_FREQ0",
    "timing/type",
    "timing/PRESET_ENABLE1",
    "timing/PRESETS1_DATA3",
    "subwooferLevel",
    "eq4",
};

/// Every text id that the application asks for.
const int textIds[] = {3,    14,   15,   16,   229,  231,  232,  233,  234,  235,  241,  262,  361,
                       427,  439,  681,  969,  970,  971,  972,  973,  1065, 1066, 1067, 1068, 1069,
                       1070, 1071, 1072, 1073, 1074, 1076, 1077, 1078, 1079, 1081, 1082, 1083, 1084};

const int bandCount = 13;
const int channelCount = 8;

}  // namespace conformance
