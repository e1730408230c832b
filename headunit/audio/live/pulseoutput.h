#pragma once

#include <memory>

namespace headunit {

class Player;

/// Plays on the desk's sound server (PulseAudio's protocol, which PipeWire answers, too): on six channels where the
/// default device has them, folded down to two where not. A server that is not there, or goes, is looked for until it
/// is. What it has to say goes to standard error, each thing once.
class PulseOutput {
public:
    /// Starts at once. \a player is used by the server's thread until the output is destroyed.
    explicit PulseOutput(Player &player);
    ~PulseOutput();

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace headunit
