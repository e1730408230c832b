// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "outputmap.h"
#include "realtime.h"

#include "headunit/audio/service/soundfault.h"

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace headunit {

class Player;

/// Plays on the desk's sound server (PulseAudio's protocol, which PipeWire answers, too), at the device's own rate, on
/// its channels, in its format. Follows the server's default device; nobody can take the stream to another one. A
/// server or a device that is not there, or goes, is looked for until it is. Every end that is not the server's doing
/// is a fall of the sound, not a cut. Its messages go to standard error: each state of affairs once, when it
/// begins.
class PulseOutput {
public:
    struct Settings {
        std::string device;  ///< the only one to play on, by the server's name of it; empty: the default device
        OutputMap map;       ///< empty: as usual for the device
        bool desk = false;   ///< offers devices that programs play on, and comes less late for it
        std::chrono::milliseconds retryAfter = std::chrono::seconds(2);  ///< between looks for what is missing
        /// Hears of what keeps the unit from being heard, and that nothing does any more, on the server's thread or
        /// within the constructor.
        std::function<void(SoundFault)> onFault{};
        /// Hears once, on the server's thread, how that is scheduled, which is the one that fills the loudspeakers.
        std::function<void(const Scheduling &)> onScheduled{};
        /// Gets each line that says so, on the same threads.
        std::function<void(const std::string &)> say = [](const std::string &line) {
            std::fprintf(stderr, "headunit: %s\n", line.c_str());
        };
    };

    /// Starts at once. \a player is used by the server's thread until the output is destroyed.
    PulseOutput(Player &player, const Settings &settings);
    /// Takes as long as the sound's end is on its way to the loudspeakers, half a second at most.
    ~PulseOutput();

    /// The sound falls to silence and stays silent until resume(). \a silent is called once nothing is heard any more:
    /// on the server's thread, or at once.
    void pause(std::function<void()> silent);
    void resume();

    /// How often the server has had nothing left to play since the last call.
    unsigned takeDropouts();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace headunit
