// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/tape/tapedelays.h"

#include "headunit/audio/service/soundtables.h"

#include <algorithm>
#include <cmath>

namespace headunit {

double speedOfSound(double celsius) {
    constexpr double atZero = 331.3;
    constexpr double zeroInKelvin = 273.15;
    return atZero * std::sqrt(1 + celsius / zeroInKelvin);
}

std::array<TapeDelay, SoundState::outputs> tapeDelays(const TapeDistances &distances, double celsius) {
    constexpr double stepsPerMillisecond = 10;
    const double centimetresPerMillisecond = speedOfSound(celsius) / 10;
    const double farthest = *std::max_element(distances.begin(), distances.end());
    std::array<TapeDelay, SoundState::outputs> delays;
    for (size_t output = 0; output < delays.size(); ++output) {
        const double exact = (farthest - distances[output]) / centimetresPerMillisecond;
        const int steps = static_cast<int>(std::lround(exact * stepsPerMillisecond));
        delays[output] = {exact, std::clamp(steps, ranges::delay.low, ranges::delay.high)};
    }
    return delays;
}

}  // namespace headunit
