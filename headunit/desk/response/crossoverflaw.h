// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

#include <QString>

namespace headunit {

/// What the pairs of loudspeakers do to each other where both of them play, whatever the equaliser does to all.
struct CrossoverFlaw {
    enum Kind { None, Hole, Overlap };

    Kind kind = None;
    double decibels = 0;  ///< how deep or high, at most deepestHole
    double hz = 0;

    static constexpr double least = 3;  ///< decibels that are worth a word
    static constexpr double deepestHole = 30;
};

/// What changes least and mends most; None where nothing within reach does.
struct CrossoverRemedy {
    enum Kind { None, Phase, SubwooferFrequency, FrontFrequency, RearFrequency, EqualDelays };

    Kind kind = None;
    int value = 0;  ///< degrees or Hz; 0 Hz is off
};

/// The worst flaw of the sum, as if all loudspeakers stood in one place.
CrossoverFlaw findFlaw(const SoundState &state);
/// What to change, so that of the flaw at least \ref CrossoverFlaw::least decibels go and no worse one comes.
CrossoverRemedy findRemedy(const SoundState &state, const CrossoverFlaw &flaw);

/// A sentence with both, in the desk's language; empty where there is no flaw.
QString crossoverRemark(const SoundState &state);

}  // namespace headunit
