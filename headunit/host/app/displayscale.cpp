// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/displayscale.h"

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

constexpr double ordinaryDotsPerInch = 96;
constexpr double deskSteps = 4;    // to 1; a display of 97 dots per inch is not worth a picture scaled by 1 %
constexpr double fitSteps = 1000;  // to 1

}  // namespace

double deskScale(double dotsPerInch) {
    return std::max(1.0, std::round(dotsPerInch / ordinaryDotsPerInch * deskSteps) / deskSteps);
}

double fittingScale(const QSize &display, const QSize &content) {
    const double fit = std::min(double(display.width()) / content.width(), double(display.height()) / content.height());
    return std::floor(fit * fitSteps) / fitSteps;
}

}  // namespace headunit
