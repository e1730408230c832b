// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/toolkit/unitapplication.h"

#include <QColor>
#include <QFont>
#include <QString>

class QPainter;
class QRect;

namespace headunit {

/// Sizes, colours and drawing shared by the host's own screens; the rest of the colours are the toolkit's.
namespace look {

constexpr int screenWidth = 1024;
constexpr int screenHeight = 600;

constexpr int valuePixels = 32;      ///< numbers that are read at a glance
constexpr int narrowKeyPixels = 21;  ///< keys of a row of six, which must hold the longest prompt's name
constexpr int captionPixels = 24;    ///< everything else
constexpr int keySize = 80;          ///< smallest touch target
constexpr int margin = 32;
constexpr int gap = 12;

constexpr QColor softText(0xB0, 0xBE, 0xCC);
constexpr QColor warning(0xFF, 0xB4, 0x54);
constexpr QColor bezel(0x05, 0x06, 0x08);
constexpr QColor litText(0x04, 0x14, 0x1C);  ///< on a key that lights up

enum class KeyState {
    Normal,
    Pressed,      ///< lights up, for a dark picture
    PressedText,  ///< dark enough for white text, as the applications' keys that carry text
    Checked,
    Disabled
};

/// The unit's font at a size in pixels.
QFont font(int pixels);
/// Fills with the background of every screen.
void paintBackground(QPainter &painter, const QRect &rect);
/// A raised key. \a warns: what it does is not done lightly, so it has the warm edge.
void paintKey(QPainter &painter, const QRect &rect, KeyState state, bool warns = false);
/// Paints one of the host's pictures in the middle of an area, as dense as the display.
void paintPicture(QPainter &painter, const QRect &area, const QString &name);

}  // namespace look

}  // namespace headunit
