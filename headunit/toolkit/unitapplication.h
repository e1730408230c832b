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
const QColor text(0xFF, 0xFF, 0xFF);
const QColor disabledText(0x57, 0x57, 0x5F);
const QColor accent(11, 183, 237);
const QColor ground(0x0D, 0x12, 0x18);    ///< near-black blue-grey
const QColor surface(0x1A, 0x22, 0x2C);   ///< one step above the ground
const QColor raised(0x26, 0x31, 0x3E);    ///< two steps above the ground
const QColor hairline(0x3A, 0x47, 0x56);  ///< thin lines and edges
const QColor handle(0x8A, 0x9A, 0xAC);    ///< what can be moved, at rest
}  // namespace colour

}  // namespace headunit
