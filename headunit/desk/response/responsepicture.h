// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/measurement.h"

#include <QImage>
#include <QVector>

class QPainter;

namespace headunit {

class ResponsePlot;

/// The size of a picture, in its pixels.
constexpr QSize responsePictureSize(1280, 900);

/// Paints diagrams one below the other with the names of their curves, as large as responsePictureSize.
void paintResponse(QPainter *painter, const QVector<ResponsePlot *> &plots);
/// The same as the bytes of a file: SVG where \a name ends in .svg, else PNG.
QByteArray responsePicture(const QString &name, const QVector<ResponsePlot *> &plots);

/// Magnitude and phase of each output and of their sum, 20 Hz to 20 kHz, as a PNG.
QByteArray measuredPicture(const std::vector<engine::MeasuredPoint> &points);

}  // namespace headunit
