// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/live/controlthread.h"
#include "headunit/audio/live/player.h"
#include "headunit/audio/live/pulseoutput.h"
#include "headunit/audio/live/soundmonitor.h"
#include "headunit/host/app/soundlibrary.h"
#include "headunit/host/sound/systembus.h"

#include <QObject>
#include <QTimer>
#include <QVariantMap>

namespace headunit {

/// The sound of the running unit: plays through the desk's sound server what the sound model says. GUI thread.
class LiveSound : public QObject, public SoundMonitor {
    Q_OBJECT
public:
    /// Starts to play. \a problem is a line that says what cannot be; the rest is heard all the same.
    LiveSound(const PlayJob &job, QString *problem);

    /// What was played since the last call, for scripts: peak of each output and limiter of each pair in dB, and how
    /// often there was nothing to play in time since the start.
    Q_INVOKABLE QVariantMap readings();
    bool takeReading(engine::Meters *reading) override;

private Q_SLOTS:
    void takeState();

private:
    void takeStateSoon();
    void showFault(SoundFault fault);
    void loseSource(const QString &reason);
    void takeReadings();
    void printMeters();

    void followPrograms();
    void followSleep();
    void followScheduling(PulseOutput::Settings *settings);
    void printScheduling();

    bool m_statePending = false;
    SoundFault m_sourceFault = SoundFault::None;  ///< of what was to be played
    SoundFault m_outputFault = SoundFault::None;  ///< of where it was to be heard
    QString m_scheduling;                         ///< of the audio thread
    QString m_saidScheduling;
    Player m_player;
    ControlThread m_control{[this](const SoundState &state) { m_player.setState(state); }};
    engine::Meters m_unread;      ///< played since the last readings() ...
    engine::Meters m_unwatched;   ///< ... since the last takeReading()
    engine::Meters m_unprinted;   ///< ... and since the last line
    unsigned m_dropouts = 0;      ///< since the start ...
    unsigned m_lastDropouts = 0;  ///< ... and until the last line
    QTimer m_meterTimer;
    SystemBus m_bus;
    std::unique_ptr<PulseOutput> m_output;
};

}  // namespace headunit
