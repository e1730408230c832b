#pragma once

#include "headunit/audio/live/controlthread.h"
#include "headunit/audio/live/player.h"
#include "headunit/audio/live/pulseoutput.h"

#include <QObject>
#include <QTimer>

namespace headunit {

/// The sound of the running unit: plays through the desk's sound server what the sound model says. GUI thread.
class LiveSound : public QObject {
    Q_OBJECT
public:
    /// Starts to play \a what (see Player::choose()). \a problem is a line that says why that cannot be; the rest is
    /// heard all the same.
    LiveSound(const QString &what, QString *problem);

    /// From now on a line a second goes to standard output while something plays.
    void printMeters();

private Q_SLOTS:
    void takeState();

private:
    void takeStateSoon();

    bool m_statePending = false;
    Player m_player;
    ControlThread m_control{[this](const SoundState &state) { m_player.setState(state); }};
    QTimer m_meterTimer;
    std::unique_ptr<PulseOutput> m_output;
};

}  // namespace headunit
