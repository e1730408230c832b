// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/crossoverflaw.h"

#include "headunit/audio/engine/filterdesign.h"
#include "headunit/audio/engine/response.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/desk/frame/desktext.h"

#include <algorithm>
#include <cmath>

namespace headunit {

using namespace engine;

namespace {

constexpr double stepsPerOctave = 24;
constexpr int reach = static_cast<int>(3 * stepsPerOctave);  ///< how far around a flaw it is looked for its edges
constexpr double highestHz = 12000;

/// The crossover alone: what shapes all loudspeakers alike is out of the way, and so is what only plays just now.
SoundState crossoverOnly(const SoundState &state) {
    SoundState alone = state;
    alone.eqType = 16;
    alone.customEq.fill(neutralBandValue);
    alone.loudness = false;
    alone.channelLevel.fill(ranges::channelLevel.high);
    alone.sourceGain.fill(neutralSourceGain);
    alone.muted = false;
    alone.activePrompts.fill(false);
    alone.trim = 0;
    return alone;
}

double decibels(std::complex<double> value) {
    constexpr double silence = 1e-6;
    return toDecibels(std::max(std::abs(value), silence));
}

struct Curves {
    std::vector<double> hz;
    std::vector<double> sum;     ///< in dB, as are the others
    std::vector<double> bass;    ///< of the subwoofers
    std::vector<double> others;  ///< of front and rear
};

Curves curvesOf(const SoundState &state) {
    Curves curves;
    for (double hz = 20; hz < highestHz; hz *= std::exp2(1 / stepsPerOctave)) {
        curves.hz.push_back(hz);
    }
    for (const MeasuredPoint &point : calculateResponse(designParameters(crossoverOnly(state)), curves.hz)) {
        const std::complex<double> bass = point.outputs[SubLeft] + point.outputs[SubRight];
        curves.sum.push_back(decibels(point.sum()));
        curves.bass.push_back(decibels(bass));
        curves.others.push_back(decibels(point.sum() - bass));
    }
    return curves;
}

/// How far a value stands out of what lies on both of its sides: for a dip the lower of the two edges, less the dip.
template <typename Higher> double prominence(const std::vector<double> &values, size_t place, Higher higher) {
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(place);
    const auto from = at - std::min<std::ptrdiff_t>(reach, at - values.begin());
    const auto to = at + std::min<std::ptrdiff_t>(reach, values.end() - at);
    const double left = *std::max_element(from, at + 1, higher);
    const double right = *std::max_element(at, to, higher);
    const double edge = higher(left, right) ? left : right;
    return std::abs(edge - *at);
}

bool bothPlay(const Curves &curves, size_t place) {
    constexpr double together = 9;  // dB apart at most
    return std::abs(curves.bass[place] - curves.others[place]) < together;
}

}  // namespace

CrossoverFlaw findFlaw(const SoundState &state) {
    const Curves curves = curvesOf(state);
    CrossoverFlaw worst;
    for (size_t i = 1; i + 1 < curves.hz.size(); ++i) {
        const double before = curves.sum[i - 1];
        const double here = curves.sum[i];
        const double after = curves.sum[i + 1];
        CrossoverFlaw flaw;
        if (here <= before && here < after) {
            flaw = {CrossoverFlaw::Hole, prominence(curves.sum, i, std::less<double>()), curves.hz[i]};
        } else if (here >= before && here > after && bothPlay(curves, i)) {
            flaw = {CrossoverFlaw::Overlap, prominence(curves.sum, i, std::greater<double>()), curves.hz[i]};
        }
        flaw.decibels = std::min(flaw.decibels, CrossoverFlaw::deepestHole);
        if (flaw.decibels > worst.decibels) {
            worst = flaw;
        }
    }
    return worst.decibels >= CrossoverFlaw::least ? worst : CrossoverFlaw();
}

namespace {

struct Candidate {
    SoundState state;
    CrossoverRemedy remedy;
};

template <typename Table> void addFrequencies(const SoundState &state, CrossoverFilter SoundState::*filter,
                                              const Table &frequencies, CrossoverRemedy::Kind kind,
                                              std::vector<Candidate> *candidates) {
    for (const int step : {-1, 1, -2, 2}) {
        const int index = (state.*filter).freq + step;
        if (index > 0 && index < static_cast<int>(frequencies.size())) {
            SoundState changed = state;
            (changed.*filter).freq = index;
            candidates->push_back({changed, {kind, frequencies[static_cast<size_t>(index)]}});
        }
    }
}

/// From the smallest change on.
std::vector<Candidate> candidatesFor(const SoundState &state) {
    std::vector<Candidate> candidates;
    SoundState changed = state;
    changed.subwooferPhase = 1 - state.subwooferPhase;
    candidates.push_back({changed, {CrossoverRemedy::Phase, changed.subwooferPhase * 180}});
    addFrequencies(state, &SoundState::subwoofer, subwooferFrequencies, CrossoverRemedy::SubwooferFrequency,
                   &candidates);
    addFrequencies(state, &SoundState::front, frontFrequencies, CrossoverRemedy::FrontFrequency, &candidates);
    addFrequencies(state, &SoundState::rear, rearFrequencies, CrossoverRemedy::RearFrequency, &candidates);
    changed = state;
    changed.delay.fill(0);
    candidates.push_back({changed, {CrossoverRemedy::EqualDelays, 0}});
    return candidates;
}

}  // namespace

CrossoverRemedy findRemedy(const SoundState &state, const CrossoverFlaw &flaw) {
    CrossoverRemedy best;
    double left = flaw.decibels - CrossoverFlaw::least;
    if (flaw.kind == CrossoverFlaw::None) {
        return best;
    }
    for (const Candidate &candidate : candidatesFor(state)) {
        const double then = findFlaw(candidate.state).decibels;
        if (then <= left) {
            constexpr double clearlyBetter = 0.5;  // dB: else the smaller change is the better one
            left = then - clearlyBetter;
            best = candidate.remedy;
        }
    }
    return best;
}

namespace {

QString remedyText(const CrossoverRemedy &remedy) {
    switch (remedy.kind) {
        case CrossoverRemedy::Phase:
            return deskText("try phase %1° for the subwoofers").arg(remedy.value);
        case CrossoverRemedy::SubwooferFrequency:
            return deskText("try %1 Hz as the subwoofers' low-pass").arg(remedy.value);
        case CrossoverRemedy::FrontFrequency:
            return deskText("try %1 Hz as the front high-pass").arg(remedy.value);
        case CrossoverRemedy::RearFrequency:
            return deskText("try %1 Hz as the rear high-pass").arg(remedy.value);
        case CrossoverRemedy::EqualDelays:
            return deskText("it comes of the delays, which differ");
        case CrossoverRemedy::None:
            break;
    }
    return QString();
}

}  // namespace

QString crossoverRemark(const SoundState &state) {
    const CrossoverFlaw flaw = findFlaw(state);
    if (flaw.kind == CrossoverFlaw::None) {
        return QString();
    }
    const QString what = flaw.kind == CrossoverFlaw::Overlap          ? deskText("Overlap of %1 dB at %2 Hz")
                         : flaw.decibels < CrossoverFlaw::deepestHole ? deskText("Hole of %1 dB at %2 Hz")
                                                                      : deskText("Hole of more than %1 dB at %2 Hz");
    const QString flawText = what.arg(qRound(flaw.decibels)).arg(qRound(flaw.hz));
    const QString remedy = remedyText(findRemedy(state, flaw));
    return remedy.isEmpty() ? flawText : deskText("%1: %2").arg(flawText, remedy);
}

}  // namespace headunit
