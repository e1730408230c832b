// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

namespace mcu {

/// The unit's microcontroller, which runs the sound processor.
///
/// One object per process, used from the GUI thread. Every operation is fire and forget: a value outside the
/// range given below is clamped or ignored by the service, which writes one debug line. It writes no key of the pages.
class PLATFORM_API McuService {
public:
    static McuService *instance();

    /// Loudness compensation: 0 off, 1 on.
    void setLoudness(int on);

    /// Subwoofer level 0 to 15; 0 is silent and is also what switching the subwoofer off sends.
    void setSubwooferValue(int level);
    /// Subwoofer phase: 0 is 0 degrees, 1 is 180 degrees.
    void setSubwooferPhase(int phase);

    /// Front high-pass: frequency index 0 (off) to 11, slope 1 to 3 (6, 12, 18 dB per octave), level 0 to 12
    /// (-12 to 0 dB).
    void setCrossoverFrontFreq(int freq, int slope, int level);
    /// Rear high-pass: frequency index 0 (off) to 5, slope and level as above.
    void setCrossoverRearFreq(int freq, int slope, int level);
    /// Subwoofer low-pass: frequency index 0 (off) to 5, slope and level as above.
    void setLPFValue(int freq, int slope, int level);

    /// Delays of the six outputs, each 0 to 99 in 0.1 ms, in the order front left, front right, rear left,
    /// rear right, subwoofer left, subwoofer right. \a enable is always 1. The array is read during the call.
    void setAudioTimerDelay(int enable, int *delays);

    /// Level (0 to 40) of a volume channel (types as in AudioService::setVolumeLevel). The audio service and
    /// the microcontroller share one level per channel.
    void setAudioVolumeValue(int type, int level);

    /// Input gain of a source: 0 to 20, where 10 is neutral and a step is 1 dB. Sources: 0 radio, 1 USB,
    /// 2 Bluetooth music, 3 Apple CarPlay, 4 Android Auto, 5 SiriusXM, 6 DAB.
    void setAudioInputGainValue(int source, int value);

private:
    McuService();
    ~McuService();
    struct Private;
    Private *const d;
};

}  // namespace mcu
