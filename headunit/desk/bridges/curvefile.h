// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"
#include "headunit/desk/bridges/bandfit.h"
#include "headunit/desk/bridges/foreigncurve.h"
#include "headunit/desk/setups/setupfile.h"

namespace headunit {

/// A curve of another program as a set-up of the equaliser's live bands; remarks say what is left out, and last how
/// much remains. \a curve is what stands in the text, \a fit what it was taken as.
SetupFile parseCurve(const QByteArray &text, ForeignCurve *curve = nullptr, BandFit *fit = nullptr);
/// The same of a file.
SetupFile readCurve(const QString &path, ForeignCurve *curve, BandFit *fit);

/// "1.2 dB on average, 3.1 dB at most, at 45 Hz", in English.
QString fitText(const BandFit &fit);

/// The equaliser in force as filters for Equalizer APO. Returns what went wrong, or an empty text.
QString writeCurve(const QString &path, const SoundState &state);
QByteArray curveText(const SoundState &state);

/// The response of each output and of their sum under \a state: NAME-FL.frd and so on for NAME.frd. Hertz, decibels
/// and degrees in each line; silence is -200 dB. Returns what went wrong, or an empty text.
QString writeResponses(const QString &path, const SoundState &state);

}  // namespace headunit
