// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPolygonF>

namespace audiosetting {
namespace crossover {

/// The line of a curve picture: the response of a Butterworth filter, as tools/crossover_curves.py draws it.
///
/// Pictures are stretched to any width and height; a stretched bitmap makes a line thick here and thin there. Points
/// are stretched instead, and the line is drawn along them.
struct CurveLine {
    const char *picture;  ///< name below ":/corvina_icon/"
    int order;            ///< of the filter: 6 dB per octave each
    bool highPass;
    QRgb colour;     ///< of the line, the picture's own
    QRgb dimColour;  ///< of the line while another curve is the one that is set

    /// The line in the picture's pixels, from left to right; it ends a little outside the picture.
    QPolygonF points() const;
    /// The -3 dB point, there too.
    QPointF corner() const;
};

/// Size of every curve picture, px.
const int curvePictureWidth = 1050;
const int curvePictureHeight = 256;

/// Null for a picture that is no curve.
const CurveLine *curveLine(const QByteArray &picture);

}  // namespace crossover
}  // namespace audiosetting
