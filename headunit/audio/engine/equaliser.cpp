// SPDX-License-Identifier: Apache-2.0
#include "equaliser.h"

#include "filterdesign.h"
#include "gainsolver.h"

#include <algorithm>
#include <cmath>

namespace headunit::engine {

namespace {

/// The part of a section's decibels that is left at its neighbour's centre: with less the sum of equal bands waves,
/// with more the solver works against itself.
constexpr double shareAtNeighbour = 0.30;

/// Distances between the bands, which depend on nothing that can be set.
struct Layout {
    std::array<std::array<double, bandCount>, bandCount> squares;  ///< of the distance: [section][point]
    std::array<double, bandCount> neighbour;                       ///< the same, to the mean of the neighbours

    Layout() {
        for (size_t section = 0; section < bandCount; ++section) {
            for (size_t point = 0; point < bandCount; ++point) {
                const double distance = warpedDistance(bandFrequencies[point], bandFrequencies[section]);
                squares[section][point] = distance * distance;
            }
            const size_t below = section == 0 ? section + 1 : section - 1;
            const size_t above = section == bandCount - 1 ? section - 1 : section + 1;
            neighbour[section] = std::sqrt(squares[section][below] * squares[section][above]);
        }
    }
};

const Layout &layout() {
    static const Layout layout;
    return layout;
}

/// Square of the width that leaves a section of \a gain dB its share at the neighbour.
double squaredWidth(size_t section, double gain) {
    const double share = shareAtNeighbour * gain;
    const double factor = std::log(10.0) / 10;  // from decibels of power to the natural logarithm
    // (10^(share/10) - 1) / (10^(gain/10) - 10^(share/10)), written so that a gain near 0 loses no digits.
    const double ratio =
        gain == 0 ? shareAtNeighbour / (1 - shareAtNeighbour)
                  : std::expm1(share * factor) / (std::exp(share * factor) * std::expm1((gain - share) * factor));
    return layout().neighbour[section] * ratio;
}

/// The response of a section of \a gain dB at the bands' centres.
BandGains sectionDecibels(size_t section, double gain) {
    const double width = squaredWidth(section, gain);
    const double power = std::pow(10, gain / 10);
    BandGains decibels;
    for (size_t point = 0; point < bandCount; ++point) {
        const double square = layout().squares[section][point];
        decibels[point] = 10 * std::log10((square + power * width) / (square + width));
    }
    return decibels;
}

}  // namespace

std::array<Biquad, bandCount> designEqualiser(const BandGains &wanted) {
    std::array<Biquad, bandCount> sections;
    if (std::all_of(wanted.begin(), wanted.end(), [](double gain) { return gain == 0; })) {
        return sections;
    }
    const BandGains gains = solveGains(wanted, sectionDecibels);
    for (size_t section = 0; section < bandCount; ++section) {
        sections[section] = peaking(bandFrequencies[section], fromDecibels(gains[section]),
                                    std::sqrt(squaredWidth(section, gains[section])));
    }
    return sections;
}

}  // namespace headunit::engine
