// SPDX-License-Identifier: Apache-2.0
// Links the Audio Settings library for the panel that it exports, so that the host itself need not: of the library,
// this file knows one header.

#include "eq/eqwidget.h"
#include "headunit/host/screens/bandadjust.h"

#include <type_traits>

extern "C" Q_DECL_EXPORT QWidget *headunitCreateBandAdjust(QWidget *parent) {
    static_assert(std::is_same<decltype(&headunitCreateBandAdjust), headunit::BandAdjustEntry>::value,
                  "the host calls it by this type");
    return new audiosetting::EQWidget(parent);
}
