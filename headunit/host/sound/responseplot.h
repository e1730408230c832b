// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/measurement.h"

#include <QImage>

namespace headunit {

/// Magnitude and phase of each output and of their sum, 20 Hz to 20 kHz, as a picture.
QImage responsePlot(const std::vector<engine::MeasuredPoint> &points);

}  // namespace headunit
