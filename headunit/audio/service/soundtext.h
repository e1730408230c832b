// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "soundmodel.h"

#include <QString>

namespace headunit {

/// As scripts and the record of calls name it: navigation
QString promptName(Prompt prompt);

// Plain meanings of the services' values, for the record of calls. Any integer may be asked for.

QString eqTypeText(int type);                                               ///< Rock
QString bandText(int band, int value);                                      ///< band 63 Hz: +3 dB
QString balanceFaderText(int balance, int fader);                           ///< balance 3 right, fader 2 front
QString channelText(int channel, int level);                                ///< navigation volume 12 of 40
QString promptText(Prompt prompt, bool active);                             ///< navigation begins, ...
QString sourceGainText(int source, int value);                              ///< USB gain +3 dB
QString subwooferLevelText(int level);                                      ///< subwoofer level 4 (-9.0 dB)
QString filterText(FilterChannel channel, int freq, int slope, int level);  ///< front high-pass 63 Hz, 12 dB/oct, -2 dB
QString subwooferPhaseText(int phase);                                      ///< subwoofer phase 180 degrees
QString delaysText(const int *delays);                                      ///< delays in ms: FL 0.5, FR 0.0, ...
QString delaysCall(int enable, const int *delays);  ///< setAudioTimerDelay(1, {5, 0, 0, 0, 0, 0})

}  // namespace headunit
