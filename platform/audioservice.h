// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audioeqtype.h"
#include "platformapi.h"

#include <QObject>

namespace qvaudio {

/// The unit's audio service: equaliser, balance and fader, channel volumes, key beep.
///
/// One object per process, used from the GUI thread. No operation reports an error: a value outside the
/// range given below is clamped or ignored by the service, which writes a debug line, one each kind and second.
class PLATFORM_API AudioService : public QObject {
    Q_OBJECT
public:
    static AudioService *instance();

    /// Sounds the key click. \a sound selects the sound; 0 is the key click.
    void doBeep(int sound);

    /// Fills in the balance and fader in force, each -15 to +15. Balance is negative on the left, fader is
    /// negative at the front.
    void getBalanceFader(int &balance, int &fader);
    /// Applies balance and fader (ranges and signs as above). \a apply is always true.
    void setBalanceFader(int balance, int fader, bool apply);

    /// The curve in force.
    AudioEQType getCurrEQType();
    /// Selects a curve, and keeps it over a restart; the live custom curve stays as it is. \a apply is always true.
    void setEQType(AudioEQType type, bool apply);

    /// The value of one band (0 to 12) of the live custom curve, as it was last set.
    int getCustomEq(int band);
    /// Sets one band (0 to 12) of the live custom curve and keeps it, at once, under "eq%1" of the band in the audio
    /// settings store: the EQ page reads the curve there. The value is kept as sent, -12 to 24; it sounds as a gain of
    /// (value - 12) dB, values below 0 as -12 dB. The curve in force stays. \a apply is always true.
    void setCustomEq(int value, int band, bool apply);

    /// Sets the level (0 to 40) of a volume channel: 0 main, 1 ringtone, 2 phone, 3 navigation, 4 voice,
    /// 6 traffic announcements; 5 and 7 exist without a row on any page. Keeps it over a restart.
    void setVolumeLevel(int level, int type);
    /// The level of a volume channel.
    int getSourceVolByType(int type);

Q_SIGNALS:
    /// The level of channel \a type became \a vol, whoever asked: once for a change, and never when it stays. \a mute
    /// is 1 while the unit is muted, else 0.
    void audioVolumeChanged(int mute, int vol, int type);

private:
    AudioService();
    ~AudioService() override;
    struct Private;
    Private *const d;
};

}  // namespace qvaudio
