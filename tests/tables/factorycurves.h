// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>

namespace reference {

/// A curve that page and sound know by the same number, with the gain of each band in dB, from 63 Hz to 16 kHz.
struct FactoryCurve {
    int type;
    std::array<int, 13> gains;
};

/// Written down apart from the product's table and the unit's, which must both follow it. Other types are flat.
constexpr FactoryCurve factoryCurves[] = {
    {0, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},       //
    {1, {1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 3, 1}},     //
    {2, {2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4}},       //
    {3, {5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4}},   //
    {4, {1, 2, 2, 1, 0, -1, 1, 1, 2, 2, 1, 2, 2}},      //
    {5, {6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4}},       //
    {7, {6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4}},  //
    {8, {10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4}},   //
};

}  // namespace reference
