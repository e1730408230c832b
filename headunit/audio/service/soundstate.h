// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/settings/audiokeys.h"

#include <array>
#include <tuple>

namespace headunit {

/// A crossover filter as the microcontroller counts it.
struct CrossoverFilter {
    int freq = 0;    ///< index into the channel's frequency table; 0 is off
    int slope = 1;   ///< 1 to 3: 6, 12, 18 dB per octave
    int level = 12;  ///< 0 to 12: -12 to 0 dB

    /// Every member above, for comparison.
    auto members() const { return std::tie(freq, slope, level); }
    bool operator==(const CrossoverFilter &o) const { return members() == o.members(); }
    bool operator!=(const CrossoverFilter &o) const { return !(*this == o); }
};

/// The prompts, which sound beside the source that plays, in the order of the engine's inputs. None of them goes
/// through equaliser, loudness, balance and fader.
enum class Prompt { Ringtone, Phone, Navigation, Voice, Announcement, Beep };

/// Everything that shapes the sound, as one plain value: what the services were told, within its ranges.
///
/// The services own the one instance; whoever makes the sound is handed a copy.
struct SoundState {
    static constexpr int bands = keys::bands;
    static constexpr int channels = 8;
    static constexpr int sources = 7;
    static constexpr int prompts = 6;
    static constexpr int outputs = keys::outputs;  ///< left and right of the front, the rear and the subwoofers

    int eqType = 0;                            ///< curve in force; 16 and above the custom one
    std::array<int, bands> customEq{};         ///< bands of the live custom curve, as sent: -12 to 24
    int balance = 0;                           ///< -15 (left) to 15 (right)
    int fader = 0;                             ///< -15 (front) to 15 (rear)
    std::array<int, channels> channelLevel{};  ///< 0 to 40
    std::array<int, sources> sourceGain{};     ///< 0 to 20, 10 is neutral
    int activeSource = 0;
    bool muted = false;                         ///< the channels keep their levels
    std::array<bool, prompts> activePrompts{};  ///< by Prompt: those that sound now, for which the others step back
    bool loudness = false;
    bool defeat = false;
    int subwooferLevel = 0;  ///< 0 (silent, or switched off) to 15
    int subwooferPhase = 0;  ///< 0: 0 degrees, 1: 180 degrees
    CrossoverFilter front;
    CrossoverFilter rear;
    CrossoverFilter subwoofer;
    std::array<int, outputs> delay{};  ///< 0 to 99, in 0.1 ms
    int trim = 0;                      ///< of all outputs, -600 to 0 in 0.1 dB: for comparing at one level; not kept

    /// Every member above, for comparison.
    auto members() const {
        return std::tie(eqType, customEq, balance, fader, channelLevel, sourceGain, activeSource, muted, activePrompts,
                        loudness, defeat, subwooferLevel, subwooferPhase, front, rear, subwoofer, delay, trim);
    }
    bool operator==(const SoundState &o) const { return members() == o.members(); }
    bool operator!=(const SoundState &o) const { return !(*this == o); }
};

}  // namespace headunit
