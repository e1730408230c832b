// SPDX-License-Identifier: Apache-2.0
#include "loudness.h"

#include "filterdesign.h"
#include "gainsolver.h"

#include <algorithm>
#include <cmath>

namespace headunit::engine {

// ISO 226:2023, table 1: preferred frequencies, exponent of loudness perception, threshold of hearing in dB, and
// magnitude of the transfer function normalised at 1 kHz in dB.
const std::array<double, loudnessPoints> loudnessFrequencies = {
    20,  25,  31.5, 40,   50,   63,   80,   100,  125,  160,  200,  250,  315,   400,  500,
    630, 800, 1000, 1250, 1600, 2000, 2500, 3150, 4000, 5000, 6300, 8000, 10000, 12500};

namespace {

constexpr std::array<double, loudnessPoints> exponents = {
    0.635, 0.602, 0.569, 0.537, 0.509, 0.482, 0.456, 0.433, 0.412, 0.391, 0.373, 0.357, 0.343, 0.330, 0.320,
    0.311, 0.303, 0.300, 0.295, 0.292, 0.290, 0.290, 0.289, 0.289, 0.289, 0.293, 0.303, 0.323, 0.354};
constexpr std::array<double, loudnessPoints> thresholds = {78.1, 68.7, 59.5, 51.1, 44.0, 37.5, 31.5, 26.5, 22.1, 17.9,
                                                           14.4, 11.4, 8.6,  6.2,  4.4,  3.0,  2.2,  2.4,  3.5,  1.7,
                                                           -1.3, -4.2, -6.0, -5.4, -1.5, 6.0,  12.6, 13.9, 12.3};
constexpr std::array<double, loudnessPoints> magnitudes = {
    -31.5, -27.2, -23.1, -19.3, -16.1, -13.1, -10.4, -8.2, -6.3, -4.6, -3.2, -2.1,  -1.2,  -0.5, 0.0,
    0.4,   0.5,   0.0,   -2.7,  -4.2,  -1.2,  1.4,   2.3,  1.0,  -2.3, -7.2, -11.2, -10.9, -3.5};

constexpr double referencePhon = 80;         ///< how loud the largest volume is taken to be
constexpr double largestAttenuation = 19.5;  ///< 11.9 dB of boost at the very bottom

/// Sound pressure level in dB of a tone as loud as one of \a phon dB at 1 kHz: formula 1 of the standard.
double contour(size_t point, double phon) {
    const double exponent = exponents[point];
    const double loudness = std::pow(4e-10, 0.300 - exponent) * (std::pow(10, 0.03 * phon) - std::pow(10, 0.072)) +
                            std::pow(10, exponent * (thresholds[point] + magnitudes[point]) / 10);
    return 10 / exponent * std::log10(loudness) - magnitudes[point];
}

enum class Shape { LowShelf, Peak, HighShelf };

/// The filters, placed by a least-squares fit to the contours, and the point of the standard that each is to meet.
struct Place {
    Shape shape;
    double hz;
    double width;  ///< of a peak at 0 dB, on the axis of warpedDistance()
    size_t point;
};
constexpr std::array<Place, loudnessSections> places = {{{Shape::LowShelf, 26.9, 0, 1},
                                                         {Shape::LowShelf, 115.3, 0, 7},
                                                         {Shape::LowShelf, 597.7, 0, 12},
                                                         {Shape::Peak, 2000, 0.5, 19},
                                                         {Shape::Peak, 2582, 1, 22},
                                                         {Shape::HighShelf, 10000, 0, 27}}};

Biquad section(const Place &place, double decibels) {
    const double gain = fromDecibels(decibels);
    switch (place.shape) {
        case Shape::LowShelf:
            return lowShelf(place.hz, gain);
        case Shape::Peak:
            return peaking(place.hz, gain, place.width / std::sqrt(gain));
        case Shape::HighShelf:
            return highShelf(place.hz, gain);
    }
    return Biquad();
}

}  // namespace

double equalLoudnessBoost(size_t point, double attenuation) {
    return contour(point, referencePhon - attenuation) - contour(point, referencePhon) + attenuation;
}

std::array<Biquad, loudnessSections> designLoudness(double attenuation) {
    const double heard = std::clamp(attenuation, 0.0, largestAttenuation);
    std::array<Biquad, loudnessSections> sections;
    if (heard == 0) {
        return sections;
    }
    std::array<double, loudnessSections> wanted;
    for (size_t i = 0; i < loudnessSections; ++i) {
        wanted[i] = equalLoudnessBoost(places[i].point, heard);
    }
    const auto gains = solveGains(wanted, [](size_t filter, double gain) {
        const Biquad shaped = section(places[filter], gain);
        std::array<double, loudnessSections> decibels;
        for (size_t i = 0; i < loudnessSections; ++i) {
            decibels[i] = toDecibels(std::abs(response(shaped, loudnessFrequencies[places[i].point])));
        }
        return decibels;
    });
    for (size_t i = 0; i < loudnessSections; ++i) {
        sections[i] = section(places[i], gains[i]);
    }
    return sections;
}

}  // namespace headunit::engine
