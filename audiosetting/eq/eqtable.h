// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eqsettings.h"

#include <QList>

/// One curve: its type for the audio service, a row id, and the gain of each band in dB (-12 to 12).
struct tagAudioEQItem_T {
    qint32 type;
    qint32 id;
    qint32 gain[eqBandCount];
};

namespace audiosetting {
namespace eq {

const int maxGain = 12;         ///< dB
const int maxLevel = 24;        ///< lowest position of a slider: -12 dB; level 0 is the top, +12 dB
const int flatLevel = maxGain;  ///< position of 0 dB

/// The centre frequency of band 0 to 12, as it is written below its slider: "630", "1.6k".
const char *bandCaption(int band);

/// The gains of a slider's levels, from the top down: 12, 11, ... -12.
const QList<int> &levelGains();
/// The slider level of a gain: its position in levelGains(), or 0 for a gain that is not there.
int levelOfGain(int gain);
/// \a value counted from the other end of a range: \a end - value. Wraps round, so that counting twice gives every int
/// back.
int fromOtherEnd(int end, int value);

/// The curves of the EQ page and of the Factory EQ page.
const QList<tagAudioEQItem_T> &curves();
/// First row of that type in \a table, or -1.
int findByType(const QList<tagAudioEQItem_T> &table, int type);
/// The curve of that type in \a table, or a flat one.
tagAudioEQItem_T curveOfType(const QList<tagAudioEQItem_T> &table, int type);

}  // namespace eq
}  // namespace audiosetting
