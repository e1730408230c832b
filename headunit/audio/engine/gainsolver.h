// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace headunit::engine {

/// Solves matrix * x = right by elimination with pivoting. The matrix must not be singular.
template <size_t N>
std::array<double, N> solveLinear(std::array<std::array<double, N>, N> matrix, std::array<double, N> right) {
    for (size_t column = 0; column < N; ++column) {
        size_t pivot = column;
        for (size_t row = column + 1; row < N; ++row) {
            if (std::abs(matrix[row][column]) > std::abs(matrix[pivot][column])) {
                pivot = row;
            }
        }
        std::swap(matrix[column], matrix[pivot]);
        std::swap(right[column], right[pivot]);
        for (size_t row = column + 1; row < N; ++row) {
            const double factor = matrix[row][column] / matrix[column][column];
            for (size_t i = column; i < N; ++i) {
                matrix[row][i] -= factor * matrix[column][i];
            }
            right[row] -= factor * right[column];
        }
    }
    for (size_t row = N; row-- > 0;) {
        for (size_t i = row + 1; i < N; ++i) {
            right[row] -= matrix[row][i] * right[i];
        }
        right[row] /= matrix[row][row];
    }
    return right;
}

/// Gains in dB of N filters in a row that together reach the \a wanted decibels at N points, by Newton's method.
/// \a decibels(filter, gain) is what one filter of that gain does at each of the points.
template <size_t N, typename Decibels>
std::array<double, N> solveGains(const std::array<double, N> &wanted, Decibels decibels) {
    constexpr int steps = 4;  // the third leaves less than 1e-6 dB of any equaliser curve
    constexpr double difference = 1e-3;
    std::array<double, N> gains = wanted;
    for (int step = 0; step < steps; ++step) {
        std::array<std::array<double, N>, N> slopes;
        std::array<double, N> missing = wanted;
        for (size_t filter = 0; filter < N; ++filter) {
            const std::array<double, N> low = decibels(filter, gains[filter] - difference);
            const std::array<double, N> high = decibels(filter, gains[filter] + difference);
            const std::array<double, N> there = decibels(filter, gains[filter]);
            for (size_t point = 0; point < N; ++point) {
                slopes[point][filter] = (high[point] - low[point]) / (2 * difference);
                missing[point] -= there[point];
            }
        }
        const std::array<double, N> correction = solveLinear(slopes, missing);
        for (size_t filter = 0; filter < N; ++filter) {
            gains[filter] += correction[filter];
        }
    }
    return gains;
}

}  // namespace headunit::engine
