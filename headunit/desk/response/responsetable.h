// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/measurement.h"

#include <QByteArray>

namespace headunit {

/// Decibels of a response; -infinity for silence.
double responseDecibels(std::complex<double> response);
/// Its phase, -180 to 180 degrees.
double responseDegrees(std::complex<double> response);

/// A line for each frequency: hertz, then decibels and degrees of each output and of their sum, separated by commas.
QByteArray responseTable(const std::vector<engine::MeasuredPoint> &points);

}  // namespace headunit
