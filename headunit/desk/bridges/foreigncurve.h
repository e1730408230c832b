// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/biquad.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace headunit {

/// A curve as other programs write it: filters and points of a graphic equaliser, one after the other.
struct ForeignCurve {
    std::vector<engine::Biquad> filters;
    /// Tables of hertz and decibels, by rising frequency; straight lines between them over the logarithm of frequency.
    std::vector<std::vector<std::pair<double, double>>> tables;
    double preamp = 0;    ///< dB; a matter of the volume, and no part of decibels()
    QStringList remarks;  ///< what of it is not taken up, a line each
    QString problem;      ///< why none of it can be used: one line with its place

    double decibels(double hz) const;
};

/// Whether a text is one of Equalizer APO or a filter list of REW; else it may be a set-up.
bool isForeignCurve(const QByteArray &text);

/// Reads lines "Filter 1: ON PK Fc 63 Hz Gain -3 dB Q 2", "Preamp: -3 dB", "GraphicEQ: 63 1.5; 100 2; ...", in the
/// manner of Equalizer APO and of REW's filter settings as text.
ForeignCurve parseForeignCurve(const QByteArray &text);

}  // namespace headunit
