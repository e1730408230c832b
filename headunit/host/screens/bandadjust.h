// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace headunit {

/// Makes the equaliser panel that the Audio Settings library exports, as a child of \a parent. Null, with a warning,
/// if the library that knows it (libheadunitbandadjust) cannot be loaded; it is loaded the first time, because it
/// would cost every start.
QWidget *createBandAdjust(QWidget *parent);

/// The function that the library exports, and its name.
using BandAdjustEntry = QWidget *(*)(QWidget *parent);
constexpr char bandAdjustEntryName[] = "headunitCreateBandAdjust";

}  // namespace headunit
