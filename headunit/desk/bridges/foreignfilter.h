// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/biquad.h"

#include <QString>

namespace headunit {

/// One filter of another program's list.
struct ForeignFilter {
    engine::Biquad section;
    QString remark;   ///< why it is left out; then the section passes everything
    QString problem;  ///< why the line cannot be read
};

/// Reads what stands behind "Filter 1:", such as "ON PK Fc 63 Hz Gain -3 dB Q 2".
ForeignFilter parseForeignFilter(const QString &text);

/// A number with a point or a comma; false if it is none.
bool parseForeignNumber(const QString &text, double *number);

}  // namespace headunit
