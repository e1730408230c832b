// SPDX-License-Identifier: Apache-2.0
#include "eqcurves.h"

#include "headunit/audio/service/soundtables.h"
#include "platform/audioeqtype.h"

#include <algorithm>

namespace headunit::engine {

namespace {

struct FactoryCurve {
    int type;
    Curve gains;
};

constexpr FactoryCurve factoryCurves[] = {
    {1, {1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 3, 1}},
    {AudioEQPop, {2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4}},
    {AudioEQRock, {5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4}},
    {4, {1, 2, 2, 1, 0, -1, 1, 1, 2, 2, 1, 2, 2}},
    {AudioEQElectronic, {6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4}},
    {AudioEQJazz, {6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4}},
    {AudioEQHipHop, {10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4}},
};

}  // namespace

Curve curveInForce(const SoundState &state) {
    Curve gains{};
    if (state.eqType >= AudioEQCustom) {
        for (size_t band = 0; band < gains.size(); ++band) {
            gains[band] = std::clamp(state.customEq[band], 0, 2 * neutralBandValue) - neutralBandValue;
        }
        return gains;
    }
    for (const FactoryCurve &curve : factoryCurves) {
        if (curve.type == state.eqType) {
            return curve.gains;
        }
    }
    return gains;
}

}  // namespace headunit::engine
