// SPDX-License-Identifier: Apache-2.0
#include "filterdesign.h"

#include "layout.h"

#include <cmath>

namespace headunit::engine {

namespace {

constexpr double decibelsPerDecade = 20;

double radians(double hz) {
    return 2 * pi * hz / sampleRate;
}

/// The analogue frequency that the bilinear transform takes to \a hz.
double prewarped(double hz) {
    return std::tan(radians(hz) / 2);
}

/// (n0 + n1 s) / (d0 + s) after the bilinear transform.
Biquad firstOrder(double n0, double n1, double d0) {
    const double scale = 1 / (d0 + 1);
    Biquad section;
    section.b0 = (n0 + n1) * scale;
    section.b1 = (n0 - n1) * scale;
    section.a1 = (d0 - 1) * scale;
    return section;
}

struct SecondOrderPoles {
    double scale;
    double a1;
    double a2;
};

/// s^2 + damping k s + k^2 after the bilinear transform.
SecondOrderPoles secondOrderPoles(double k, double damping) {
    const double scale = 1 / (1 + damping * k + k * k);
    return {scale, 2 * (k * k - 1) * scale, (1 - damping * k + k * k) * scale};
}

/// Damping of the pair of poles: a pair at 45 degrees alone, at 60 degrees beside a real pole.
double pairDamping(int order) {
    return order == 2 ? std::sqrt(2.0) : 1.0;
}

}  // namespace

std::complex<double> response(const Biquad &section, double hz) {
    const std::complex<double> back = std::polar(1.0, -radians(hz));
    return (section.b0 + back * (section.b1 + back * section.b2)) / (1.0 + back * (section.a1 + back * section.a2));
}

CrossoverSections butterworthHighPass(int order, double hz) {
    const double k = prewarped(hz);
    CrossoverSections sections;
    if (order > 1) {
        const SecondOrderPoles poles = secondOrderPoles(k, pairDamping(order));
        sections[0] = {poles.scale, -2 * poles.scale, poles.scale, poles.a1, poles.a2};
    }
    if (order != 2) {
        sections[1] = firstOrder(0, 1, k);
    }
    return sections;
}

CrossoverSections butterworthLowPass(int order, double hz) {
    const double k = prewarped(hz);
    CrossoverSections sections;
    if (order > 1) {
        const SecondOrderPoles poles = secondOrderPoles(k, pairDamping(order));
        const double gain = k * k * poles.scale;
        sections[0] = {gain, 2 * gain, gain, poles.a1, poles.a2};
    }
    if (order != 2) {
        sections[1] = firstOrder(k, 0, k);
    }
    return sections;
}

double warpedDistance(double hz, double centre) {
    return (std::cos(radians(hz)) - std::cos(radians(centre))) / std::sin(radians(hz));
}

Biquad peaking(double centre, double gain, double width) {
    if (gain == 1) {
        return Biquad();
    }
    const double scale = 1 / (1 + width);
    const double middle = -2 * std::cos(radians(centre)) * scale;
    return {(1 + gain * width) * scale, middle, (1 - gain * width) * scale, middle, (1 - width) * scale};
}

Biquad lowShelf(double hz, double gain) {
    if (gain == 1) {
        return Biquad();
    }
    const double k = prewarped(hz);
    return firstOrder(k * std::sqrt(gain), 1, k / std::sqrt(gain));
}

Biquad highShelf(double hz, double gain) {
    if (gain == 1) {
        return Biquad();
    }
    const double k = prewarped(hz);
    return firstOrder(k * std::sqrt(gain), gain, k * std::sqrt(gain));
}

double fromDecibels(double db) {
    return std::pow(10, db / decibelsPerDecade);
}

double toDecibels(double gain) {
    return decibelsPerDecade * std::log10(gain);
}

}  // namespace headunit::engine
