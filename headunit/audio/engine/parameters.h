// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "biquad.h"
#include "equaliser.h"
#include "filterdesign.h"
#include "layout.h"
#include "loudness.h"

#include "headunit/audio/service/soundstate.h"

#include <array>

namespace headunit::engine {

/// The loudness's sections, the equaliser's, and one to spare that rounds up to whole groups (kernel.h).
constexpr size_t toneSections = 20;
static_assert(bandCount + loudnessSections <= toneSections, "the sections do not fit");

/// The channel whose level each input has; a key click is as loud as what it is heard with.
constexpr std::array<size_t, inputCount> channelOfInput = {0, 1, 2, 3, 4, 6, 0};

/// The filters and gains behind the mix.
struct ChainParameters {
    std::array<Biquad, toneSections> tone;
    std::array<double, outputCount> placement{};  ///< balance and fader, which the prompts don't know
    std::array<CrossoverSections, outputCount> crossover;
    std::array<double, outputCount> gain{};  ///< level; negative where the phase is turned
    std::array<int, outputCount> delay{};    ///< in samples

    bool operator==(const ChainParameters &o) const {
        return tone == o.tone && placement == o.placement && crossover == o.crossover && gain == o.gain &&
               delay == o.delay;
    }
};

/// Everything that the audio thread needs to know, ready to use.
struct Parameters {
    std::array<double, inputCount> inputGain{};
    std::array<double, inputCount> ducking{};  ///< on top of it, while prompts sound
    ChainParameters chain;
};

/// Works out what \a state means for the samples. Values beyond their ranges are clamped, what does not exist is off.
/// Takes about a tenth of a millisecond: not for the audio thread.
Parameters designParameters(const SoundState &state);

}  // namespace headunit::engine
