// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>

namespace headunit {

/// A key of the audio settings store that holds a whole number, and the default of its readers. A %1 in a name
/// stands for a number.
struct SettingKey {
    const char *name;
    int defaultValue;
};

/// The current state of one crossover filter; y and heigh place its curve on the page.
struct FilterKeys {
    SettingKey freq;
    SettingKey y;
    SettingKey heigh;
    SettingKey level;
    SettingKey slope;
};

namespace keys {

constexpr FilterKeys front = {{"crossover/frontfreq", 0},
                              {"crossover/fronty", 0},
                              {"crossover/frontheigh", 506},
                              {"crossover/frontlevel", 12},
                              {"crossover/frontslope", 1}};
constexpr FilterKeys rear = {{"crossover/rearfreq", 0},
                             {"crossover/reary", 0},
                             {"crossover/rearheigh", 506},
                             {"crossover/rearlevel", 12},
                             {"crossover/rearslope", 1}};
constexpr FilterKeys subwoofer = {{"crossover/subwooferfreq", 0},
                                  {"crossover/subwoofery", 0},
                                  {"crossover/subwooferheigh", 506},
                                  {"crossover/subwooferlevel", 12},
                                  {"crossover/subwooferslope", 1}};
constexpr std::array<FilterKeys, 3> filters = {front, rear, subwoofer};

constexpr int outputs = 6;
constexpr SettingKey delay = {"timing/DATA_TYPE%1", 0};  ///< a delay in 0.1 ms, despite its name

constexpr SettingKey defeat = {"ADV_AUDIO_SETTINGS", 0};
constexpr SettingKey loudness = {"Setup_Loudness", 0};
constexpr SettingKey subwooferOn = {"Setup_Sub", 0};
constexpr SettingKey subwooferLevel = {"subwooferLevel", 3};
constexpr SettingKey subwooferPhase = {"subwooferphase", 0};
constexpr SettingKey balance = {"SoundFieldBalance", 0};
constexpr SettingKey fader = {"SoundFieldFader", 0};  ///< negative is the front
constexpr int bands = 13;
constexpr SettingKey customEq = {"eq%1", 0};              ///< gain + 12; the pages' default, -12 dB, never comes up
constexpr SettingKey flatBand = {customEq.name, 12};      ///< the same key, as the unit itself reads it
constexpr SettingKey channelLevel = {"inputgain%1", 16};  ///< a volume, despite its name
/// In the factory file alone: the highest main volume that a unit starts with. The default is no limit.
constexpr SettingKey powerUpLimit = {"powerup/mainlimit", 40};
constexpr SettingKey sourceGain = {"audioinputgain%1", 0};  ///< -10 to 10
constexpr SettingKey eqType = {"audioservice/eqtype", 0};   ///< the audio service's own; no page reads it

}  // namespace keys

}  // namespace headunit
