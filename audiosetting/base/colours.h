// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

namespace audiosetting {

// The colours of what code paints. The pictures have theirs from resources/palette/.
const QRgb textColour = 0xFFFFFFFF;
const QRgb disabledTextColour = 0xFF57575F;
const QRgb accentColour = 0xFF0BB7ED;  ///< the filled part of a slider

}  // namespace audiosetting
