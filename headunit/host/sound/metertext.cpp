#include "headunit/host/sound/metertext.h"

#include "headunit/host/sound/outputnames.h"

#include <cmath>

namespace headunit {

namespace {

QByteArray decibels(double gain) {
    constexpr int width = 6;
    constexpr int decimals = 1;
    // Written so that full scale is not "-0.0".
    const double value = 20 * std::log10(gain) + 0.0;
    return QByteArray::number(value, 'f', decimals).rightJustified(width);
}

}  // namespace

QByteArray meterText(const engine::Meters &meters) {
    QByteArray text = "peaks";
    for (size_t output = 0; output < engine::outputCount; ++output) {
        text += QByteArray("  ") + outputNames[output] + decibels(static_cast<double>(meters.peak[output]));
    }
    return text + " dBFS, limiter" + decibels(meters.limiterGain) + " dB";
}

}  // namespace headunit
