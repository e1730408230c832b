// SPDX-License-Identifier: Apache-2.0
#include "delayunits.h"

#include <cmath>
#include <limits>

namespace audiosetting {
namespace timing {

namespace {

const double inchesPerMillisecond = 13.39;
const double delaysPerMillisecond = 10.0;
const double stepsPerMillisecond = 24.0;
const double centimetresPerInch = 2.54;
const double centimetresPerMillisecond = 34.0;

// Single precision is required: it decides which way some delays are rounded, and a driver must see the inches that he
// has always seen.
float milliseconds(int delay) {
    return static_cast<float>(delay / delaysPerMillisecond);
}

int truncated(double value) {
    if (value >= std::numeric_limits<int>::max()) {
        return std::numeric_limits<int>::max();
    }
    if (value <= std::numeric_limits<int>::min()) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(value);
}

}  // namespace

QString millisecondsText(int delay) {
    return QString::number(double(milliseconds(delay)), 'g', 6);
}

int inchesOfDelay(int delay) {
    const float inches = static_cast<float>(double(milliseconds(delay)) * inchesPerMillisecond);
    return truncated(double(std::round(inches)));
}

int millisecondsOfInches(int inches) {
    return truncated(inches / inchesPerMillisecond);
}

int stepsOfInches(int inches) {
    return truncated(inches / inchesPerMillisecond * stepsPerMillisecond);
}

double delayOfInches(int inches) {
    return inches * centimetresPerInch / centimetresPerMillisecond;
}

}  // namespace timing
}  // namespace audiosetting
