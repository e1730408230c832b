// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>

namespace headunit {

/// How large a desk with so many dots per inch shows its own windows, in quarters: 1 for 96 and less.
double deskScale(double dotsPerInch);

/// How large \a content can be shown on a display without any of it being cut off.
double fittingScale(const QSize &display, const QSize &content);

}  // namespace headunit
