// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace audiosetting {
namespace timing {

// Delays are counted in 0.1 ms; sound travels 13.39 inches in a millisecond. Results that no int holds are the
// nearest int.

/// The delay in milliseconds as it is shown: 5 is "0.5".
QString millisecondsText(int delay);
/// The delay as a path in inches, rounded half away from zero.
int inchesOfDelay(int delay);
/// The path in milliseconds, truncated.
int millisecondsOfInches(int inches);
/// The path in steps of 1/24 ms, truncated.
int stepsOfInches(int inches);
/// The path in milliseconds, by centimetres and the speed of sound in cm per ms.
double delayOfInches(int inches);

}  // namespace timing
}  // namespace audiosetting
