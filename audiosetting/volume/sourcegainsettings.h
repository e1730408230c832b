// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

// The settings of the Source Gain page.

namespace audiosetting {
namespace sourcegain {

/// Sources as the microcontroller counts them.
enum Source { Radio, Usb, BluetoothMusic, CarPlay, AndroidAuto, SiriusXm, Dab, sourceCount };

const int minGain = -10;
const int maxGain = 10;
const int neutralGain = 10;  ///< the microcontroller's value for a gain of 0

/// Input gain of a source, minGain to maxGain.
inline Setting gain(int source) {
    return Setting(QStringLiteral("audioinputgain%1"), source, 0);
}

}  // namespace sourcegain
}  // namespace audiosetting
