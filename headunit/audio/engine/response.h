// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "measurement.h"
#include "parameters.h"

namespace headunit::engine {

/// What measure() finds, worked out from the coefficients: a thousandth of its time, for what follows a finger.
std::vector<MeasuredPoint> calculateResponse(const Parameters &parameters, const std::vector<double> &frequencies);

/// In seconds, of each output and, last, of their sum; not a number where there is silence.
using GroupDelays = std::array<double, outputCount + 1>;
std::vector<GroupDelays> calculateGroupDelays(const Parameters &parameters, const std::vector<double> &frequencies);

/// The highest gain on the way from the main input to an output, and where.
struct HighestGain {
    double gain = 0;  ///< linear; 0 where every output is silent
    double hz = 0;
    size_t output = 0;
};

/// Found within 20 Hz to 20 kHz. A tone of full scale at that frequency leaves the chain as loud as that.
HighestGain highestGain(const Parameters &parameters);

}  // namespace headunit::engine
