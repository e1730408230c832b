#pragma once

#include <chrono>
#include <memory>

namespace headunit {

class Player;

/// Plays on the desk's sound server (PulseAudio's protocol, which PipeWire answers, too): on six channels where the
/// device has front, rear and side ones, folded down to two where not. Follows the server's default device. A server or
/// a device that is not there, or goes, is looked for until it is. What it has to say goes to standard error: each
/// state of affairs once, when it begins.
class PulseOutput {
public:
    /// Starts at once. \a player is used by the server's thread until the output is destroyed. \a retryAfter is the
    /// time between two looks for what is missing.
    explicit PulseOutput(Player &player, std::chrono::milliseconds retryAfter = std::chrono::seconds(2));
    ~PulseOutput();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace headunit
