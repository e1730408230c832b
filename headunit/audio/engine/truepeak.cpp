// SPDX-License-Identifier: Apache-2.0
#include "truepeak.h"

#include <algorithm>
#include <cmath>

namespace headunit::engine {

namespace {

constexpr size_t pointsBetween = 3;
constexpr size_t highPassRow = 3;
constexpr double notTooMuch = 0.9986;  ///< the ripple of the interpolator
constexpr float worthAParabola = 0.9F;
constexpr float leastMiddle = 0.8F;       ///< of the highest one: its inverse is the most
constexpr double mostOfAParabola = 1.25;  ///< above the highest of its three points, at worst

/// Bessel function of the first kind, modified, of order 0.
double besselI0(double x) {
    double sum = 1;
    double term = 1;
    for (int k = 1; term > 1e-17 * sum; ++k) {
        term *= (x / 2 / k) * (x / 2 / k);
        sum += term;
    }
    return sum;
}

/// Kaiser's window, at \a place from its middle; 1 is its end.
double kaiser(double place, double beta) {
    return besselI0(beta * std::sqrt(1 - place * place)) / besselI0(beta);
}

double sinc(double x) {
    return x == 0 ? 1 : std::sin(pi * x) / (pi * x);
}

/// The ideal interpolator for each of the three points between two samples, and a high-pass, under windows.
Interpolator designInterpolator() {
    constexpr double half = interpolatorTaps / 2.0;
    constexpr double highest = 21000 / (sampleRate / 2);
    Interpolator rows{};
    for (size_t tap = 0; tap < interpolatorTaps; ++tap) {
        const double distance = static_cast<double>(tap) - (half - 1);
        for (size_t point = 0; point < pointsBetween; ++point) {
            const double fromPoint = distance - static_cast<double>(point + 1) / (pointsBetween + 1);
            rows[point][tap] = static_cast<float>(notTooMuch * sinc(fromPoint) * kaiser(fromPoint / half, 6));
        }
        const double low = highest * sinc(highest * distance) * kaiser(distance / half, 3);
        rows[highPassRow][tap] = static_cast<float>((distance == 0 ? 1 : 0) - low);
    }
    return rows;
}

/// The most that it can make of samples of 1.
double largestGain(const Interpolator &interpolator) {
    float highest = 1;
    for (size_t point = 0; point < pointsBetween; ++point) {
        float sum = 0;
        for (const float tap : interpolator[point]) {
            sum += std::abs(tap);
        }
        highest = std::max(highest, sum);
    }
    return static_cast<double>(highest);
}

/// The top of a parabola through three points at equal distances, if the middle one is the farthest from zero.
float topOfParabola(float left, float middle, float right) {
    const float sign = middle < 0 ? -1.0F : 1.0F;
    const float bend = sign * (2 * middle - left - right);
    const bool isTop = sign * (middle - left) >= 0 && sign * (middle - right) >= 0 && bend > 0;
    return isTop ? sign * middle + (right - left) * (right - left) / (8 * bend) : sign * middle;
}

}  // namespace

TruePeak::TruePeak(const Kernel &kernel)
    : m_kernel(&kernel),
      m_interpolator(designInterpolator()),
      m_harmlessSample(1 / (largestGain(m_interpolator) * mostOfAParabola)) {}

TruePeak::Reading TruePeak::read(const std::array<float, window> &samples) const {
    Rows rows;
    std::array<float, interpolatorRows> highestOfRow;
    m_kernel->interpolate(m_interpolator, samples.data() + 1, rows[0].data(), highestOfRow.data());
    float highest = *std::max_element(highestOfRow.begin(), highestOfRow.begin() + pointsBetween);
    for (size_t i = before; i < before + frames; ++i) {
        highest = std::max(highest, std::abs(samples[i]));
    }
    if (highest >= worthAParabola) {
        highest = std::max(highest, highestParabola(samples, rows, highest * leastMiddle));
    }
    return {static_cast<double>(highest), static_cast<double>(highestOfRow[highPassRow])};
}

/// All points in a row, with the one before and the one behind them; samples as much too low as what is between. Only
/// points beyond \a least can be the middle of the highest one.
float TruePeak::highestParabola(const std::array<float, window> &samples, const Rows &rows, float least) const {
    constexpr float scale = static_cast<float>(notTooMuch);
    constexpr size_t step = pointsBetween + 1;
    std::array<float, frames * step + 2> line;
    float pointBefore = 0;
    for (size_t tap = 0; tap < interpolatorTaps; ++tap) {
        pointBefore += m_interpolator[pointsBetween - 1][tap] * samples[tap];
    }
    line.front() = pointBefore;
    line.back() = scale * samples[before + frames];
    for (size_t i = 0; i < frames; ++i) {
        line[1 + i * step] = scale * samples[before + i];
        for (size_t point = 0; point < pointsBetween; ++point) {
            line[2 + i * step + point] = rows[point][i];
        }
    }
    float highest = 0;
    for (size_t i = 1; i + 1 < line.size(); ++i) {
        if (std::abs(line[i]) > least) {
            highest = std::max(highest, topOfParabola(line[i - 1], line[i], line[i + 1]));
        }
    }
    return highest;
}

}  // namespace headunit::engine
