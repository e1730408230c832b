// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QColor>
#include <QString>

namespace headunit {

/// Prepares the process for the unit's screens: fixed fonts, 96 dots per inch, no dependence on the desk's locale.
/// To be called before QApplication is constructed.
PLATFORM_API void prepareUnitApplication();

/// Gives the application the unit's style, font, colours and texts. To be called once QApplication is constructed.
PLATFORM_API void setUpUnitApplication();

/// Family of the unit's default font.
PLATFORM_API QString unitFontFamily();

/// The unit's colours, for whatever is drawn by code.
namespace colour {
constexpr QColor text(0xFF, 0xFF, 0xFF);
constexpr QColor disabledText(0x57, 0x57, 0x5F);
constexpr QColor accent(11, 183, 237);
constexpr QColor background(0x10, 0x15, 0x1C);  ///< near-black blue-grey
constexpr QColor surface(0x1D, 0x25, 0x30);     ///< one step above the background
constexpr QColor raised(0x2C, 0x36, 0x43);      ///< two steps above the background
constexpr QColor hairline(0x36, 0x41, 0x4F);    ///< thin lines and edges
constexpr QColor handle(0xA9, 0xB4, 0xC0);      ///< what can be moved, at rest
}  // namespace colour

}  // namespace headunit
