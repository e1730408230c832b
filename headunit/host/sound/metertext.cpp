// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/metertext.h"

#include "headunit/audio/live/outputnames.h"

#include <cmath>

namespace headunit {

namespace {

QByteArray decibels(double gain) {
    constexpr int width = 7;
    // In tenths; what is added makes "0.0" of "-0.0".
    const double tenths = std::round(10 * 20 * std::log10(gain)) + 0.0;
    return QByteArray::number(tenths / 10, 'f', 1).rightJustified(width);
}

}  // namespace

QByteArray meterText(const engine::Meters &meters) {
    QByteArray text = "peaks";
    for (size_t output = 0; output < engine::outputCount; ++output) {
        text += QByteArray("  ") + outputNames[output] + decibels(static_cast<double>(meters.peak[output]));
    }
    text += " dBFS, limiter";
    for (size_t pair = 0; pair < engine::pairCount; ++pair) {
        text += QByteArray("  ") + pairNames[pair] + decibels(meters.limiterGain[pair]);
    }
    return text + " dB";
}

}  // namespace headunit
