// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/live/controlthread.h"
#include "headunit/audio/live/player.h"
#include "headunit/audio/live/pulseoutput.h"
#include "headunit/host/app/soundlibrary.h"

#include <QObject>
#include <QTimer>

namespace headunit {

/// The sound of the running unit: plays through the desk's sound server what the sound model says. GUI thread.
class LiveSound : public QObject {
    Q_OBJECT
public:
    /// Starts to play. \a problem is a line that says what cannot be; the rest is heard all the same.
    LiveSound(const PlayJob &job, QString *problem);

private Q_SLOTS:
    void takeState();

private:
    void takeStateSoon();
    void showFault(SoundFault fault);
    void printMeters();

    void followPrograms();

    bool m_statePending = false;
    SoundFault m_sourceFault = SoundFault::None;  ///< of what was to be played
    bool m_saidScheduling = false;
    Player m_player;
    ControlThread m_control{[this](const SoundState &state) { m_player.setState(state); }};
    QTimer m_meterTimer;
    std::unique_ptr<PulseOutput> m_output;
};

}  // namespace headunit
