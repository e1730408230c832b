// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/meters.h"

#include <QByteArray>

namespace headunit {

/// A line with the peak of each output in dB of full scale, and the limiter's gain of each pair in dB; -inf is silence.
QByteArray meterText(const engine::Meters &meters);

}  // namespace headunit
