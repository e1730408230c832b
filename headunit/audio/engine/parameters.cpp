// SPDX-License-Identifier: Apache-2.0
#include "parameters.h"

#include "eqcurves.h"

#include "headunit/audio/service/soundtables.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace headunit::engine {

namespace {

constexpr double decibelsPerSide = 2;
constexpr double decibelsPerTrim = 0.1;
constexpr double duckedDecibels = -12;
constexpr double delayStepsPerSecond = 10000;

int within(int value, const Range &range) {
    return std::clamp(value, range.low, range.high);
}

int levelOf(const SoundState &state, size_t channel) {
    return within(state.channelLevel[channel], ranges::channelLevel);
}

double levelDecibels(int level) {
    return (level - ranges::channelLevel.high) * decibelsPerLevel;
}

double levelGain(int level) {
    return level == 0 ? 0 : fromDecibels(levelDecibels(level));
}

double sourceGain(const SoundState &state) {
    const bool there = state.activeSource >= 0 && state.activeSource < SoundState::sources;
    const int value = there ? state.sourceGain[static_cast<size_t>(state.activeSource)] : neutralSourceGain;
    return fromDecibels(within(value, ranges::sourceGain) - neutralSourceGain);
}

/// Of the two sides that \a position lies between, the gain of the one at its negative end, or of the other.
double sideGain(int position, bool negativeSide) {
    const int inside = within(position, ranges::balanceFader);
    const int away = negativeSide ? inside : -inside;
    if (away <= 0) {
        return 1;
    }
    return away == ranges::balanceFader.high ? 0 : fromDecibels(-decibelsPerSide * away);
}

double subwooferGain(const SoundState &state) {
    const int level = within(state.subwooferLevel, ranges::subwooferLevel);
    if (level == 0) {
        return 0;
    }
    const double gain = fromDecibels((level - neutralSubwooferLevel) * decibelsPerLevel);
    return state.subwooferPhase == 1 ? -gain : gain;
}

template <typename Table> CrossoverSections crossover(const CrossoverFilter &filter, const Table &frequencies,
                                                      CrossoverSections (*design)(int order, double hz)) {
    if (filter.freq <= 0 || filter.freq >= static_cast<int>(frequencies.size())) {
        return CrossoverSections();
    }
    return design(within(filter.slope, ranges::slope), frequencies[static_cast<size_t>(filter.freq)]);
}

double filterGain(const CrossoverFilter &filter) {
    return fromDecibels(within(filter.level, ranges::filterLevel) - neutralFilterLevel);
}

int delaySamples(int steps) {
    return static_cast<int>(std::lround(within(steps, ranges::delay) * (sampleRate / delayStepsPerSecond)));
}

/// The loudness's sections come first, then the equaliser's.
void designTone(const SoundState &state, ChainParameters *chain) {
    if (state.loudness) {
        const auto loudness = designLoudness(-levelDecibels(levelOf(state, channelOfInput[MainInput])));
        std::copy(loudness.begin(), loudness.end(), chain->tone.begin());
    }
    const Curve curve = curveInForce(state);
    BandGains gains;
    std::copy(curve.begin(), curve.end(), gains.begin());
    const auto equaliser = designEqualiser(gains);
    std::copy(equaliser.begin(), equaliser.end(), chain->tone.begin() + loudnessSections);
}

/// Left and right of one place in the car.
void designPair(size_t left, double fader, const CrossoverSections &sections, double gain, const SoundState &state,
                ChainParameters *chain) {
    for (const size_t output : {left, left + 1}) {
        const bool atLeft = output == left;
        chain->placement[output] = state.defeat ? 1 : fader * sideGain(state.balance, atLeft);
        chain->crossover[output] = sections;
        chain->gain[output] = gain * fromDecibels(within(state.trim, ranges::trim) * decibelsPerTrim);
        chain->delay[output] = state.defeat ? 0 : delaySamples(state.delay[output]);
    }
}

ChainParameters designChain(const SoundState &state) {
    ChainParameters chain;
    if (state.defeat) {
        designPair(FrontLeft, 1, CrossoverSections(), 1, state, &chain);
        designPair(RearLeft, 1, CrossoverSections(), 1, state, &chain);
    } else {
        designTone(state, &chain);
        designPair(FrontLeft, sideGain(state.fader, true),
                   crossover(state.front, frontFrequencies, butterworthHighPass), filterGain(state.front), state,
                   &chain);
        designPair(RearLeft, sideGain(state.fader, false), crossover(state.rear, rearFrequencies, butterworthHighPass),
                   filterGain(state.rear), state, &chain);
    }
    // Defeat leaves the subwoofer's low-pass, level and phase in force: they protect its driver. The fader is between
    // front and rear and leaves it alone.
    designPair(SubLeft, 1, crossover(state.subwoofer, subwooferFrequencies, butterworthLowPass),
               filterGain(state.subwoofer) * subwooferGain(state), state, &chain);
    return chain;
}

bool sounds(const SoundState &state, Prompt prompt) {
    return state.activePrompts[static_cast<size_t>(prompt)];
}

/// Guidance and voice are heard above what plays, a call is heard alone. An announcement stands in for the source that
/// plays, and steps back for the others like it.
void designDucking(const SoundState &state, Parameters *parameters) {
    parameters->ducking.fill(1);
    double program = 1;
    if (sounds(state, Prompt::Ringtone) || sounds(state, Prompt::Phone)) {
        program = 0;
    } else if (sounds(state, Prompt::Navigation) || sounds(state, Prompt::Voice)) {
        program = fromDecibels(duckedDecibels);
    }
    parameters->ducking[AnnouncementInput] = program;
    parameters->ducking[MainInput] = sounds(state, Prompt::Announcement) ? 0 : program;
}

}  // namespace

Parameters designParameters(const SoundState &state) {
    Parameters parameters;
    for (size_t input = 0; input < inputCount; ++input) {
        parameters.inputGain[input] = levelGain(levelOf(state, channelOfInput[input]));
    }
    parameters.inputGain[MainInput] *= state.muted ? 0 : sourceGain(state);
    designDucking(state, &parameters);
    parameters.chain = designChain(state);
    return parameters;
}

}  // namespace headunit::engine
