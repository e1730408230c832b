// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/settings/audiokeys.h"

#include <array>

namespace headunit {

/// Cut-off frequencies in Hz by frequency index; 0 is off.
constexpr std::array<int, 12> frontFrequencies = {0, 25, 40, 63, 80, 100, 160, 250, 500, 1000, 3500, 5000};
constexpr std::array<int, 6> rearFrequencies = {0, 25, 40, 63, 100, 250};
constexpr std::array<int, 6> subwooferFrequencies = {0, 25, 40, 63, 100, 250};

/// Centre frequencies of the equaliser's bands in Hz.
constexpr std::array<int, keys::bands> bandFrequencies = {63,   100,  160,  250,  400,   630,  1000,
                                                          1600, 2500, 4000, 6300, 10000, 16000};

/// Smallest and largest value of each quantity.
struct Range {
    int low;
    int high;
};

namespace ranges {

constexpr Range bandValue = {-12, 24};
constexpr Range balanceFader = {-15, 15};
constexpr Range channelLevel = {0, 40};
constexpr Range sourceGain = {0, 20};
constexpr Range subwooferLevel = {0, 15};
constexpr Range slope = {1, 3};
constexpr Range filterLevel = {0, 12};
constexpr Range trim = {-600, 0};
constexpr Range delay = {0, 99};
constexpr Range flag = {0, 1};

}  // namespace ranges

constexpr int neutralSourceGain = 10;  ///< a source gain counts from here, 1 dB a step
constexpr int neutralBandValue = 12;   ///< a band value counts from here, 1 dB a step
constexpr int neutralFilterLevel = 12;
constexpr int neutralSubwooferLevel = 10;
constexpr double decibelsPerLevel = 1.5;  ///< of channels and of the subwoofer

}  // namespace headunit
