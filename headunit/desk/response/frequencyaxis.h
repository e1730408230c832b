// SPDX-License-Identifier: Apache-2.0
#pragma once

class QwtPlot;

namespace headunit {

constexpr double lowestPlotHz = 20;
constexpr double highestPlotHz = 20000;

/// Gives the plot an axis of frequencies, as every measurement program has it: logarithmic, 20 Hz to 20 kHz, with
/// numbers at 20, 50, 100, …; at more places where less is shown.
void setFrequencyAxis(QwtPlot *plot);

}  // namespace headunit
